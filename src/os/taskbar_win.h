// The taskbar of this machine.
#pragma once

#include "os/taskbar.h"

namespace os {

class TaskbarWin : public Taskbar {
 public:
  std::intptr_t find() override;
  void hide(std::intptr_t window) override;
  void show(std::intptr_t window) override;
};

}  // namespace os

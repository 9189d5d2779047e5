// The taskbar of the user's desktop.
#pragma once

#include <cstdint>

namespace os {

class Taskbar {
 public:
  virtual ~Taskbar() = default;

  // The taskbar's window, or 0 where there is none.
  virtual std::intptr_t find() = 0;

  // Handle 0 does nothing.
  virtual void hide(std::intptr_t window) = 0;
  virtual void show(std::intptr_t window) = 0;
};

}  // namespace os

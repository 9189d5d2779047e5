// The folders of this machine.
#pragma once

#include "os/folders.h"

namespace os {

class FoldersWin : public Folders {
 public:
  std::vector<std::string> drives() override;
  std::string currentFolder() override;
  std::vector<std::string> foldersIn(const std::string& folder) override;
  std::vector<std::string> filesIn(const std::string& folder) override;
};

}  // namespace os

// The folders of the machine, for the lists from which one is chosen.
#pragma once

#include <string>
#include <vector>

namespace os {

class Folders {
 public:
  virtual ~Folders() = default;

  // The roots of the drives ("C:\"), in their own order.
  virtual std::vector<std::string> drives() = 0;

  // The folder in which the program works.
  virtual std::string currentFolder() = 0;

  // Names (not paths) of a folder's visible folders and files, in the folder's own order; empty when it
  // cannot be read.
  virtual std::vector<std::string> foldersIn(const std::string& folder) = 0;
  virtual std::vector<std::string> filesIn(const std::string& folder) = 0;
};

}  // namespace os

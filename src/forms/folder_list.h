// A list of a folder's folders, below the way that leads to it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/control.h"
#include "os/files.h"

namespace forms {

struct FolderEntry {
  std::string path;
  std::string shown;  // its name
  int depth = 0;      // how far it is set in
  bool open = false;  // on the way to the chosen folder
};

class FolderList : public Control {
 public:
  // Opens the current folder, without an event.
  FolderList(Form& form, std::string name, os::Files& disk);
  ControlKind kind() const override { return ControlKind::FolderList; }

  const std::vector<FolderEntry>& entries() const { return entries_; }

  // The chosen folder, without a backslash at its end unless it is a drive's root.
  const std::string& path() const { return path_; }

  // The entry of the chosen folder.
  int pathIndex() const { return pathIndex_; }

  // Another folder raises the change, whoever opened it. A folder that cannot be read shows no folders.
  void setPath(const std::string& path);
  void userOpened(int index);

  std::function<void()> onChange;

 private:
  void list();

  os::Files& disk_;
  std::string path_;
  std::vector<FolderEntry> entries_;
  int pathIndex_ = -1;
};

}  // namespace forms

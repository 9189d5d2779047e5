// The lists of drives, folders and files.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/control.h"
#include "os/files.h"

namespace forms {

// A list of the machine's drives of which one is chosen.
class DriveList : public Control {
 public:
  // Lists the drives and chooses the one of the current folder, without an event.
  DriveList(Form& form, std::string name, os::Files& disk);
  ControlKind kind() const override { return ControlKind::DriveList; }

  const std::vector<std::string>& drives() const { return drives_; }
  int listIndex() const;

  // The root of the chosen drive ("C:\").
  const std::string& drive() const { return drive_; }

  // Another drive raises the change, whoever chose it.
  void setDrive(const std::string& root);
  void userSelected(int index);

  std::function<void()> onChange;

 private:
  std::vector<std::string> drives_;
  std::string drive_;
};

struct FolderEntry {
  std::string path;
  std::string shown;  // its name
  int depth = 0;      // how far it is set in
  bool open = false;  // on the way to the chosen folder
};

// A list of a folder's folders, below the way that leads to it.
class FolderList : public Control {
 public:
  // Opens the current folder, without an event.
  FolderList(Form& form, std::string name, os::Files& disk);
  ControlKind kind() const override { return ControlKind::FolderList; }

  const std::vector<FolderEntry>& entries() const { return entries_; }

  // The chosen folder, without a backslash at its end unless it is a drive's root.
  const std::string& path() const { return path_; }

  // The selected entry: the chosen folder, until another one is selected.
  int listIndex() const { return listIndex_; }
  const std::string& selectedPath() const;

  // Selecting another entry raises the click and opens nothing.
  void userSelected(int index);

  // Another folder raises the change, whoever opened it. A folder that cannot be read shows no folders.
  void setPath(const std::string& path);
  void userOpened(int index);

  std::function<void()> onChange;

 private:
  void list();

  os::Files& disk_;
  std::string path_;
  std::vector<FolderEntry> entries_;
  int listIndex_ = -1;
};

// A list of a folder's files that match a pattern.
class FileList : public Control {
 public:
  // Shows the current folder's files.
  FileList(Form& form, std::string name, os::Files& disk);
  ControlKind kind() const override { return ControlKind::FileList; }

  const std::vector<std::string>& files() const { return files_; }
  int listCount() const { return static_cast<int>(files_.size()); }

  // The folder; a folder that cannot be read shows no files.
  const std::string& path() const { return path_; }
  void setPath(const std::string& path);

  // Patterns between ";", "*" at first.
  const std::string& pattern() const { return pattern_; }
  void setPattern(std::string pattern);

 private:
  void list();

  os::Files& disk_;
  std::string path_;
  std::string pattern_ = "*";
  std::vector<std::string> files_;
};

}  // namespace forms

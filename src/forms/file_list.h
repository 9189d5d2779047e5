// A list of a folder's files that match a pattern.
#pragma once

#include <string>
#include <vector>

#include "forms/control.h"
#include "os/files.h"

namespace forms {

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

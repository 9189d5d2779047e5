#include "forms/file_list.h"

#include <utility>

#include "forms/file_name.h"

namespace forms {

FileList::FileList(Form& form, std::string name, os::Files& disk)
    : Control(form, std::move(name)), disk_(disk), path_(WithoutTrailingSlash(disk.currentFolder())) {
  list();
}

void FileList::list() {
  files_ = disk_.filesIn(path_);
  std::erase_if(files_, [&](const std::string& name) { return !MatchesPatterns(name, pattern_); });
  SortNames(files_);
  changed(Change::Items);
}

void FileList::setPath(const std::string& path) {
  std::string folder = WithoutTrailingSlash(path);
  if (path_ == folder) return;
  path_ = std::move(folder);
  list();
}

void FileList::setPattern(std::string pattern) {
  if (pattern_ == pattern) return;
  pattern_ = std::move(pattern);
  list();
}

}  // namespace forms

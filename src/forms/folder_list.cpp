#include "forms/folder_list.h"

#include <utility>

#include "forms/file_name.h"
#include "os/paths.h"

namespace forms {

FolderList::FolderList(Form& form, std::string name, os::Files& disk)
    : Control(form, std::move(name)), disk_(disk), path_(WithoutTrailingSlash(disk.currentFolder())) {
  list();
}

void FolderList::list() {
  entries_.clear();
  int depth = 0;
  for (const std::string& folder : FoldersOnTheWay(path_)) {
    entries_.push_back({folder, LastName(folder), depth++, true});
  }
  pathIndex_ = static_cast<int>(entries_.size()) - 1;
  std::vector<std::string> names = disk_.foldersIn(path_);
  SortNames(names);
  for (const std::string& name : names) entries_.push_back({os::JoinPath(path_, name), name, depth, false});
  changed(Change::Items);
}

void FolderList::setPath(const std::string& path) {
  std::string folder = WithoutTrailingSlash(path);
  if (path_ == folder) return;
  path_ = std::move(folder);
  list();
  if (onChange) onChange();
}

void FolderList::userOpened(int index) {
  if (index >= 0 && index < static_cast<int>(entries_.size())) {
    setPath(std::string(entries_[static_cast<std::size_t>(index)].path));
  }
}

}  // namespace forms

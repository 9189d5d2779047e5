#include "forms/folder_lists.h"

#include <algorithm>
#include <utility>

#include "forms/file_name.h"
#include "os/paths.h"

namespace forms {

DriveList::DriveList(Form& form, std::string name, os::Files& disk)
    : Control(form, std::move(name)), drives_(disk.drives()) {
  const std::vector<std::string> way = FoldersOnTheWay(disk.currentFolder());
  if (!way.empty()) {
    drive_ = way.front();
  } else if (!drives_.empty()) {
    drive_ = drives_.front();
  }
}

int DriveList::listIndex() const {
  const auto found = std::find(drives_.begin(), drives_.end(), drive_);
  return found == drives_.end() ? -1 : static_cast<int>(found - drives_.begin());
}

void DriveList::setDrive(const std::string& root) {
  if (drive_ == root) return;
  drive_ = root;
  changed(Change::Value);
  if (onChange) onChange();
}

void DriveList::userSelected(int index) {
  if (index >= 0 && index < static_cast<int>(drives_.size()))
    setDrive(drives_[static_cast<std::size_t>(index)]);
}

FolderList::FolderList(Form& form, std::string name, os::Files& disk)
    : Control(form, std::move(name)), disk_(disk), path_(WithoutTrailingSlash(disk.currentFolder())) {
  list();
}

void FolderList::list() {
  entries_.clear();
  int depth = 0;
  for (const std::string& folder : FoldersOnTheWay(path_)) {
    entries_.push_back({folder, os::NameOf(folder), depth++, true});
  }
  listIndex_ = static_cast<int>(entries_.size()) - 1;
  std::vector<std::string> names = disk_.foldersIn(path_);
  disk_.sortNames(names);
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

const std::string& FolderList::selectedPath() const {
  return entries_.at(static_cast<std::size_t>(listIndex_)).path;
}

void FolderList::userSelected(int index) {
  if (index < 0 || index >= static_cast<int>(entries_.size()) || index == listIndex_) return;
  listIndex_ = index;
  if (onClick) onClick();
}

void FolderList::userOpened(int index) {
  if (index >= 0 && index < static_cast<int>(entries_.size())) {
    setPath(std::string(entries_[static_cast<std::size_t>(index)].path));
  }
}

FileList::FileList(Form& form, std::string name, os::Files& disk)
    : Control(form, std::move(name)), disk_(disk), path_(WithoutTrailingSlash(disk.currentFolder())) {
  list();
}

void FileList::list() {
  files_ = disk_.filesIn(path_);
  std::erase_if(files_, [&](const std::string& name) { return !MatchesPatterns(name, pattern_); });
  disk_.sortNames(files_);
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

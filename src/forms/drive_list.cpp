#include "forms/drive_list.h"

#include <algorithm>

#include "forms/file_name.h"

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

}  // namespace forms

// A list of the machine's drives of which one is chosen.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/control.h"
#include "os/files.h"

namespace forms {

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

}  // namespace forms

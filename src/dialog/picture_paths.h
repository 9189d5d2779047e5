// The paths of pictures that the user gives to the dialog.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "dialog/form2.h"

namespace dialog {

class PicturePaths {
 public:
  explicit PicturePaths(const DialogServices& services) : services_(services) {}

  // Lets the user choose a picture's file. Nothing when they cancel, or when the settings file cannot hold
  // its path, which they are told.
  std::optional<std::string> ask() const;

  // Lets the user choose several pictures' files, of these patterns too. Empty when they cancel. Sorted by
  // their names.
  std::vector<std::string> askForSeveral(const std::string& patterns) const;

  // The path itself while the settings file can hold it, else its short form where that fits, else nothing.
  std::optional<std::string> storable(const std::string& path) const;

  // Tells in one message how many pictures an action left out for the length of their paths. Says nothing of
  // 0.
  void tellLeftOut(int count) const;

 private:
  DialogServices services_;
};

}  // namespace dialog

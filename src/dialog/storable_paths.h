// The paths that the settings file can hold.
#pragma once

#include <optional>
#include <string>

#include "dialog/dialog_services.h"

namespace dialog {

class StorablePaths {
 public:
  explicit StorablePaths(const DialogServices& services) : services_(services) {}

  // The path itself while the settings file can hold it, else its short form where that fits, else nothing.
  std::optional<std::string> storable(const std::string& path) const;

  // Tells in one message how many pictures an action left out for the length of their paths. Says nothing of
  // 0.
  void tellLeftOut(int count) const;

 private:
  DialogServices services_;
};

}  // namespace dialog

// The pictures that the user has told the show never to show again.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "library/kept_file.h"
#include "os/files.h"

namespace library {

// For whoever looks at them while no show runs: they stand in what the show remembers, which otherwise stays
// as it is.
class HiddenPictures {
 public:
  // `folders` and `makeFolder` as KeptFile has them: the program's folder, then the user's.
  HiddenPictures(os::Files& files, const std::vector<std::string>& folders,
                 std::function<void()> makeFolder = nullptr);

  // How many there are; 0 where nothing is remembered.
  std::size_t count();

  // All of them may be shown again. False when that could not be written; then they stay hidden.
  bool bringBack();

 private:
  KeptFile stateFile_;
};

}  // namespace library

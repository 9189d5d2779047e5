// What the program learns of the system once, at its start.
#pragma once

#include <cstdint>

namespace os {

constexpr std::int32_t kNtFamily = 2;

struct SystemFacts {
  std::int32_t osPlatformId = kNtFamily;  // platform identifier of the version query; 2 = the NT family
  std::int16_t usePassword = 0;           // non-zero = the user protects the screen saver with a password
  std::intptr_t taskbarWindow = 0;        // the taskbar's window at the start of the show

  // The gate before every password step: only outside the NT family does a saver ask for the password itself.
  bool guardsPassword() const { return osPlatformId != kNtFamily && usePassword != 0; }
};

}  // namespace os

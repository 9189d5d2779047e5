#include "os/system_version_win.h"

#include <windows.h>

namespace os {

std::int32_t SystemVersionWin::platformId() {
  // The version numbers that this old query gives depend on the program's manifest; its platform identifier,
  // the only part that is used, does not.
  OSVERSIONINFOA record{};
  static_assert(sizeof(record) == 148);
  record.dwOSVersionInfoSize = sizeof(record);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
  GetVersionExA(&record);
#pragma GCC diagnostic pop
  return static_cast<std::int32_t>(record.dwPlatformId);
}

}  // namespace os

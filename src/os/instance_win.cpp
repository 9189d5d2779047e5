#include "os/instance_win.h"

#include <utility>

#include "os/utf16_win.h"

namespace os {

InstanceWin::InstanceWin(std::string name) : name_(std::move(name)) {}

bool InstanceWin::becomeOnly() {
  if (mark_) return true;
  // A mutex that nobody waits for: its name alone is the mark, and the system removes it with its last
  // handle.
  OwnedHandle mark(CreateMutexW(nullptr, FALSE, ToWide("Local\\" + name_).c_str()));
  const DWORD error = GetLastError();
  // Access is denied to a mark that a copy with other rights holds.
  if (error == ERROR_ALREADY_EXISTS || error == ERROR_ACCESS_DENIED) return false;
  mark_ = std::move(mark);
  return true;
}

void InstanceWin::release() { mark_.reset(); }

}  // namespace os

#include "os/instance.h"

#include <utility>

#include "os/handles_win.h"
#include "os/utf16_win.h"

namespace os {

namespace {

class InstanceWin final : public Instance {
 public:
  // The mark stands among the named objects of the user's session.
  explicit InstanceWin(const std::string& name) : name_(ToWide("Local\\" + name)) {}

  bool becomeOnly() override {
    if (mark_) return true;
    // A mutex that nobody waits for: its name alone is the mark, and the system removes it with its last
    // handle.
    OwnedHandle mark(CreateMutexW(nullptr, FALSE, name_.c_str()));
    const DWORD error = GetLastError();
    // Access is denied to a mark that a copy with other rights holds.
    if (error == ERROR_ALREADY_EXISTS || error == ERROR_ACCESS_DENIED) return false;
    mark_ = std::move(mark);
    return true;
  }

  void release() override { mark_.reset(); }

 private:
  std::wstring name_;
  OwnedHandle mark_;
};

}  // namespace

std::unique_ptr<Instance> MakeInstance(const std::string& name) {
  return std::make_unique<InstanceWin>(name);
}

}  // namespace os

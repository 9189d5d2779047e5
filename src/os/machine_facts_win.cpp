#include <array>

#include "os/handles_win.h"
#include "os/machine_facts.h"
#include "os/utf16_win.h"

namespace os {

namespace {

class MachineFactsWin final : public MachineFacts {
 public:
  std::int32_t platformId() override {
    // The version numbers that this old query gives depend on the program's manifest; its platform
    // identifier, the only part that is used, does not.
    OSVERSIONINFOA record{};
    static_assert(sizeof(record) == 148);
    record.dwOSVersionInfoSize = sizeof(record);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    GetVersionExA(&record);
#pragma GCC diagnostic pop
    return static_cast<std::int32_t>(record.dwPlatformId);
  }

  std::optional<RegistryValue> readUserValue(const std::string& key, const std::string& name) override {
    // The ANSI calls, because the bytes wanted are those of a text of single bytes.
    HKEY opened = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS)
      return std::nullopt;
    const OwnedKey owner(opened);
    std::array<char, 255> buffer{};
    DWORD type = 0;
    DWORD length = buffer.size();
    if (RegQueryValueExA(opened, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(buffer.data()),
                         &length) != ERROR_SUCCESS) {
      return std::nullopt;
    }
    return RegistryValue{type, std::string(buffer.data(), length)};
  }

  std::string programPath() override {
    // A path that does not fit is cut to the buffer, so the buffer grows until there is room to spare.
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
      const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
      if (length < path.size()) {
        path.resize(length);
        return FromWide(path);
      }
      path.resize(path.size() * 2);
    }
  }

  std::string commandLine() override { return FromWide(GetCommandLineW()); }
};

}  // namespace

std::unique_ptr<MachineFacts> MakeMachineFacts() { return std::make_unique<MachineFactsWin>(); }

}  // namespace os

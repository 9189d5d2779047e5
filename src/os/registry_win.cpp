#include "os/registry_win.h"

#include <array>

#include "os/handles_win.h"

namespace os {

std::optional<RegistryValue> RegistryWin::readUserValue(const std::string& key, const std::string& name) {
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

}  // namespace os

// The current user's part of the registry.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace os {

// Types as the registry numbers them.
constexpr std::uint32_t kRegistryText = 1;
constexpr std::uint32_t kRegistryExpandableText = 2;
constexpr std::uint32_t kRegistryNumber = 4;  // 32 bits, least significant byte first

struct RegistryValue {
  std::uint32_t type = 0;
  std::string bytes;  // text is in the ANSI code page, usually with its NUL at the end
};

class Registry {
 public:
  virtual ~Registry() = default;

  // The value `name` of `key` ("Control Panel\Desktop"), or nothing when the key cannot be opened, the value
  // is absent, or it is longer than 255 bytes.
  virtual std::optional<RegistryValue> readUserValue(const std::string& key, const std::string& name) = 0;
};

}  // namespace os

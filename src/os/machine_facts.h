// What the program learns of the machine and of its own start.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace os {

constexpr std::int32_t kNtFamily = 2;

// What is asked once, at the start, and kept.
struct SystemFacts {
  std::int32_t osPlatformId = kNtFamily;  // platform identifier of the version query; 2 = the NT family
  std::int16_t usePassword = 0;           // non-zero = the user protects the screen saver with a password
  std::intptr_t taskbarWindow = 0;        // the taskbar's window at the start of the show

  // The gate before every password step: only outside the NT family does a saver ask for the password itself.
  bool guardsPassword() const { return osPlatformId != kNtFamily && usePassword != 0; }
};

// Types as the registry numbers them.
constexpr std::uint32_t kRegistryText = 1;
constexpr std::uint32_t kRegistryExpandableText = 2;
constexpr std::uint32_t kRegistryNumber = 4;  // 32 bits, least significant byte first

struct RegistryValue {
  std::uint32_t type = 0;
  std::string bytes;  // text is in the ANSI code page, usually with its NUL at the end
};

class MachineFacts {
 public:
  virtual ~MachineFacts() = default;

  // The platform identifier of the version query: kNtFamily (2) or that of an older family.
  // A query that fails gives 0, as a record left untouched would.
  virtual std::int32_t platformId() = 0;

  // The value `name` of `key` ("Control Panel\Desktop") in the current user's part of the registry, or
  // nothing when the key cannot be opened, the value is absent, or it is longer than 255 bytes.
  virtual std::optional<RegistryValue> readUserValue(const std::string& key, const std::string& name) = 0;

  // Full path of the running program.
  virtual std::string programPath() = 0;

  // The whole command line as it was given, with the program's name in front.
  virtual std::string commandLine() = 0;
};

// Those of this machine.
std::unique_ptr<MachineFacts> MakeMachineFacts();

}  // namespace os

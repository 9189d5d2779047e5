#include "startup/password_flag.h"

#include <algorithm>

#include "base/number_text.h"

namespace startup {

namespace {

// Four bytes, least significant first; bytes that are missing count as 0.
std::uint32_t NumberOf(const std::string& bytes) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < std::min<std::size_t>(bytes.size(), 4); ++i) {
    number |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
  }
  return number;
}

std::string WithAtLeastThreeDigits(std::uint32_t number) {
  const std::string digits = std::to_string(number);
  return std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') + digits;
}

}  // namespace

std::string PasswordFlagText(const os::RegistryValue& value) {
  if (value.type == os::kRegistryNumber) return WithAtLeastThreeDigits(NumberOf(value.bytes));
  if (value.type != os::kRegistryText && value.type != os::kRegistryExpandableText) return {};
  std::string text = value.bytes;
  if (!text.empty() && text.back() == '\0') text.pop_back();
  return text;
}

std::string ReadPasswordFlag(os::MachineFacts& machine) {
  const auto value = machine.readUserValue("Control Panel\\Desktop", "ScreenSaveUsePassword");
  return value ? PasswordFlagText(*value) : std::string();
}

std::int16_t PasswordFlagNumber(const std::string& text) { return base::LenientInt16(text); }

}  // namespace startup

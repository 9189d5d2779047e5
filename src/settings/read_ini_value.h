// One value of the settings file, as its readers get it.
#pragma once

#include <string>
#include <string_view>

#include "settings/ini_document.h"

namespace settings {

// A buffer of 255 characters holds 254 and its end mark.
inline constexpr std::size_t kLongestValue = 254;

// The value, cut to 254 characters; empty text when the section or key is absent.
inline std::string ReadIniValue(const IniDocument& document, std::string_view section, std::string_view key) {
  return document.value(section, key, kLongestValue);
}

}  // namespace settings

// The western ANSI code page (1252) without Windows.
#pragma once

#include "os/ansi_code_page.h"

namespace support {

// The five bytes without a character (81, 8D, 8F, 90, 9D) are the control characters of the same number, as
// Windows has it.
class Windows1252 : public os::AnsiCodePage {
 public:
  std::string decode(std::string_view ansi) const override;
  std::optional<std::string> encode(std::string_view utf8) const override;
};

inline const Windows1252 kWestern;

}  // namespace support

// A code page like those of East Asia: characters of one and two bytes, whose second bytes may be brackets.
#pragma once

#include "os/escaping_code_page.h"

namespace fuzz {

// 81 to 9F lead a character whose second byte is 40 to 7E (U+4E00 onwards); A1 to DF are characters by
// themselves (U+FF61 onwards); no other byte above 7F means anything.
class TwoByteCodePage final : public os::EscapingCodePage {
 protected:
  std::optional<std::string> decodeExactly(std::string_view ansi) const override;
  std::optional<std::string> encodeExactly(std::string_view utf8) const override;
  std::size_t characterLength(std::string_view ansi) const override;
};

}  // namespace fuzz

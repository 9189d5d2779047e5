// A code page that carries bytes without a character through UTF-8 unharmed.
//
// Such a byte becomes a lone low surrogate, U+DC80 to U+DCFF, which no text holds by itself, in its
// three-byte UTF-8 form; encode() turns it back. So a file with broken text in it is not damaged by reading
// and writing.
#pragma once

#include <cstddef>

#include "os/ansi_code_page.h"

namespace os {

class EscapingCodePage : public AnsiCodePage {
 public:
  std::string decode(std::string_view ansi) const final;
  std::optional<std::string> encode(std::string_view utf8) const final;

 protected:
  // All of the bytes as UTF-8, or nothing when some of them are no character.
  virtual std::optional<std::string> decodeExactly(std::string_view ansi) const = 0;

  // All of the text as bytes, or nothing when some character has no place of its own.
  virtual std::optional<std::string> encodeExactly(std::string_view utf8) const = 0;

  // The bytes (at least 1) that the first character of a text seems to take.
  virtual std::size_t characterLength(std::string_view ansi) const = 0;
};

}  // namespace os

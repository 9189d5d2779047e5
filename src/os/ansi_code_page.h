// The system's ANSI code page, in which plain settings files are written.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace os {

class AnsiCodePage {
 public:
  virtual ~AnsiCodePage() = default;

  // ANSI bytes as UTF-8. Every byte gives something that encode() turns back into the same byte (in a code
  // page that holds a character twice: into the same character).
  virtual std::string decode(std::string_view ansi) const = 0;

  // UTF-8 text as ANSI bytes, or nothing when a character has no exact place in the code page.
  virtual std::optional<std::string> encode(std::string_view utf8) const = 0;
};

}  // namespace os

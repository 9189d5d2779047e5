// Settings files read in the plainest way: every question goes through all lines again.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "os/ansi_code_page.h"

namespace fuzz {

class NaiveIni {
 public:
  // Lines in UTF-8, decoded each for itself.
  NaiveIni(std::string_view file, const os::AnsiCodePage& ansi);

  // What a reader gets for the first such key of the first such section; nothing when there is none.
  std::optional<std::string> value(std::string_view section, std::string_view key) const;

  // Every section and key that value() finds, in lower case, each once.
  std::vector<std::pair<std::string, std::string>> names() const;

  // Lines that are neither header nor key, without the blanks at their ends.
  std::vector<std::string> otherLines() const;

 private:
  std::vector<std::string> lines_;
};

// The text that comes back for a value that was stored: on one line, up to no NUL.
std::string AsStored(std::string_view value);

}  // namespace fuzz

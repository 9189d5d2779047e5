// Settings files read in the plainest way: line by line from the top, each understood by itself.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "os/ansi_code_page.h"

namespace fuzz {

class NaiveIni {
 public:
  // By section and key, both in lower case.
  using Values = std::map<std::pair<std::string, std::string>, std::string>;

  // Lines in UTF-8, decoded each for itself.
  NaiveIni(std::string_view file, const os::AnsiCodePage& ansi);

  // What a reader gets for the first key of each name in the first section of each name.
  const Values& values() const { return values_; }

  // One of them; nothing when there is none.
  std::optional<std::string> value(std::string_view section, std::string_view key) const;

  // Lines that are neither header nor key, without the blanks at their ends.
  const std::vector<std::string>& otherLines() const { return otherLines_; }

 private:
  Values values_;
  std::vector<std::string> otherLines_;
};

// The text that comes back for a value that was stored: on one line, up to no NUL.
std::string AsStored(std::string_view value);

}  // namespace fuzz

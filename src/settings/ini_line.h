// One line of a settings file, as the Windows NT profile functions understand it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace settings {

struct IniLine {
  enum class Kind {
    Text,     // a blank line, a comment, or a line without "="
    Section,  // "[name]"; the bracket at its end may be missing, what follows it does not count
    Key,      // "key=value"
  };

  Kind kind = Kind::Text;
  std::string_view name;       // of the section or key, without the blanks at its ends; a number as a key's
                               // name keeps those before it
  std::size_t valueBegin = 0;  // of a key: where its value stands in the line, without the blanks at its ends
  std::size_t valueEnd = 0;
};

// `text` is a line without its line end; the result refers to it. Blanks are spaces, tabs and vertical tabs.
IniLine ParseIniLine(std::string_view text);

// What a reader gets for the value of a key: without one pair of enclosing quotes, and up to the first NUL.
std::string_view ReadableValue(std::string_view value);

// The value as it must stand in a line for a reader to get `value` back: in quotes of its own when there are
// blanks or control characters at its ends or it is enclosed in quotes already. A line break cannot be
// stored; it becomes a blank, as NUL does.
std::string StorableValue(std::string_view value);

}  // namespace settings

#include "startup/command_line.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"

namespace startup {

namespace {

// The space of every script, tab and line end included.
bool IsBlank(char32_t character) {
  constexpr std::u32string_view kBlanks =
      U"\t\n\v\f\r \u0085\u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009\u200A"
      U"\u2028\u2029\u202F\u205F\u3000";
  return kBlanks.find(character) != std::u32string_view::npos;
}

// What stands between the program's name and the text, as the system writes it.
bool Separates(char c) { return c == ' ' || c == '\t'; }

// Letters beyond ASCII are compared as they are: a path that differs only in their case is then read as any
// other.
bool StartsWithPath(std::string_view line, std::string_view path) {
  if (path.empty() || line.size() < path.size()) return false;
  if (line.size() > path.size() && !Separates(line[path.size()])) return false;
  return base::EqualAsciiBlind(line.substr(0, path.size()), path);
}

// Where the program's name ends. A quote turns the meaning of blanks over until the next one.
std::size_t EndOfName(std::string_view line, std::string_view programPath) {
  if (StartsWithPath(line, programPath)) return programPath.size();
  if (!line.empty() && line.front() == '"') {
    const std::size_t closing = line.find('"', 1);
    return closing == std::string_view::npos ? line.size() : closing + 1;
  }
  bool quoted = false;
  std::size_t end = 0;
  for (; end < line.size() && (quoted || !Separates(line[end])); ++end) {
    if (line[end] == '"') quoted = !quoted;
  }
  return end;
}

// The number behind so many characters, with the blanks of every script left out.
std::intptr_t WindowAfter(std::string_view text, std::size_t skipped) {
  std::string rest;
  for (std::size_t place = 0, count = 0; place < text.size(); ++count) {
    const base::Utf8Character character = base::Utf8CharacterAt(text, place);
    if (count >= skipped && !IsBlank(character.value)) rest += text.substr(place, character.length);
    place += character.length;
  }
  return base::LenientInt32(rest);
}

}  // namespace

std::string TextAfterProgramName(std::string_view commandLine, std::string_view programPath) {
  std::string_view rest = commandLine.substr(EndOfName(commandLine, programPath));
  rest.remove_prefix(
      static_cast<std::size_t>(std::find_if_not(rest.begin(), rest.end(), Separates) - rest.begin()));
  return std::string(rest);
}

RunMode RunModeOf(std::string_view text) {
  const std::string start = base::AsciiUpper(base::TrimBlanks(text).substr(0, 2));
  if (start == "/C") return RunMode::Configure;
  if (start == "/A") return RunMode::ChangePassword;
  if (start.empty() || start == "/S") return RunMode::Show;
  if (start == "/P") return RunMode::Preview;
  return RunMode::Show;
}

std::intptr_t PasswordWindowOf(std::string_view text) { return WindowAfter(text, 2); }

std::intptr_t PreviewWindowOf(std::string_view text) { return WindowAfter(text, 3); }

}  // namespace startup

#include "startup/command_line.h"

#include <algorithm>

#include "base/number_text.h"

namespace startup {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

// Letters beyond ASCII are compared as they are: no switch has any, and a path that differs only in their
// case is then read as any other.
char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

bool StartsWithPath(std::string_view line, std::string_view path) {
  if (path.empty() || line.size() < path.size()) return false;
  if (line.size() > path.size() && !IsBlank(line[path.size()])) return false;
  return std::equal(path.begin(), path.end(), line.begin(),
                    [](char a, char b) { return Upper(a) == Upper(b); });
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
  for (; end < line.size() && (quoted || !IsBlank(line[end])); ++end) {
    if (line[end] == '"') quoted = !quoted;
  }
  return end;
}

std::string_view TrimSpaces(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::intptr_t WindowAfter(std::string_view text, std::size_t skipped) {
  return base::LenientInt32(text.substr(std::min(skipped, text.size())));
}

}  // namespace

std::string TextAfterProgramName(std::string_view commandLine, std::string_view programPath) {
  std::string_view rest = commandLine.substr(EndOfName(commandLine, programPath));
  rest.remove_prefix(
      static_cast<std::size_t>(std::find_if_not(rest.begin(), rest.end(), IsBlank) - rest.begin()));
  return std::string(rest);
}

RunMode RunModeOf(std::string_view text) {
  std::string start(TrimSpaces(text).substr(0, 2));
  std::transform(start.begin(), start.end(), start.begin(), Upper);
  if (start == "/C") return RunMode::Configure;
  if (start == "/A") return RunMode::ChangePassword;
  if (start.empty() || start == "/S") return RunMode::Show;
  if (start == "/P") return RunMode::Preview;
  return RunMode::Show;
}

std::intptr_t PasswordWindowOf(std::string_view text) { return WindowAfter(text, 2); }

std::intptr_t PreviewWindowOf(std::string_view text) { return WindowAfter(text, 3); }

}  // namespace startup

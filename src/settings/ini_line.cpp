#include "settings/ini_line.h"

#include "base/text.h"

namespace settings {

namespace {

constexpr std::string_view kBlanks = " \t\v";

std::string_view TrimmedPart(std::string_view text) { return base::TrimBlanks(text, kBlanks); }

// The key's name without the blanks at its ends. A number keeps those before it, so that the numbered keys of
// a list are only found where they begin their line.
std::string_view NameIn(std::string_view text, std::string_view beforeEquals) {
  const std::string_view name = TrimmedPart(beforeEquals);
  if (name.empty() || name.find_first_not_of("0123456789") != std::string_view::npos) return name;
  return {text.data(), static_cast<std::size_t>(name.data() - text.data()) + name.size()};
}

bool IsEnclosedInQuotes(std::string_view text) {
  return text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.front() == text.back();
}

// Some readers drop more than the three blanks at a value's ends: any control character, and the no-break
// space and next-line characters, whose UTF-8 forms end and begin with the bytes below.
bool MayBeDropped(std::string_view atFront, std::string_view atBack) {
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) <= ' ' || c == '\x7F'; };
  return isControl(atFront.front()) || isControl(atBack.back()) || atFront.starts_with("\xC2\xA0") ||
         atFront.starts_with("\xC2\x85") || atBack.ends_with("\xC2\xA0") || atBack.ends_with("\xC2\x85");
}

// Line breaks as single blanks, and NUL as a blank.
std::string OnOneLine(std::string_view value) {
  std::string line;
  line.reserve(value.size() + 2);
  for (std::size_t i = 0; i < value.size(); ++i) {
    const char c = value[i];
    if (c == '\n' && i > 0 && value[i - 1] == '\r') continue;
    line += c == '\r' || c == '\n' || c == '\0' ? ' ' : c;
  }
  return line;
}

}  // namespace

IniLine ParseIniLine(std::string_view text) {
  const std::string_view line = TrimmedPart(text);
  if (line.empty() || line.front() == ';') return {};
  if (line.front() == '[') {
    const std::string_view rest = line.substr(1);
    return {IniLine::Kind::Section, TrimmedPart(rest.substr(0, rest.find(']')))};
  }
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return {};
  const std::string_view name = NameIn(text, line.substr(0, equals));
  const std::string_view value = TrimmedPart(line.substr(equals + 1));
  const std::size_t begin = static_cast<std::size_t>(value.data() - text.data());
  return {IniLine::Kind::Key, name, begin, begin + value.size()};
}

std::string_view ReadableValue(std::string_view value) {
  const std::string_view inner = IsEnclosedInQuotes(value) ? value.substr(1, value.size() - 2) : value;
  return inner.substr(0, inner.find('\0'));
}

std::string StorableValue(std::string_view value) {
  std::string line = OnOneLine(value);
  if (!line.empty() && (MayBeDropped(line, line) || IsEnclosedInQuotes(line))) return '"' + line + '"';
  return line;
}

}  // namespace settings

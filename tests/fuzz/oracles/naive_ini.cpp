#include "fuzz/oracles/naive_ini.h"

#include <algorithm>
#include <set>

#include "base/text.h"

namespace fuzz {

namespace {

std::string Trimmed(const std::string& text) {
  constexpr const char* kBlanks = " \t\v";
  const std::size_t begin = text.find_first_not_of(kBlanks);
  return begin == std::string::npos ? "" : text.substr(begin, text.find_last_not_of(kBlanks) + 1 - begin);
}

// The name of the section that a line opens.
std::optional<std::string> Header(const std::string& whole) {
  const std::string line = Trimmed(whole);
  if (!line.starts_with('[')) return std::nullopt;
  std::string name = line.substr(1);
  if (const std::size_t end = name.find(']'); end != std::string::npos) name.resize(end);
  return base::AsciiLower(Trimmed(name));
}

bool IsNumber(const std::string& text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// The key's name and value, still with its quotes. A number with blanks before it is called by both.
std::optional<std::pair<std::string, std::string>> Key(const std::string& whole) {
  const std::string line = Trimmed(whole);
  const std::size_t equals = line.find('=');
  if (line.starts_with(';') || line.starts_with('[') || equals == std::string::npos) return std::nullopt;
  std::string name = Trimmed(line.substr(0, equals));
  if (IsNumber(name)) name.insert(0, whole, 0, whole.find_first_of("0123456789"));
  return std::pair(base::AsciiLower(name), Trimmed(line.substr(equals + 1)));
}

std::string Unquoted(std::string value) {
  const bool quoted =
      value.size() > 1 && value.front() == value.back() && (value.front() == '\'' || value.front() == '"');
  if (quoted) value = value.substr(1, value.size() - 2);
  return value.substr(0, value.find('\0'));
}

std::string Utf16ToUtf8(std::string_view bytes) {
  std::u16string units;
  for (std::size_t i = 1; i < bytes.size(); i += 2) {
    units += static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) << 8 |
                                   static_cast<unsigned char>(bytes[i - 1]));
  }
  return base::Utf8FromUtf16(units);
}

std::vector<std::string> LinesOf(std::string_view file, const os::AnsiCodePage& ansi) {
  const bool isUtf16 = file.starts_with("\xFF\xFE");
  const std::string text = isUtf16 ? Utf16ToUtf8(file.substr(2)) : std::string(file);
  std::vector<std::string> lines(1);
  for (const char c : text) {
    if (c == '\r' || c == '\n') {
      lines.emplace_back();
    } else {
      lines.back() += c;
    }
  }
  if (!isUtf16) {
    for (std::string& line : lines) line = ansi.decode(line);
  }
  return lines;
}

}  // namespace

NaiveIni::NaiveIni(std::string_view file, const os::AnsiCodePage& ansi) {
  std::set<std::string> opened;
  std::optional<std::string> section;  // nothing before the first one, and in one whose name was there before
  for (const std::string& line : LinesOf(file, ansi)) {
    if (const auto header = Header(line)) {
      section = opened.insert(*header).second ? header : std::nullopt;
    } else if (const auto key = Key(line)) {
      if (section) values_.insert({{*section, key->first}, Unquoted(key->second)});
    } else if (const std::string other = Trimmed(line); !other.empty()) {
      otherLines_.push_back(other);
    }
  }
}

std::optional<std::string> NaiveIni::value(std::string_view section, std::string_view key) const {
  const auto found = values_.find({base::AsciiLower(section), base::AsciiLower(key)});
  return found == values_.end() ? std::nullopt : std::optional(found->second);
}

std::string AsStored(std::string_view value) {
  std::string stored;
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (value.substr(i).starts_with("\r\n")) ++i;
    stored += value[i] == '\r' || value[i] == '\n' || value[i] == '\0' ? ' ' : value[i];
  }
  return stored;
}

}  // namespace fuzz

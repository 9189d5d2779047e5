#include "fuzz/oracles/naive_ini.h"

#include <algorithm>

#include "base/text.h"

namespace fuzz {

namespace {

std::string Trimmed(std::string text) {
  const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\v'; };
  while (!text.empty() && isBlank(text.back())) text.pop_back();
  while (!text.empty() && isBlank(text.front())) text.erase(0, 1);
  return text;
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

}  // namespace

NaiveIni::NaiveIni(std::string_view file, const os::AnsiCodePage& ansi) {
  const bool isUtf16 = file.starts_with("\xFF\xFE");
  const std::string text = isUtf16 ? Utf16ToUtf8(file.substr(2)) : std::string(file);
  std::string line;
  const auto close = [&] {
    lines_.push_back(isUtf16 ? line : ansi.decode(line));
    line.clear();
  };
  for (const char c : text) {
    if (c == '\r' || c == '\n') {
      close();
    } else {
      line += c;
    }
  }
  close();
}

std::optional<std::string> NaiveIni::value(std::string_view section, std::string_view key) const {
  const std::string wanted = base::AsciiLower(section);
  bool inside = false;
  for (const std::string& line : lines_) {
    if (const auto header = Header(line)) {
      if (inside) return std::nullopt;
      inside = *header == wanted;
    } else if (const auto found = Key(line); inside && found && found->first == base::AsciiLower(key)) {
      return Unquoted(found->second);
    }
  }
  return std::nullopt;
}

std::vector<std::pair<std::string, std::string>> NaiveIni::names() const {
  std::vector<std::pair<std::string, std::string>> all;
  std::string section;
  bool any = false;
  for (const std::string& line : lines_) {
    if (const auto header = Header(line)) {
      section = *header;
      any = true;
    } else if (const auto key = Key(line); any && key && value(section, key->first)) {
      const std::pair name(section, key->first);
      if (std::find(all.begin(), all.end(), name) == all.end()) all.push_back(name);
    }
  }
  return all;
}

std::vector<std::string> NaiveIni::otherLines() const {
  std::vector<std::string> others;
  for (const std::string& line : lines_) {
    if (!Trimmed(line).empty() && !Header(line) && !Key(line)) others.push_back(Trimmed(line));
  }
  return others;
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

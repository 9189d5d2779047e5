#include "settings/ini_document.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "base/text.h"
#include "settings/ini_line.h"

namespace settings {

namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kLineEnd = "\r\n";

std::string Utf8FromLittleEndian(std::string_view bytes) {
  std::u16string units;
  units.reserve(bytes.size() / 2);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto low = static_cast<unsigned char>(bytes[i]);
    const auto high = static_cast<unsigned char>(bytes[i + 1]);
    units += static_cast<char16_t>(low | (high << 8));
  }
  return base::Utf8FromUtf16(units);
}

// The text up to the next line that surely is a section's header.
std::string_view UpToNextSection(std::string_view text) { return text.substr(0, text.find("\n[")); }

void AppendLittleEndian(std::string& bytes, std::string_view utf8) {
  for (const char16_t unit : base::Utf16FromUtf8(utf8)) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
}

}  // namespace

IniDocument::IniDocument(std::string_view bytes, const os::AnsiCodePage& ansi) : ansi_(&ansi) {
  sections_.emplace_back();
  utf16_ = bytes.starts_with(kUtf16Mark);
  if (utf16_) {
    readLines(Utf8FromLittleEndian(bytes.substr(kUtf16Mark.size())), nullptr);
  } else {
    readLines(bytes, &ansi);
  }
}

IniDocument::LineEnd IniDocument::lineEndAt(std::string_view text) {
  if (text.empty()) return LineEnd::None;
  if (text.starts_with(kLineEnd)) return LineEnd::CrLf;
  return text.front() == '\r' ? LineEnd::Cr : LineEnd::Lf;
}

std::string_view IniDocument::textOf(LineEnd end) {
  constexpr std::string_view kTexts[] = {"", kLineEnd, "\n", "\r"};
  return kTexts[static_cast<std::size_t>(end)];
}

void IniDocument::readLines(std::string_view text, const os::AnsiCodePage* ansi) {
  const char* counted = text.data();  // lines before this have room already
  while (!text.empty()) {
    const std::size_t length = std::min(text.find_first_of(kLineEnd), text.size());
    const std::string_view rest = text.substr(length);
    const LineEnd end = lineEndAt(rest);
    const std::string_view line = text.substr(0, length);
    if (ansi == nullptr || base::IsAscii(line)) {
      add({std::string(line), nullptr, end});
    } else {
      Line decoded{ansi->decode(line), nullptr, end};
      decoded.bytes = std::make_unique<std::string>(line);
      add(std::move(decoded));
    }
    text = rest.substr(textOf(end).size());
    // Room for the keys of a long section is made once, at its first line. No line is counted twice.
    Section& section = sections_.back();
    if (section.lines.size() != 1 || text.data() < counted) continue;
    const std::string_view ahead = UpToNextSection(text);
    section.keys.reserve(static_cast<std::size_t>(std::count(ahead.begin(), ahead.end(), '\n')) + 1);
    counted = ahead.data() + ahead.size();
  }
}

void IniDocument::add(Line line) {
  const IniLine parsed = ParseIniLine(line.text);
  const std::string name = base::AsciiLower(parsed.name);
  if (parsed.kind == IniLine::Kind::Section) index_.emplace(name, &sections_.emplace_back());
  Section& section = sections_.back();
  section.lines.push_back(std::move(line));
  if (parsed.kind == IniLine::Kind::Text) return;
  section.lastKey = std::prev(section.lines.end());
  if (parsed.kind == IniLine::Kind::Key) section.keys.emplace(name, section.lastKey);
}

const IniDocument::Line* IniDocument::find(std::string_view section, std::string_view key) const {
  const auto found = index_.find(base::AsciiLower(section));
  if (found == index_.end()) return nullptr;
  const auto line = found->second->keys.find(base::AsciiLower(key));
  return line == found->second->keys.end() ? nullptr : &*line->second;
}

bool IniDocument::has(std::string_view section, std::string_view key) const {
  return find(section, key) != nullptr;
}

std::size_t IniDocument::keysIn(std::string_view section) const {
  const auto found = index_.find(base::AsciiLower(section));
  return found == index_.end() ? 0 : found->second->keys.size();
}

std::string IniDocument::value(std::string_view section, std::string_view key, std::size_t longest) const {
  const Line* line = find(section, key);
  if (line == nullptr) return {};
  const IniLine parsed = ParseIniLine(line->text);
  const std::string_view text(line->text);
  const std::string_view all =
      ReadableValue(text.substr(parsed.valueBegin, parsed.valueEnd - parsed.valueBegin));
  if (all.size() <= longest) return std::string(all);
  std::size_t characters = 0;
  std::size_t kept = 0;
  while (kept < all.size()) {
    const std::size_t bytes = base::Utf8CharacterAt(all, kept).length;
    characters += lengthOf(all.substr(kept, bytes));
    if (characters > longest) break;
    kept += bytes;
  }
  return std::string(all.substr(0, kept));
}

// In the characters of the profile functions; one that the code page lacks counts as the mark for it.
std::size_t IniDocument::lengthOf(std::string_view character) const {
  if (utf16_) return base::Utf16FromUtf8(character).size();
  const std::optional<std::string> bytes = ansi_->encode(character);
  return bytes ? bytes->size() : 1;
}

void IniDocument::set(std::string_view section, std::string_view key, std::string_view value) {
  Section& place = openSection(section);
  const auto found = place.keys.find(base::AsciiLower(key));
  if (found == place.keys.end()) {
    appendKey(place, key, value);
  } else {
    replaceValue(*found->second, value);
  }
}

IniDocument::Section& IniDocument::openSection(std::string_view name) {
  const auto found = index_.find(base::AsciiLower(name));
  if (found != index_.end()) return *found->second;
  Section& last = sections_.back();
  if (!last.lines.empty() && last.lines.back().end == LineEnd::None) last.lines.back().end = LineEnd::CrLf;
  add({'[' + std::string(name) + ']', nullptr, LineEnd::CrLf});
  return sections_.back();
}

void IniDocument::replaceValue(Line& line, std::string_view value) {
  const IniLine parsed = ParseIniLine(line.text);
  const std::size_t length = parsed.valueEnd - parsed.valueBegin;
  const std::string stored = StorableValue(value);
  if (ReadableValue(std::string_view(line.text).substr(parsed.valueBegin, length)) == ReadableValue(stored))
    return;
  line.text.replace(parsed.valueBegin, length, stored);
  line.bytes.reset();
}

void IniDocument::appendKey(Section& section, std::string_view key, std::string_view value) {
  if (section.lastKey->end == LineEnd::None) section.lastKey->end = LineEnd::CrLf;
  Line line{std::string(key) + '=' + StorableValue(value), nullptr, LineEnd::CrLf};
  section.lastKey = section.lines.insert(std::next(section.lastKey), std::move(line));
  section.keys.emplace(base::AsciiLower(key), section.lastKey);
}

void IniDocument::erase(std::string_view section, std::string_view key) {
  const auto found = index_.find(base::AsciiLower(section));
  const std::string name = base::AsciiLower(key);
  if (found == index_.end() || found->second->keys.erase(name) == 0) return;
  Section& place = *found->second;
  for (auto line = std::next(place.lines.begin()); line != place.lines.end();) {
    const IniLine parsed = ParseIniLine(line->text);
    if (parsed.kind != IniLine::Kind::Key || base::AsciiLower(parsed.name) != name) {
      ++line;
      continue;
    }
    const bool last = line == place.lastKey;
    line = place.lines.erase(line);
    if (last) place.lastKey = std::prev(line);
  }
}

void IniDocument::eraseSection(std::string_view section) {
  const auto found = index_.find(base::AsciiLower(section));
  if (found == index_.end() || found->second->keys.empty()) return;
  Section& place = *found->second;
  place.keys.clear();
  bool first = true;
  for (auto line = std::next(place.lines.begin()); line != place.lines.end();) {
    if (ParseIniLine(line->text).kind != IniLine::Kind::Key) {
      ++line;
      continue;
    }
    line = place.lines.erase(line);
    if (first) place.lastKey = std::prev(line);
    first = false;
  }
}

bool IniDocument::appendAnsi(std::string& bytes, const Line& line) const {
  if (line.bytes || base::IsAscii(line.text)) {
    bytes += line.bytes ? *line.bytes : line.text;
  } else if (const std::optional<std::string> encoded = ansi_->encode(line.text)) {
    bytes += *encoded;
  } else {
    return false;
  }
  bytes += textOf(line.end);
  return true;
}

std::string IniDocument::serialise() const {
  std::string ansi;
  bool fits = true;
  for (const Section& section : sections_) {
    for (const Line& line : section.lines) fits = fits && appendAnsi(ansi, line);
  }
  // ANSI text that begins like the mark would be taken for UTF-16.
  if (fits && !writeAsUtf16_ && !ansi.starts_with(kUtf16Mark)) return ansi;
  std::string utf16(kUtf16Mark);
  for (const Section& section : sections_) {
    for (const Line& line : section.lines) {
      AppendLittleEndian(utf16, line.text);
      AppendLittleEndian(utf16, textOf(line.end));
    }
  }
  return utf16;
}

}  // namespace settings

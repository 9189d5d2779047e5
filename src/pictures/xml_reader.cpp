#include "pictures/xml_reader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "base/text.h"

namespace pictures {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kVerbatim = "<![CDATA[";
constexpr std::string_view kVerbatimEnd = "]]>";
constexpr std::size_t kLongestReference = 12;  // with & and ;

// The text up to a place, which is taken from the front together with it.
std::string_view TakeUpTo(std::string_view& rest, std::size_t place) {
  const std::string_view taken = rest.substr(0, place);
  rest.remove_prefix(std::min(place, rest.size()));
  return taken;
}

// The place of the ">" that ends a tag, which may stand in the values of its attributes too.
std::size_t EndOfTag(std::string_view tag) {
  char quote = 0;
  for (std::size_t i = 0; i < tag.size(); ++i) {
    if (quote != 0) {
      if (tag[i] == quote) quote = 0;
    } else if (tag[i] == '"' || tag[i] == '\'') {
      quote = tag[i];
    } else if (tag[i] == '>') {
      return i;
    }
  }
  return std::string_view::npos;
}

bool IsCharacter(std::uint32_t number) {
  return number > 0 && number <= 0x10FFFF && !(number >= 0xD800 && number <= 0xDFFF);
}

// What a reference stands for, given without & and ;. Empty for nothing.
std::string ReferredBy(std::string_view name) {
  static constexpr std::array<std::pair<std::string_view, char>, 5> kNames{
      {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}}};
  for (const auto& [known, character] : kNames) {
    if (name == known) return {character};
  }
  if (!name.starts_with('#')) return {};
  const bool isHexadecimal = name.starts_with("#x");
  const std::string_view digits = name.substr(isHexadecimal ? 2 : 1);
  std::uint32_t number = 0;
  const auto [end, error] =
      std::from_chars(digits.data(), digits.data() + digits.size(), number, isHexadecimal ? 16 : 10);
  if (error != std::errc() || end != digits.data() + digits.size() || !IsCharacter(number)) return {};
  std::string character;
  base::AppendUtf8(character, number);
  return character;
}

}  // namespace

std::optional<XmlPiece> XmlReader::next() {
  while (!rest_.empty()) {
    if (rest_.front() != '<') {
      return XmlPiece{XmlPiece::Kind::Text, TakeUpTo(rest_, std::min(rest_.find('<'), rest_.size())), {}};
    }
    if (passOver("<!--", "-->") || passOver("<?", "?>")) continue;
    if (rest_.starts_with(kVerbatim)) return verbatim();
    if (passOver("<!", ">")) continue;
    return tag();
  }
  return std::nullopt;
}

// True when something stood there that begins and ends so. Without an end it reaches to the end of all.
bool XmlReader::passOver(std::string_view begin, std::string_view end) {
  if (!rest_.starts_with(begin)) return false;
  const std::size_t found = rest_.find(end, begin.size());
  TakeUpTo(rest_, found == std::string_view::npos ? rest_.size() : found + end.size());
  return true;
}

XmlPiece XmlReader::verbatim() {
  rest_.remove_prefix(kVerbatim.size());
  const std::string_view text = TakeUpTo(rest_, std::min(rest_.find(kVerbatimEnd), rest_.size()));
  TakeUpTo(rest_, kVerbatimEnd.size());
  return {XmlPiece::Kind::Verbatim, text, {}};
}

std::optional<XmlPiece> XmlReader::tag() {
  const std::size_t end = EndOfTag(rest_);
  if (end == std::string_view::npos) {
    rest_ = {};
    return std::nullopt;
  }
  std::string_view inside = TakeUpTo(rest_, end).substr(1);
  rest_.remove_prefix(1);
  XmlPiece piece{XmlPiece::Kind::Open, {}, {}};
  if (inside.starts_with('/')) {
    piece.kind = XmlPiece::Kind::Close;
    inside.remove_prefix(1);
  } else if (inside.ends_with('/')) {
    piece.kind = XmlPiece::Kind::Empty;
    inside.remove_suffix(1);
  }
  piece.content = TakeUpTo(inside, std::min(inside.find_first_of(kBlanks), inside.size()));
  piece.attributes = inside;
  return piece;
}

std::optional<XmlAttribute> TakeXmlAttribute(std::string_view& attributes) {
  attributes = base::TrimBlanks(attributes, kBlanks);
  const std::size_t equals = attributes.find('=');
  if (equals == std::string_view::npos) return std::nullopt;
  const std::string_view name = base::TrimBlanks(attributes.substr(0, equals), kBlanks);
  const std::string_view behind = base::TrimBlanks(attributes.substr(equals + 1), kBlanks);
  if (behind.empty() || (behind.front() != '"' && behind.front() != '\'')) return std::nullopt;
  const std::size_t end = behind.find(behind.front(), 1);
  if (end == std::string_view::npos) return std::nullopt;
  attributes = behind.substr(end + 1);
  return XmlAttribute{name, behind.substr(1, end - 1)};
}

std::string ResolvedXml(std::string_view text) {
  std::string resolved;
  while (!text.empty()) {
    resolved += TakeUpTo(text, std::min(text.find('&'), text.size()));
    const std::size_t end = text.substr(0, kLongestReference).find(';');
    const std::string referred = end == std::string_view::npos ? "" : ReferredBy(text.substr(1, end - 1));
    if (!referred.empty()) {
      resolved += referred;
      text.remove_prefix(end + 1);
    } else {
      resolved += TakeUpTo(text, std::min<std::size_t>(1, text.size()));
    }
  }
  return resolved;
}

}  // namespace pictures

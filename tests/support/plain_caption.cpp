#include "support/plain_caption.h"

#include <map>
#include <vector>

namespace support {

namespace {

std::string Encoded(unsigned c) {
  std::string out;
  if (c < 0x80) return {static_cast<char>(c)};
  if (c >= 0x10000) {
    out += static_cast<char>(0xF0 | c >> 18);
    out += static_cast<char>(0x80 | (c >> 12 & 0x3F));
  } else if (c >= 0x800) {
    out += static_cast<char>(0xE0 | c >> 12);
  }
  out += static_cast<char>(c >= 0x800 ? 0x80 | (c >> 6 & 0x3F) : 0xC0 | c >> 6);
  out += static_cast<char>(0x80 | (c & 0x3F));
  return out;
}

// Characters; a byte that belongs to none counts as one that is broken. What gives the same bytes again when
// it is encoded is a character.
std::vector<unsigned> Characters(const std::string& text) {
  std::vector<unsigned> characters;
  for (std::size_t at = 0; at < text.size();) {
    std::size_t length = 1;
    unsigned value = 0xFFFD;
    for (std::size_t tried = 1; tried <= 4 && at + tried <= text.size(); ++tried) {
      const unsigned lead = static_cast<unsigned char>(text[at]);
      unsigned c = tried == 1 ? lead : lead & (0xFFU >> (tried + 1));
      for (std::size_t i = 1; i < tried; ++i) c = c << 6 | (static_cast<unsigned char>(text[at + i]) & 0x3FU);
      if (c > 0x10FFFF || Encoded(c) != text.substr(at, tried)) continue;
      length = tried;
      value = c >= 0xD800 && c < 0xE000 ? 0xFFFD : c;
    }
    characters.push_back(value);
    at += length;
  }
  return characters;
}

std::string OnOneLine(const std::string& text) {
  std::vector<unsigned> line = Characters(text);
  std::vector<unsigned> shown;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const unsigned c = line[i];
    if (c == '\n' && i > 0 && line[i - 1] == '\r') continue;
    const bool isControl = c < 32 || (c > 126 && c < 160) || c == 0x2028 || c == 0x2029;
    shown.push_back(isControl ? ' ' : c);
  }
  while (!shown.empty() && shown.back() == ' ') shown.pop_back();
  while (!shown.empty() && shown.front() == ' ') shown.erase(shown.begin());
  std::string out;
  for (const unsigned c : shown) out += Encoded(c);
  return out;
}

struct Piece {
  enum Kind { Text, Value, Bar } kind;
  std::string text;
};

std::vector<Piece> Cut(const std::string& pattern, const saver::CaptionWords& words) {
  const std::map<std::string, std::string> values = {
      {"name", words.name},   {"file", words.file},     {"folder", words.folder},
      {"date", words.date},   {"time", words.time},     {"camera", words.camera},
      {"title", words.title}, {"number", words.number}, {"total", words.total}};
  std::vector<Piece> pieces;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    if (pattern[i] == '|') {
      pieces.push_back({Piece::Bar, "|"});
      continue;
    }
    if (pattern.compare(i, 2, "{{") == 0) {
      pieces.push_back({Piece::Text, "{"});
      ++i;
      continue;
    }
    const std::size_t close = pattern[i] == '{' ? pattern.find('}', i) : std::string::npos;
    const auto known =
        close == std::string::npos ? values.end() : values.find(pattern.substr(i + 1, close - i - 1));
    if (known == values.end()) {
      pieces.push_back({Piece::Text, pattern.substr(i, 1)});
    } else {
      pieces.push_back({Piece::Value, OnOneLine(known->second)});
      i = close;
    }
  }
  return pieces;
}

}  // namespace

std::string PlainCaption(const std::string& pattern, const saver::CaptionWords& words) {
  std::vector<std::vector<Piece>> between(1);  // what stands before, between and behind the bars
  for (const Piece& piece : Cut(pattern, words)) {
    if (piece.kind == Piece::Bar) {
      between.emplace_back();
    } else {
      between.back().push_back(piece);
    }
  }
  std::string whole;
  for (std::size_t i = 0; i < between.size(); ++i) {
    const bool isFirstBar = i % 2 == 1;
    const bool hasPartner = i + 1 < between.size();
    if (isFirstBar && !hasPartner) whole += "|";
    int values = 0;
    int empty = 0;
    std::string text;
    for (const Piece& piece : between[i]) {
      if (piece.kind == Piece::Value) {
        ++values;
        empty += piece.text.empty() ? 1 : 0;
      }
      text += piece.text;
    }
    const bool isLeftOut = isFirstBar && hasPartner && values > 0 && empty == values;
    if (!isLeftOut) whole += text;
  }
  std::string line = OnOneLine(whole);
  std::vector<unsigned> characters = Characters(line);
  if (characters.size() > 254) characters.resize(254);
  std::string cut;
  for (const unsigned c : characters) cut += Encoded(c);
  return OnOneLine(cut);
}

}  // namespace support

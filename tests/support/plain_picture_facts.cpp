#include "support/plain_picture_facts.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace support {

namespace {

struct OutOfBytes {};

unsigned ByteAt(std::string_view bytes, std::size_t at) {
  if (at >= bytes.size()) throw OutOfBytes();
  return static_cast<unsigned char>(bytes[at]);
}

// All that is needed of a file.
struct Found {
  std::string description, title, make, model, xmpTitle, xmpDescription, original, digitized, changed;
};

bool SaysSomething(const std::string& text) {
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte > 32 && byte != 127) return true;
  }
  return false;
}

void Keep(std::string& place, const std::string& text) {
  if (place.empty() && SaysSomething(text)) place = text;
}

void Utf8(std::string& out, std::uint32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
    return;
  }
  const int further = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
  const unsigned lead[] = {0, 0xC0, 0xE0, 0xF0};
  out += static_cast<char>(lead[further] | c >> (6 * further));
  for (int i = further - 1; i >= 0; --i) out += static_cast<char>(0x80 | (c >> (6 * i) & 0x3F));
}

std::string FromUtf16(std::string_view bytes) {
  bool big = false;
  std::size_t at = 0;
  if (bytes.size() >= 2 && ByteAt(bytes, 0) + ByteAt(bytes, 1) == 0x1FD && ByteAt(bytes, 0) >= 0xFE) {
    big = ByteAt(bytes, 0) == 0xFE;
    at = 2;
  } else {
    int upperFirst = 0;  // units whose first byte alone is 0, less those whose second one is
    for (std::size_t i = 0; i + 2 <= bytes.size() && (bytes[i] != 0 || bytes[i + 1] != 0); i += 2)
      upperFirst += (bytes[i] == 0) - (bytes[i + 1] == 0);
    big = upperFirst > 0;
  }
  std::vector<std::uint32_t> units;
  for (; at + 2 <= bytes.size(); at += 2) {
    const unsigned a = ByteAt(bytes, at), b = ByteAt(bytes, at + 1);
    if (a + b == 0) break;
    units.push_back(big ? a << 8 | b : b << 8 | a);
  }
  std::string out;
  for (std::size_t i = 0; i < units.size(); ++i) {
    const bool isPair = units[i] / 0x400 == 0x36 && i + 1 < units.size() && units[i + 1] / 0x400 == 0x37;
    Utf8(out, isPair ? 0x10000 + (units[i] % 0x400) * 0x400 + units[i + 1] % 0x400 : units[i]);
    if (isPair) ++i;
  }
  return out;
}

std::string FromBytes(std::string bytes) {
  if (bytes.size() >= 2 && (bytes.substr(0, 2) == "\xFF\xFE" || bytes.substr(0, 2) == "\xFE\xFF"))
    return FromUtf16(bytes);
  if (bytes.substr(0, 3) == "\xEF\xBB\xBF") bytes.erase(0, 3);
  std::string out;
  for (const char c : bytes) {
    if (c == 0) break;
    out += c;
  }
  return out;
}

// ---- XMP: one walk over the characters, with the names of the open elements on a stack.

struct Xmp {
  std::string text;
  std::size_t at = 0;
  std::vector<std::string> open;
  std::vector<std::string> texts;
  std::vector<bool> isDefault;
  std::vector<int> numbers;  // in the order of the start tags
  int count = 0;
  int noted = 0;
  struct Collected {
    std::vector<std::string> plain, items, defaults;
  };
  // Of every element of a picture's description, by its whole name; chosen when the prefixes are known.
  std::map<std::string, Collected> properties;
  std::set<std::string> prefixes;

  static std::string local(const std::string& name) {
    const std::size_t colon = name.find(':');
    return colon == std::string::npos ? name : name.substr(colon + 1);
  }

  // The depth of the description of the picture around or at the element of a depth, which is its index.
  bool isDescription(std::size_t depth) const {
    return depth >= 1 && depth < open.size() && local(open[depth]) == "Description" &&
           local(open[depth - 1]) == "RDF";
  }

  bool skip(const std::string& begin, const std::string& end) {
    if (text.compare(at, begin.size(), begin) != 0) return false;
    const std::size_t found = text.find(end, at + begin.size());
    at = found == std::string::npos ? text.size() : found + end.size();
    return true;
  }

  static std::string resolve(const std::string& raw) {
    std::string out;
    for (std::size_t i = 0; i < raw.size(); ++i) {
      const std::size_t end = raw.find(';', i);
      if (raw[i] != '&' || end == std::string::npos || end - i > 11) {
        out += raw[i];
        continue;
      }
      const std::string name = raw.substr(i + 1, end - i - 1);
      static const std::map<std::string, std::string> known = {
          {"amp", "&"}, {"lt", "<"}, {"gt", ">"}, {"quot", "\""}, {"apos", "'"}};
      std::string value;
      if (known.contains(name)) {
        value = known.at(name);
      } else if (name.size() > 1 && name[0] == '#') {
        const bool hex = name[1] == 'x';
        const std::string digits = name.substr(hex ? 2 : 1);
        const char* allowed = hex ? "0123456789abcdefABCDEF" : "0123456789";
        if (!digits.empty() && digits.find_first_not_of(allowed) == std::string::npos) {
          const unsigned long long number = std::stoull(digits, nullptr, hex ? 16 : 10);
          if (number > 0 && number < 0x110000 && (number < 0xD800 || number > 0xDFFF))
            Utf8(value, static_cast<std::uint32_t>(number));
        }
      }
      if (value.empty()) {
        out += raw[i];
      } else {
        out += value;
        i = end;
      }
    }
    return out;
  }

  static std::map<std::string, std::vector<std::string>> attributesOf(
      std::string inside, std::vector<std::pair<std::string, std::string>>* order) {
    std::map<std::string, std::vector<std::string>> found;
    const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
    std::size_t i = 0;
    while (true) {
      const std::size_t equals = inside.find('=', i);
      if (equals == std::string::npos) return found;
      std::size_t begin = i, end = equals;
      while (begin < end && blank(inside[begin])) ++begin;
      while (end > begin && blank(inside[end - 1])) --end;
      std::size_t quote = equals + 1;
      while (quote < inside.size() && blank(inside[quote])) ++quote;
      if (quote >= inside.size() || (inside[quote] != '"' && inside[quote] != '\'')) return found;
      const std::size_t close = inside.find(inside[quote], quote + 1);
      if (close == std::string::npos) return found;
      const std::string name = inside.substr(begin, end - begin),
                        value = inside.substr(quote + 1, close - quote - 1);
      found[name].push_back(value);
      order->push_back({name, value});
      i = close + 1;
    }
  }

  void begin(const std::string& name, const std::string& inside) {
    std::vector<std::pair<std::string, std::string>> order;
    const auto attributes = attributesOf(inside, &order);
    for (const auto& [attribute, value] : order) {
      if (attribute.rfind("xmlns:", 0) == 0 && value == "http://purl.org/dc/elements/1.1/")
        prefixes.insert(attribute.substr(6));
    }
    open.push_back(name);
    texts.emplace_back();
    numbers.push_back(count++);
    bool byDefault = false;
    if (attributes.contains("xml:lang")) {
      for (const std::string& language : attributes.at("xml:lang"))
        byDefault = byDefault || language == "x-default";
    }
    isDefault.push_back(byDefault);
    if (!isDescription(open.size() - 1)) return;
    for (const auto& [attribute, value] : order) note(attribute, resolve(value), 0, numbers.back());
  }

  // Values have the number of their element in front, so that those of several names can be put into order.
  void note(const std::string& property, const std::string& value, int kind, int number) {
    if (!SaysSomething(value)) return;
    char order[32];
    std::snprintf(order, sizeof(order), "%08d%08d", number, noted++);
    Collected& into = properties[property];
    (kind == 0 ? into.plain : kind == 1 ? into.items : into.defaults).push_back(order + value);
  }

  void end() {
    if (open.empty()) return;
    const std::size_t depth = open.size() - 1;
    if (isDescription(depth == 0 ? 0 : depth - 1)) note(open[depth], texts[depth], 0, numbers[depth]);
    if (local(open[depth]) == "li" && depth >= 3 && isDescription(depth - 3))
      note(open[depth - 2], texts[depth], isDefault[depth] ? 2 : 1, numbers[depth]);
    open.pop_back();
    texts.pop_back();
    numbers.pop_back();
    isDefault.pop_back();
  }

  void walk() {
    while (at < text.size()) {
      if (text[at] != '<') {
        const std::size_t next = std::min(text.find('<', at), text.size());
        if (!open.empty()) texts.back() += resolve(text.substr(at, next - at));
        at = next;
        continue;
      }
      if (skip("<!--", "-->") || skip("<?", "?>")) continue;
      if (text.compare(at, 9, "<![CDATA[") == 0) {
        const std::size_t end = std::min(text.find("]]>", at + 9), text.size());
        if (!open.empty()) texts.back() += text.substr(at + 9, end - at - 9);
        at = std::min(end + 3, text.size());
        continue;
      }
      if (skip("<!", ">")) continue;
      std::size_t end = at;
      for (char quote = 0; end < text.size() && (quote != 0 || text[end] != '>'); ++end) {
        if (quote != 0) {
          if (text[end] == quote) quote = 0;
        } else if (text[end] == '"' || text[end] == '\'') {
          quote = text[end];
        }
      }
      if (end >= text.size()) return;
      std::string inside = text.substr(at + 1, end - at - 1);
      at = end + 1;
      if (!inside.empty() && inside[0] == '/') {
        this->end();
        continue;
      }
      const bool isEmpty = !inside.empty() && inside.back() == '/';
      if (isEmpty) inside.pop_back();
      const std::size_t blank = std::min(inside.find_first_of(" \t\r\n"), inside.size());
      begin(inside.substr(0, blank), inside.substr(blank));
      if (isEmpty) this->end();
    }
  }

  std::string chosen(const std::string& wanted) const {
    std::multiset<std::string> plain, items, defaults;  // by their numbers
    for (const auto& [name, collected] : properties) {
      const std::size_t colon = name.find(':');
      if (colon == std::string::npos || !prefixes.contains(name.substr(0, colon)) ||
          name.substr(colon + 1) != wanted)
        continue;
      plain.insert(collected.plain.begin(), collected.plain.end());
      items.insert(collected.items.begin(), collected.items.end());
      defaults.insert(collected.defaults.begin(), collected.defaults.end());
    }
    for (const auto* some : {&defaults, &items, &plain}) {
      if (!some->empty()) return some->begin()->substr(16);
    }
    return "";
  }
};

void ReadXmp(const std::string& packet, Found& found) {
  Xmp xmp;
  const std::string start = packet.substr(0, 2);
  const bool isWide = start == "\xFF\xFE" || start == "\xFE\xFF" || start == std::string("<\0", 2) ||
                      start == std::string("\0<", 2);
  xmp.text = isWide ? FromUtf16(packet) : packet;
  xmp.walk();
  Keep(found.xmpTitle, xmp.chosen("title"));
  Keep(found.xmpDescription, xmp.chosen("description"));
}

// ---- Exif

struct Tiff {
  std::string_view bytes;
  bool big = false;

  std::uint32_t number(std::size_t at, int width) const {
    std::uint32_t value = 0;
    for (int i = 0; i < width; ++i) {
      const std::uint32_t byte = ByteAt(bytes, at + static_cast<std::size_t>(i));
      value += byte << (8 * (big ? width - 1 - i : i));
    }
    return value;
  }

  // The places of the entries, the first of each tag. An entry without its whole tag ends the directory.
  std::map<unsigned, std::size_t> directory(std::size_t at) const {
    std::map<unsigned, std::size_t> entries;
    try {
      const unsigned count = number(at, 2);
      for (std::size_t i = 0; i < count; ++i) entries.insert({number(at + 2 + 12 * i, 2), at + 2 + 12 * i});
    } catch (const OutOfBytes&) {
    }
    return entries;
  }

  std::string text(const std::map<unsigned, std::size_t>& entries, unsigned tag) const {
    try {
      const std::size_t entry = entries.at(tag);
      const unsigned type = number(entry + 2, 2);
      if (type != 1 && type != 2 && type != 7 && type != 129) return "";
      const std::size_t count = number(entry + 4, 4);
      if (count > 65533) return "";
      const std::size_t at = count > 4 ? number(entry + 8, 4) : entry + 8;
      if (count > 0) ByteAt(bytes, at + count - 1);
      return count > 0 ? std::string(bytes.substr(at, count)) : "";
    } catch (const OutOfBytes&) {
      return "";
    } catch (const std::out_of_range&) {
      return "";
    }
  }
};

std::string GoodMoment(const std::string& text) {
  if (text.size() < 19) return "";
  std::vector<int> numbers;
  for (const auto& part : {text.substr(0, 4), text.substr(5, 2), text.substr(8, 2), text.substr(11, 2),
                           text.substr(14, 2), text.substr(17, 2)}) {
    if (part.find_first_not_of("0123456789") != std::string::npos) return "";
    numbers.push_back(std::stoi(part));
  }
  const int year = numbers[0], month = numbers[1], day = numbers[2];
  const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  const int days[] = {0, 31, leap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (year < 1601 || month < 1 || month > 12 || day < 1 || day > days[month]) return "";
  if (numbers[3] > 23 || numbers[4] > 59 || numbers[5] > 59) return "";
  return text;
}

void ReadTiff(std::string_view bytes, Found& found) {
  if (bytes.size() < 2 || bytes[0] != bytes[1] || (bytes[0] != 'I' && bytes[0] != 'M')) return;
  const Tiff tiff{bytes, bytes[0] == 'M'};
  std::map<unsigned, std::size_t> first;
  try {
    if (tiff.number(2, 2) != 42) return;
    first = tiff.directory(tiff.number(4, 4));
  } catch (const OutOfBytes&) {
    return;
  }
  Keep(found.description, FromBytes(tiff.text(first, 0x010E)));
  Keep(found.make, FromBytes(tiff.text(first, 0x010F)));
  Keep(found.model, FromBytes(tiff.text(first, 0x0110)));
  Keep(found.title, FromUtf16(tiff.text(first, 0x9C9B)));
  ReadXmp(tiff.text(first, 0x02BC), found);
  Keep(found.changed, GoodMoment(tiff.text(first, 0x0132)));
  if (!first.contains(0x8769)) return;
  try {
    const std::size_t pointer = first.at(0x8769);
    const unsigned type = tiff.number(pointer + 2, 2);
    if (type != 1 && type != 3 && type != 4) return;
    const auto exif = tiff.directory(tiff.number(pointer + 8, type == 1 ? 1 : type == 3 ? 2 : 4));
    Keep(found.original, GoodMoment(tiff.text(exif, 0x9003)));
    Keep(found.digitized, GoodMoment(tiff.text(exif, 0x9004)));
  } catch (const OutOfBytes&) {
  }
}

void ReadJpeg(std::string_view head, Found& found) {
  const std::string exif("Exif\0\0", 6), xmp("http://ns.adobe.com/xap/1.0/\0", 29);
  try {
    std::size_t at = 2;
    while (ByteAt(head, at) == 0xFF) {
      const unsigned marker = ByteAt(head, at + 1);
      if (marker == 0xFF) {
        at += 1;
      } else if (marker == 1 || (marker >= 0xD0 && marker <= 0xD8)) {
        at += 2;
      } else if (marker == 0 || marker == 0xD9) {
        return;
      } else {
        const std::size_t length = ByteAt(head, at + 2) * 256 + ByteAt(head, at + 3);
        if (length < 2) return;
        const std::string_view content = at + 4 < head.size() ? head.substr(at + 4, length - 2) : "";
        if (marker == 0xE1 && content.substr(0, 6) == exif) ReadTiff(content.substr(6), found);
        if (marker == 0xE1 && content.substr(0, 29) == xmp) ReadXmp(std::string(content.substr(29)), found);
        if (marker == 0xDA) return;
        at += 2 + length;
      }
    }
  } catch (const OutOfBytes&) {
  }
}

// ---- What is made of it

bool IsWordCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || (c & 0x80) != 0;
}

std::string Lower(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
  }
  return text;
}

std::vector<std::string> Words(const std::string& text) {
  std::vector<std::string> words;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!IsWordCharacter(text[i])) continue;
    if (i == 0 || !IsWordCharacter(text[i - 1])) words.emplace_back();
    words.back() += text[i];
  }
  for (std::string& word : words) word = Lower(word);
  return words;
}

std::string Trimmed(const std::string& text) {
  const std::size_t begin = text.find_first_not_of(' ');
  return begin == std::string::npos ? "" : text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

std::string Camera(const Found& found) {
  const std::string make = Trimmed(found.make), model = Trimmed(found.model);
  const std::vector<std::string> ofModel = Words(model);
  if (!ofModel.empty()) {
    for (const std::string& word : Words(make)) {
      if (word == ofModel[0]) return model;
    }
  }
  return make.empty() || model.empty() ? make + model : make + " " + model;
}

bool IsCamerasOwn(const std::string& text, const std::string& make) {
  for (const char c : text) {
    if (c >= 'a' && c <= 'z') return false;
  }
  const auto words = Words(text), ofMake = Words(make);
  return !words.empty() && !ofMake.empty() && words[0] == ofMake[0];
}

}  // namespace

pictures::PictureFacts PlainPictureFacts(std::string_view head) {
  using namespace std::string_view_literals;
  Found found;
  if (head.substr(0, 4) == "II\x2A\0"sv || head.substr(0, 4) == "MM\0\x2A"sv) ReadTiff(head, found);
  if (head.substr(0, 3) == "\xFF\xD8\xFF"sv) ReadJpeg(head, found);
  pictures::PictureFacts facts;
  facts.camera = Camera(found);
  for (const std::string& text : {found.xmpTitle, found.title, found.description, found.xmpDescription}) {
    if (facts.title.empty() && !IsCamerasOwn(text, found.make)) facts.title = text;
  }
  for (const std::string& moment : {found.original, found.digitized, found.changed}) {
    if (facts.date || moment.empty()) continue;
    const auto part = [&](std::size_t at, std::size_t length) {
      return std::stoi(moment.substr(at, length));
    };
    facts.date = os::LocalTime{part(0, 4), part(5, 2), part(8, 2), part(11, 2), part(14, 2), part(17, 2), 0};
  }
  return facts;
}

}  // namespace support

#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "base/errors.h"
#include "base/rounding.h"
#include "base/text.h"

namespace base {

namespace {

bool IsExponentLetter(char c) { return c == 'e' || c == 'E' || c == 'd' || c == 'D'; }

// True when "12.5e3", which lies outside a double's range, is too large for it rather than too small.
bool IsHuge(std::string_view number) {
  const std::size_t mark = std::min(number.find('e'), number.size());
  const std::string_view digits = number.substr(0, mark);
  const std::size_t point = std::min(digits.find('.'), digits.size());
  const std::size_t first = std::min(digits.find_first_of("123456789"), digits.size());
  if (mark == number.size()) return first < point;
  long long exponent = 0;
  const auto [end, error] =
      std::from_chars(number.data() + mark + 1, number.data() + number.size(), exponent);
  if (error == std::errc::result_out_of_range) return number[mark + 1] != '-';
  return exponent + static_cast<long long>(point) > static_cast<long long>(first);
}

// The value of "12.5e3": digits with at most one point and an exponent. Infinity when it is beyond a double.
double DecimalValue(const std::string& number) {
  double value = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (error != std::errc::result_out_of_range) return value;
  return IsHuge(number) ? std::numeric_limits<double>::infinity() : 0;
}

std::optional<unsigned> DigitValue(char c, unsigned base) {
  unsigned value = base;
  if (IsDigit(c)) value = static_cast<unsigned>(c - '0');
  if (AsciiLower(c) >= 'a' && AsciiLower(c) <= 'f') value = static_cast<unsigned>(AsciiLower(c) - 'a') + 10;
  return value < base ? std::optional(value) : std::nullopt;
}

// 16 behind "&H", 8 behind "&O", 0 for any other text.
unsigned PrefixBase(std::string_view text) {
  if (text.size() < 2 || text[0] != '&') return 0;
  const char letter = AsciiLower(text[1]);
  return letter == 'h' ? 16 : letter == 'o' ? 8 : 0;
}

// --- strict ---

// The rest of a text that is still to be read.
class Cursor {
 public:
  explicit Cursor(std::string_view text) : rest_(text) {}

  bool atEnd() const { return rest_.empty(); }
  char peek() const { return rest_.empty() ? '\0' : rest_.front(); }
  char next() {
    const char c = rest_.front();
    rest_.remove_prefix(1);
    return c;
  }
  bool take(char wanted) {
    if (rest_.empty() || rest_.front() != wanted) return false;
    rest_.remove_prefix(1);
    return true;
  }
  bool takeSpace() {
    if (rest_.starts_with("\xC2\xA0")) {  // the no-break space
      rest_.remove_prefix(2);
      return true;
    }
    return take(' ') || take('\t') || take('\n') || take('\v') || take('\f') || take('\r');
  }
  void skipSpace() {
    while (takeSpace()) {
    }
  }
  std::string_view rest() const { return rest_; }

 private:
  std::string_view rest_;
};

// The signs round a number.
struct Marks {
  bool sign = false;
  bool minus = false;
  bool dollar = false;
  bool opened = false;
  bool closed = false;

  bool takeSign(Cursor& cursor) {
    if (sign || (cursor.peek() != '+' && cursor.peek() != '-')) return false;
    sign = true;
    minus = cursor.next() == '-';
    return true;
  }
  bool takeDollar(Cursor& cursor) { return !dollar && (dollar = cursor.take('$')); }
  bool takeOpening(Cursor& cursor) { return !opened && (opened = cursor.take('(')); }
  bool takeClosing(Cursor& cursor) { return opened && !closed && (closed = cursor.take(')')); }
};

void AddDigits(std::string& number, Cursor& cursor, bool commas) {
  while (IsDigit(cursor.peek()) || (commas && !number.empty() && cursor.peek() == ',')) {
    const char c = cursor.next();
    if (c != ',') number += c;
  }
}

// Digits, point, digits and exponent in the form that DecimalValue reads.
std::string StrictDigits(Cursor& cursor) {
  std::string number;
  AddDigits(number, cursor, true);
  bool digits = !number.empty();
  if (!digits) number += '0';
  if (cursor.take('.')) {
    const std::size_t whole = number.size();
    number += '.';
    AddDigits(number, cursor, false);
    digits = digits || number.size() > whole + 1;
    number += '0';
  }
  if (!digits) throw TypeMismatch();
  if (IsExponentLetter(cursor.peek())) {
    cursor.next();
    number += 'e';
    if (cursor.take('-')) {
      number += '-';
    } else {
      cursor.take('+');
    }
    if (!IsDigit(cursor.peek())) throw TypeMismatch();
    AddDigits(number, cursor, false);
  }
  return number;
}

double StrictDecimal(Cursor cursor) {
  Marks marks;
  while (cursor.takeSpace() || marks.takeSign(cursor) || marks.takeDollar(cursor) ||
         marks.takeOpening(cursor)) {
  }
  const std::string number = StrictDigits(cursor);
  while (cursor.takeSpace() || marks.takeSign(cursor) || marks.takeDollar(cursor) ||
         marks.takeClosing(cursor)) {
  }
  if (!cursor.atEnd() || marks.opened != marks.closed) throw TypeMismatch();
  const double value = DecimalValue(number);
  if (!std::isfinite(value)) throw Overflow();
  return marks.minus || marks.opened ? -value : value;
}

// The bits behind "&H" or "&O", or nothing when the text is no such number.
std::optional<std::uint32_t> StrictBits(Cursor cursor) {
  cursor.skipSpace();
  const unsigned radix = PrefixBase(cursor.rest());
  if (radix == 0) return std::nullopt;
  cursor.next();
  cursor.next();
  std::uint64_t bits = 0;
  if (!DigitValue(cursor.peek(), radix)) throw TypeMismatch();
  bool tooWide = false;
  while (const auto digit = DigitValue(cursor.peek(), radix)) {
    cursor.next();
    bits = bits * radix + *digit;
    tooWide = tooWide || bits > 0xFFFFFFFFU;
    bits &= 0xFFFFFFFFU;
  }
  cursor.skipSpace();
  if (!cursor.atEnd()) throw TypeMismatch();
  if (tooWide) throw Overflow();
  return static_cast<std::uint32_t>(bits);
}

// --- lenient ---

std::string WithoutSkipped(std::string_view text) {
  std::string kept;
  for (const char c : text) {
    if (c != ' ' && c != '\t' && c != '\n') kept += c;
  }
  return kept;
}

double LenientBits(std::string_view text, unsigned radix) {
  std::uint32_t bits = 0;
  std::size_t i = 0;
  for (; i < text.size(); ++i) {
    const auto digit = DigitValue(text[i], radix);
    if (!digit) break;
    bits = bits * radix + *digit;
  }
  const bool wide = i < text.size() && text[i] == '&';
  if (bits <= 0xFFFF && !wide) return static_cast<std::int16_t>(bits);
  return static_cast<std::int32_t>(bits);
}

// The part of `text` that is a decimal number, in the form that DecimalValue reads.
std::string LenientDigits(std::string_view text) {
  std::string number = "0";
  std::size_t i = 0;
  const auto addDigits = [&] {
    while (i < text.size() && IsDigit(text[i])) number += text[i++];
  };
  addDigits();
  if (i < text.size() && text[i] == '.') {
    number += text[i++];
    addDigits();
    number += '0';
  }
  if (i >= text.size() || !IsExponentLetter(text[i])) return number;
  std::size_t digits = i + 1;
  const bool sign = digits < text.size() && (text[digits] == '+' || text[digits] == '-');
  if (sign) ++digits;
  if (digits >= text.size() || !IsDigit(text[digits])) return number;
  number += sign && text[digits - 1] == '-' ? "e-" : "e";
  i = digits;
  addDigits();
  return number;
}

template <typename Whole>
Whole Saturated(double value) {
  constexpr double kLeast = std::numeric_limits<Whole>::min();
  constexpr double kGreatest = std::numeric_limits<Whole>::max();
  const double rounded = RoundHalfToEven(value);
  if (rounded <= kLeast) return std::numeric_limits<Whole>::min();
  if (rounded >= kGreatest) return std::numeric_limits<Whole>::max();
  return static_cast<Whole>(rounded);
}

template <typename Real>
std::string RealText(Real value, int digits) {
  if (value == 0) value = 0;  // no sign before a nought
  std::array<char, 64> buffer{};
  const auto written =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, digits);
  return AsciiUpper(std::string_view(buffer.data(), static_cast<std::size_t>(written.ptr - buffer.data())));
}

}  // namespace

std::int32_t StrictInt32(std::string_view text) { return ToInt32(StrictDouble(text)); }

float StrictSingle(std::string_view text) {
  const double value = StrictDouble(text);
  if (std::abs(value) > std::numeric_limits<float>::max()) throw Overflow();
  return static_cast<float>(value);
}

double StrictDouble(std::string_view text) {
  const auto bits = StrictBits(Cursor(text));
  return bits ? static_cast<std::int32_t>(*bits) : StrictDecimal(Cursor(text));
}

bool StrictBoolean(std::string_view text) {
  if (EqualAsciiBlind(text, "True")) return true;
  if (EqualAsciiBlind(text, "False")) return false;
  return StrictDouble(text) != 0;
}

double LeadingNumber(std::string_view text) {
  const std::string kept = WithoutSkipped(text);
  if (const unsigned radix = PrefixBase(kept); radix != 0) {
    return LenientBits(std::string_view(kept).substr(2), radix);
  }
  const bool sign = kept.starts_with('-') || kept.starts_with('+');
  const double value = DecimalValue(LenientDigits(std::string_view(kept).substr(sign ? 1 : 0)));
  const double finite = std::isfinite(value) ? value : std::numeric_limits<double>::max();
  return kept.starts_with('-') && finite != 0 ? -finite : finite;
}

std::int16_t LenientInt16(std::string_view text) { return Saturated<std::int16_t>(LeadingNumber(text)); }

std::int32_t LenientInt32(std::string_view text) {
  const double rounded = RoundHalfToEven(LeadingNumber(text));
  if (rounded > std::numeric_limits<std::int32_t>::max() &&
      rounded <= std::numeric_limits<std::uint32_t>::max()) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(rounded));
  }
  return Saturated<std::int32_t>(rounded);
}

std::string NumberText(std::int32_t value) { return std::to_string(value); }
std::string NumberText(float value) { return RealText(value, 7); }
std::string NumberText(double value) { return RealText(value, 15); }

}  // namespace base

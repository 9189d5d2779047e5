// Numbers out of any text, strictly and leniently; any numbers as text and back.
//
// Input: one text; its first bytes are numbers as well.
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <limits>
#include <locale>
#include <optional>
#include <string>

#include "base/errors.h"
#include "base/number_text.h"
#include "base/rounding.h"
#include "fuzz/input.h"
#include "fuzz/require.h"

namespace {

// The point stands between thousands and the comma before decimals.
class ContinentalNumbers final : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

// The number, or nothing where the conversion refuses the text in one of the documented ways.
template <typename Number>
std::optional<Number> Try(Number (*convert)(std::string_view), std::string_view text) {
  try {
    return convert(text);
  } catch (const base::TypeMismatch&) {
    return std::nullopt;
  } catch (const base::Overflow&) {
    return std::nullopt;
  }
}

bool Overflows(std::string_view text) {
  try {
    base::StrictDouble(text);
  } catch (const base::Overflow&) {
    return true;
  } catch (const base::TypeMismatch&) {
    return false;
  }
  return false;
}

// Digits, at most one point with digits on both sides, an exponent: what every reader of numbers agrees on.
bool IsUndisputed(std::string_view text) {
  const auto digits = [&text] {
    const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
    text.remove_prefix(count);
    return count > 0;
  };
  if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
  if (!digits()) return false;
  if (text.starts_with('.')) {
    text.remove_prefix(1);
    if (!digits()) return false;
  }
  if (text.starts_with('e') || text.starts_with('E')) {
    text.remove_prefix(1);
    if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
    if (!digits()) return false;
  }
  return text.empty();
}

void CheckAgainstTheLibrary(const std::string& text) {
  if (!IsUndisputed(text)) return;
  const double expected = std::strtod(text.c_str(), nullptr);
  if (!std::isfinite(expected)) {
    fuzz::Require(Overflows(text), "a number beyond a double overflows");
    fuzz::Require(base::LeadingNumber(text) == std::copysign(std::numeric_limits<double>::max(), expected),
                  "a number beyond a double is the largest one");
    return;
  }
  fuzz::Require(Try(base::StrictDouble, text) == expected, "a plain number is read exactly");
  fuzz::Require(base::LeadingNumber(text) == expected, "a plain number is read exactly, leniently too");
}

void CheckStrict(std::string_view text) {
  const auto real = Try(base::StrictDouble, text);
  const auto single = Try(base::StrictSingle, text);
  const auto wide = Try(base::StrictInt32, text);
  fuzz::Require(!real || std::isfinite(*real), "a strict number is finite");
  fuzz::Require(!single || std::isfinite(*single), "a strict single is finite");
  fuzz::Require(real || (!single && !wide), "what is no number is none of any type");
  fuzz::Require(!wide || *wide == base::RoundHalfToEven(*real), "a whole number is the rounded one");
  const auto isTrue = Try(base::StrictBoolean, text);
  fuzz::Require(!real || isTrue == (*real != 0), "every number but 0 is true");
}

void CheckLenient(std::string_view text) {
  const double number = base::LeadingNumber(text);
  fuzz::Require(std::isfinite(number), "a leading number is finite");
  const double rounded = base::RoundHalfToEven(number);
  const std::int16_t narrow = base::LenientInt16(text);
  fuzz::Require(narrow == std::min(std::max(rounded, -32768.0), 32767.0), "16 bits end at their range");
  const std::int32_t wide = base::LenientInt32(text);
  const bool isHandle = rounded > 2147483647.0 && rounded <= 4294967295.0;
  fuzz::Require(isHandle ? static_cast<std::uint32_t>(wide) == rounded
                         : wide == std::min(std::max(rounded, -2147483648.0), 2147483647.0),
                "32 bits end at their range, and window handles keep their bits");
  fuzz::Require(base::LeadingNumber(" " + std::string(text)) == number, "blanks are skipped");
}

// A number's text has all the digits it shows: read and written again it is the same.
template <typename Real>
void CheckWriting(Real value, Real (*convert)(std::string_view)) {
  if (!std::isfinite(value)) return;
  const std::string text = base::NumberText(value);
  const std::optional<Real> read = Try(convert, text);
  if (!read) {
    fuzz::Require(std::abs(value) > std::numeric_limits<Real>::max() * Real(0.9999),
                  "written numbers are numbers");
    return;
  }
  fuzz::Require(base::NumberText(*read) == text, "a number's text is kept");
  fuzz::Require(text.find(',') == std::string::npos, "the point is the decimal sign");
}

void CheckNumbers(std::string_view bytes) {
  const auto whole = fuzz::FromBytes<std::int32_t>(bytes);
  fuzz::Require(base::StrictInt32(base::NumberText(whole)) == whole, "whole numbers come back");
  fuzz::Require(base::LenientInt32(base::NumberText(whole)) == whole, "whole numbers come back leniently");
  CheckWriting(fuzz::FromBytes<double>(bytes), base::StrictDouble);
  CheckWriting(fuzz::FromBytes<float>(bytes), base::StrictSingle);
}

// A plain number made of the bytes, in one of the dresses that the strict reading takes, or in a broken one.
void CheckDress(std::string_view bytes) {
  std::string digits = "1";
  for (const char byte : bytes.substr(0, 12)) {
    digits += static_cast<char>('0' + static_cast<unsigned char>(byte) % 10);
  }
  const std::string whole = digits.substr(0, 1 + digits.size() / 2);
  const std::string number = whole + '.' + digits.substr(whole.size()) + '0';
  const double value = std::strtod(number.c_str(), nullptr);
  struct Dress {
    const char* before;
    const char* behind;
    int sign;  // 0: no number
  };
  constexpr Dress kDresses[] = {
      {" \t", "\r\n", 1}, {"+", "", 1},   {"", "+", 1},   {"$", "", 1},       {"", "$", 1},  {"+ $", "", 1},
      {"1,", "", 2},      {"", "e0", 1},  {"", "D+0", 1}, {"", "d-00", 1},    {"-", "", -1}, {"", "-", -1},
      {"(", ")", -1},     {"-$", "", -1}, {"$-", "", -1}, {" ( ", " ) ", -1}, {"--", "", 0}, {"-", "-", 0},
      {"(", "", 0},       {"", ")", 0},   {"$", "$", 0},  {"", "x", 0},       {"", ".1", 0}, {"", " 1", 0},
      {"", "e", 0},       {",", "", 0},   {"&H", "", 0},  {"", "%", 0},
  };
  const std::size_t chosen =
      bytes.empty() ? 0 : static_cast<unsigned char>(bytes.back()) % std::size(kDresses);
  const Dress& dress = kDresses[chosen];
  const auto read = Try(base::StrictDouble, dress.before + number + dress.behind);
  if (dress.sign == 2) {
    fuzz::Require(read == std::strtod(("1" + number).c_str(), nullptr), "commas between digits mean nothing");
  } else if (dress.sign == 0) {
    fuzz::Require(!read, "what is more than a number is none");
  } else {
    fuzz::Require(read == value * dress.sign, "a number is the same in every dress");
  }
}

void CheckAll(std::string_view bytes) {
  CheckStrict(bytes);
  CheckLenient(bytes);
  CheckAgainstTheLibrary(std::string(bytes));
  CheckNumbers(bytes);
  CheckDress(bytes);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::locale continental(std::locale::classic(), new ContinentalNumbers);
  const std::string_view text = fuzz::Text(data, size);
  std::locale::global(std::locale::classic());
  CheckAll(text);
  const auto strict = Try(base::StrictDouble, text);
  const double lenient = base::LeadingNumber(text);
  const std::string written = base::NumberText(lenient);
  std::locale::global(continental);
  CheckAll(text);
  fuzz::Require(Try(base::StrictDouble, text) == strict && base::LeadingNumber(text) == lenient &&
                    base::NumberText(lenient) == written,
                "numbers are the same in every locale");
  return 0;
}

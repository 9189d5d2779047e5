// Numbers as text: strict and lenient reading, and writing.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace base {

// Strict reading. The forms are those that the platform's automation conversions take in the American locale,
// and the point is the decimal sign in every locale: white space at both ends, one sign before or behind the
// number, brackets or a minus for a negative one ("(12)", "12-"), one "$" before or behind, commas between
// the digits of the whole part ("1,234"), an exponent with e or d ("1e3", "1d3"), "&H10" and "&O17" by
// themselves. Anything else throws TypeMismatch; a number outside the type's range throws Overflow. Whole
// numbers are rounded half to even before their range is looked at. "&HFFFF" is 65535,
// "&HFFFFFFFF" is -1.
std::int32_t StrictInt32(std::string_view text);
float StrictSingle(std::string_view text);
double StrictDouble(std::string_view text);

// The words True and False in any case, or a strict number, of which 0 alone is false.
bool StrictBoolean(std::string_view text);

// Lenient reading: the number at the front of the text, 0 when there is none. Blanks, tabs and line feeds are
// skipped everywhere, also between digits; the point is the decimal sign; the exponent letter is e or d, and
// a letter without digits behind it ends the number. "&H" and "&O" numbers are 16 bits wide up to &HFFFF
// (which is -1; a closing "&" makes it 65535) and 32 bits wide above; what lies above those is lost. A number
// beyond the range of a double gives the largest one with its sign. Never throws.
double LeadingNumber(std::string_view text);

// The leading number rounded half to even. One out of range gives the end of the range that lies nearer.
std::int16_t LenientInt16(std::string_view text);

// As above; but a number from 2147483648 to 4294967295 gives the value with the same 32 bits, because the
// system writes its window handles as unsigned numbers.
std::int32_t LenientInt32(std::string_view text);

// The shortest usual text: 7 significant digits for a single, 15 for a double (12, 8.25, 1E+15, 1E-05).
std::string NumberText(std::int32_t value);
std::string NumberText(float value);
std::string NumberText(double value);

}  // namespace base

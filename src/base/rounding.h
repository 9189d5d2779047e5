// Whole-number rules of the program's arithmetic: rounding with halves to even, truncation, division.
#pragma once

#include <cstdint>

namespace base {

// The nearest whole number, halves to the even neighbour (0.5 -> 0, 1.5 -> 2, -2.5 -> -2).
double RoundHalfToEven(double value);

// Rounded half to even into 16 or 32 bits. Throw Overflow outside the range (and for NaN).
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);

// Truncated toward zero.
double Fix(double value);

// The greatest whole number not above value.
double Int(double value);

// Whole-number division: each operand rounded half to even to 32 bits, the quotient truncated toward zero.
// Throws Overflow when an operand or the quotient does not fit, or when the divisor rounds to 0.
std::int32_t WholeDivide(double dividend, double divisor);

// The product in 32 bits. Throws Overflow when it does not fit.
std::int32_t MultiplyInt32(std::int32_t a, std::int32_t b);

}  // namespace base

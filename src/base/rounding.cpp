#include "base/rounding.h"

#include <cfloat>
#include <cmath>
#include <limits>

#include "base/errors.h"

namespace base {

// A product of two singles is a single. Where the compiler carries more digits from step to step, a picture
// of 1050 pixels at 15 percent gets another size than everywhere else.
static_assert(FLT_EVAL_METHOD == 0,
              "single-precision arithmetic must be rounded at every step (-mfpmath=sse)");

double RoundHalfToEven(double value) {
  const double floor = std::floor(value);
  const double rest = value - floor;
  if (rest < 0.5) return floor;
  if (rest > 0.5) return floor + 1;
  return std::fmod(floor, 2.0) == 0.0 ? floor : floor + 1;
}

namespace {

template <typename Whole>
Whole ToWhole(double value) {
  const double rounded = RoundHalfToEven(value);
  if (!(rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max())) {
    throw Overflow();
  }
  return static_cast<Whole>(rounded);
}

}  // namespace

std::int16_t ToInt16(double value) { return ToWhole<std::int16_t>(value); }

std::int32_t ToInt32(double value) { return ToWhole<std::int32_t>(value); }

double Fix(double value) { return std::trunc(value); }

double Int(double value) { return std::floor(value); }

std::int32_t WholeDivide(double dividend, double divisor) {
  const std::int64_t a = ToInt32(dividend);
  const std::int64_t b = ToInt32(divisor);
  if (b == 0) throw Overflow();
  const std::int64_t quotient = a / b;
  return ToInt32(static_cast<double>(quotient));
}

std::int32_t MultiplyInt32(std::int32_t a, std::int32_t b) {
  const std::int64_t product = static_cast<std::int64_t>(a) * b;
  if (product < std::numeric_limits<std::int32_t>::min() ||
      product > std::numeric_limits<std::int32_t>::max()) {
    throw Overflow();
  }
  return static_cast<std::int32_t>(product);
}

}  // namespace base

#include "base/random.h"

#include <bit>

namespace base {

namespace {

constexpr std::uint32_t kMask = 0xFFFFFF;

std::uint32_t Step(std::uint32_t state) { return (state * 16598013U + 12820163U) & kMask; }

}  // namespace

float Random::next() {
  state_ = Step(state_);
  return static_cast<float>(state_) / 16777216.0F;
}

void Random::reseed(float secondsSinceMidnight) {
  // The number of reseeds goes in as well, so that a standing clock cannot lead round a short cycle.
  const std::uint32_t bits = std::bit_cast<std::uint32_t>(secondsSinceMidnight) + ++reseeds_ * 0x9E3779B9U;
  state_ = Step(state_ ^ ((bits ^ (bits >> 16)) & kMask));
}

}  // namespace base

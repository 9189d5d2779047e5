// How a fuzzer says that a property does not hold.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace fuzz {

// Ends the program, so that the fuzzer keeps the input; `property` is a sentence.
inline void Require(bool holds, std::string_view property) {
  if (holds) return;
  std::fprintf(stderr, "broken property: %.*s\n", static_cast<int>(property.size()), property.data());
  std::abort();
}

}  // namespace fuzz

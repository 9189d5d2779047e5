// Names in the order in which people sort them: 2 before 10.
#pragma once

#include <string_view>

namespace base {

// Below, at or above 0 as `a` comes before, with or after `b`. Runs of digits count as numbers, letters A to
// Z as a to z; only texts that are equal letter for letter give 0.
int CompareNaturally(std::string_view a, std::string_view b);

// True for a text that comes before another however people sort: up to where they differ they are the same
// but for the case of A to Z, and there each has a number, of as many digits as the other's. False for all
// others, of which nothing is said.
bool IsNumberedBefore(std::string_view a, std::string_view b);

}  // namespace base

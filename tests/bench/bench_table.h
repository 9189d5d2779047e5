// The benchmark's table: each figure as a ratio against a reference measured in the same run.
#pragma once

#include <functional>
#include <string>

namespace bench {

// Milliseconds of one call: the median of five.
double MedianMs(const std::function<void()>& work);

// Prints one row. `bar` says in words what the ratio should be.
void PrintRow(const std::string& work, const std::string& reference, double ratio, const std::string& bar);

}  // namespace bench

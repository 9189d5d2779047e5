// The benchmark's table: each figure as a ratio against a reference measured in the same run.
#pragma once

#include <functional>
#include <string>

namespace bench {

// A clock for short times.
double NowMs();

// Milliseconds of one call: the median of five.
double MedianMs(const std::function<void()>& work);

// How many times as long `work` takes as `reference`: medians of so many runs of each, taken in turns, so
// that whatever slows the machine for a while slows both. What is done before each run of the work does not
// count.
double TimeRatio(
    const std::function<void()>& work, const std::function<void()>& reference,
    const std::function<void()>& before = [] {}, int runs = 7);

// Prints one row. `bar` says in words what the ratio should be.
void PrintRow(const std::string& work, const std::string& reference, double ratio, const std::string& bar);

}  // namespace bench

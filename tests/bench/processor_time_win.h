// What a process has taken of the processors.
#pragma once

#include <windows.h>

namespace bench {

// Systems count processor time in steps of this.
constexpr double kProcessorStepMs = 1000.0 / 64;

// Milliseconds of processor time of all its threads so far.
double ProcessorMs(HANDLE process);

}  // namespace bench

// What a program takes of the processors.
#pragma once

#include <windows.h>

namespace bench {

// Systems count processor time in steps, and a span is read at its two ends.
inline constexpr double kProcessorStepMs = 1000.0 / 64;

// Milliseconds of all of a process's threads so far.
double ProcessorMs(HANDLE process);

// The same over a span of time that begins now.
double ProcessorMsWithin(HANDLE process, int spanMs);

// Waits until the process has done nothing for a second, for half a minute at most.
void AwaitRest(HANDLE process);

}  // namespace bench

#include "bench/processor_time_win.h"

#include <winternl.h>

#include <cstddef>
#include <cstring>
#include <vector>

#include "e2e/running_program.h"

namespace bench {

namespace {

constexpr auto kProcesses = static_cast<SYSTEM_INFORMATION_CLASS>(5);
constexpr LONG kTooSmall = static_cast<LONG>(0xC0000004);

// The head of each process's entry in the system's list, as the platform documents its layout.
struct ProcessEntry {
  ULONG nextEntry;
  ULONG threads;
  LARGE_INTEGER reserved[3];
  LARGE_INTEGER created;
  LARGE_INTEGER user;  // in units of 100 ns
  LARGE_INTEGER kernel;
  UNICODE_STRING name;
  LONG priority;
  HANDLE id;
};

std::vector<std::byte> ReadProcesses() {
  std::vector<std::byte> list(1 << 18);
  ULONG length = 0;
  while (NtQuerySystemInformation(kProcesses, list.data(), static_cast<ULONG>(list.size()), &length) ==
         kTooSmall) {
    list.resize(list.size() * 2);
  }
  return list;
}

}  // namespace

// From the list of all processes: asked by a handle, some systems tell of none but the one that asks.
double ProcessorMs(HANDLE process) {
  const auto id = static_cast<ULONG_PTR>(GetProcessId(process));
  const std::vector<std::byte> list = ReadProcesses();
  for (std::size_t at = 0;;) {
    ProcessEntry entry{};
    std::memcpy(&entry, list.data() + at, sizeof(entry));
    if (reinterpret_cast<ULONG_PTR>(entry.id) == id) {
      return static_cast<double>(entry.user.QuadPart + entry.kernel.QuadPart) / 10'000;
    }
    if (entry.nextEntry == 0) return 0;
    at += entry.nextEntry;
  }
}

double ProcessorMsWithin(HANDLE process, int spanMs) {
  const double before = ProcessorMs(process);
  const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(spanMs);
  e2e::WaitFor([&] { return GetTickCount64() >= end; }, spanMs + 1000);
  return ProcessorMs(process) - before;
}

void AwaitRest(HANDLE process) {
  constexpr int kLookMs = 1000;
  constexpr int kMostLooks = 30;
  for (int look = 0; look < kMostLooks; ++look) {
    if (ProcessorMsWithin(process, kLookMs) == 0) return;
  }
}

}  // namespace bench

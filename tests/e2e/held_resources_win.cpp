#include "e2e/held_resources_win.h"

#include <winternl.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace e2e {

namespace {

struct GdiTableEntry {
  ULONGLONG object;
  USHORT owner;
  USHORT generation;
  USHORT unique;
  UCHAR type;  // 0 = free
  UCHAR flags;
  ULONGLONG userPointer;
};
static_assert(sizeof(GdiTableEntry) == 24);

constexpr std::size_t kGdiTableInPeb = 0xF8;  // of a 64-bit process
constexpr std::size_t kGdiTableEntries = 0x4000;

DWORD CountGdiTable(HANDLE process) {
  PROCESS_BASIC_INFORMATION basic{};
  if (NtQueryInformationProcess(process, ProcessBasicInformation, &basic, sizeof(basic), nullptr) != 0)
    return 0;
  const char* table = nullptr;
  SIZE_T got = 0;
  const auto* peb = reinterpret_cast<const char*>(basic.PebBaseAddress);
  if (!ReadProcessMemory(process, peb + kGdiTableInPeb, &table, sizeof(table), &got)) return 0;
  std::vector<GdiTableEntry> entries(kGdiTableEntries);
  if (!ReadProcessMemory(process, table, entries.data(), entries.size() * sizeof(GdiTableEntry), &got))
    return 0;
  return static_cast<DWORD>(std::count_if(entries.begin(), entries.end(),
                                          [](const GdiTableEntry& entry) { return entry.type != 0; }));
}

DWORD CountWindows(DWORD processId) {
  std::pair<DWORD, DWORD> search{processId, 0};
  EnumWindows(
      [](HWND window, LPARAM data) CALLBACK -> BOOL {
        auto& [wanted, count] = *reinterpret_cast<std::pair<DWORD, DWORD>*>(data);
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == wanted) ++count;
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.second;
}

// Memory and kernel handles, from the system's list of processes.
void ReadProcessEntry(DWORD processId, HeldResources& held) {
  std::vector<char> list(1U << 20);
  if (NtQuerySystemInformation(SystemProcessInformation, list.data(), static_cast<ULONG>(list.size()),
                               nullptr) != 0)
    return;
  for (std::size_t at = 0;;) {
    const auto* entry = reinterpret_cast<const SYSTEM_PROCESS_INFORMATION*>(list.data() + at);
    if (reinterpret_cast<ULONG_PTR>(entry->UniqueProcessId) == processId) {
      held.kernelHandles = entry->HandleCount;
      held.privateBytes = entry->VirtualMemoryCounters.PagefileUsage;
    }
    if (entry->NextEntryOffset == 0) return;
    at += entry->NextEntryOffset;
  }
}

}  // namespace

HeldResources ReadHeldResources(HANDLE process, DWORD processId) {
  HeldResources held;
  ReadProcessEntry(processId, held);
  held.gdiObjects = GetGuiResources(process, GR_GDIOBJECTS);
  if (held.gdiObjects == 0) held.gdiObjects = CountGdiTable(process);
  held.userObjects = GetGuiResources(process, GR_USEROBJECTS);
  if (held.userObjects == 0) held.userObjects = CountWindows(processId);
  return held;
}

}  // namespace e2e

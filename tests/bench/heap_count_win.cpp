#include "bench/heap_count_win.h"

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long long> held{0};
std::atomic<long long> peak{0};

void* Take(std::size_t size) {
  void* block = std::malloc(size);
  if (!block) return nullptr;
  const long long now = held += static_cast<long long>(_msize(block));
  peak = std::max(peak.load(), now);
  return block;
}

void GiveBack(void* block) {
  if (!block) return;
  held -= static_cast<long long>(_msize(block));
  std::free(block);
}

}  // namespace

void* operator new(std::size_t size) {
  if (void* block = Take(size)) return block;
  throw std::bad_alloc();
}
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete(void* block) noexcept { GiveBack(block); }
void operator delete[](void* block) noexcept { GiveBack(block); }
void operator delete(void* block, std::size_t) noexcept { GiveBack(block); }
void operator delete[](void* block, std::size_t) noexcept { GiveBack(block); }

namespace bench {

long long HeldHeap() { return held; }
long long PeakHeap() { return peak; }
void ResetPeakHeap() { peak = held.load(); }

}  // namespace bench

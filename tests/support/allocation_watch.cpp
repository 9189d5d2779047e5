#include "support/allocation_watch.h"

#ifdef __linux__

#include <algorithm>
#include <atomic>

// Of the sanitizer's allocator interface, whose header g++ does not bring. Absent in a build without it.
extern "C" __attribute__((weak)) int __sanitizer_install_malloc_and_free_hooks(
    void (*allocated)(const volatile void*, std::size_t), void (*freed)(const volatile void*));

namespace support {

namespace {

std::atomic<std::size_t> largestPiece{0};
std::atomic<bool> watching{false};

void Allocated(const volatile void*, std::size_t size) {
  if (watching) largestPiece = std::max(largestPiece.load(), size);
}

void Freed(const volatile void*) {}

}  // namespace

AllocationWatch::AllocationWatch() {
  static const int hooks = __sanitizer_install_malloc_and_free_hooks
                               ? __sanitizer_install_malloc_and_free_hooks(Allocated, Freed)
                               : 0;
  largestPiece = 0;
  watching = hooks != 0;
}

AllocationWatch::~AllocationWatch() { watching = false; }

std::size_t AllocationWatch::largest() const { return largestPiece; }

}  // namespace support

#endif

// The largest piece of memory that was asked for, seen through the address sanitizer.
#pragma once

#include <cstddef>

namespace support {

// Watches from its making to its end; one at a time. Only in builds with the sanitizer, as all native ones
// are.
class AllocationWatch {
 public:
  AllocationWatch();
  ~AllocationWatch();
  AllocationWatch(const AllocationWatch&) = delete;
  AllocationWatch& operator=(const AllocationWatch&) = delete;

  // Bytes of the largest piece so far.
  std::size_t largest() const;
};

}  // namespace support

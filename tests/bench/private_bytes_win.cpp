#include "bench/private_bytes_win.h"

#include <windows.h>

namespace bench {

double PrivateBytes() {
  double bytes = 0;
  MEMORY_BASIC_INFORMATION block{};
  for (const char* at = nullptr; VirtualQuery(at, &block, sizeof(block)) == sizeof(block);) {
    if (block.State == MEM_COMMIT && block.Type == MEM_PRIVATE)
      bytes += static_cast<double>(block.RegionSize);
    at = static_cast<const char*>(block.BaseAddress) + block.RegionSize;
  }
  return bytes;
}

}  // namespace bench

#include "fuzz/oracles/naive_lzw.h"

#include <algorithm>
#include <cstddef>

namespace fuzz {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kMostCodes = 4096;

}  // namespace

Bytes NaiveLzw(int minimumCodeSize, std::string_view data, std::size_t limit) {
  const std::size_t clear = std::size_t{1} << minimumCodeSize;
  // The strings of the codes behind the clear code and the end code; those before them are a byte each.
  std::vector<Bytes> table;
  const std::size_t first = clear + 2;
  int codeSize = minimumCodeSize + 1;
  Bytes previous;
  Bytes out;
  std::size_t bit = 0;
  while (out.size() < limit && bit + static_cast<std::size_t>(codeSize) <= data.size() * 8) {
    std::size_t code = 0;
    for (int i = 0; i < codeSize; ++i, ++bit) {
      const auto byte = static_cast<unsigned char>(data[bit / 8]);
      code |= static_cast<std::size_t>(byte >> (bit % 8) & 1) << i;
    }
    if (code == clear) {
      table.clear();
      codeSize = minimumCodeSize + 1;
      previous.clear();
      continue;
    }
    if (code == clear + 1) break;
    Bytes string;
    if (code < clear) {
      string = {static_cast<std::uint8_t>(code)};
    } else if (code < first + table.size()) {
      string = table[code - first];
    } else if (code == first + table.size() && !previous.empty()) {
      string = previous;
      string.push_back(previous.front());
    } else {
      break;
    }
    if (!previous.empty() && first + table.size() < kMostCodes) {
      previous.push_back(string.front());
      table.push_back(previous);
    }
    if (first + table.size() >= std::size_t{1} << codeSize && codeSize < 12) ++codeSize;
    out.insert(out.end(), string.begin(), string.end());
    previous = string;
  }
  out.resize(std::min(out.size(), limit));
  return out;
}

}  // namespace fuzz

// The codes of a GIF file's pixels, decoded in the plainest way: bit by bit, with whole strings in the table.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace fuzz {

// What `data` gives up to the first `limit` bytes, the end code or a code that cannot be. `minimumCodeSize`:
// 1 to 11.
std::vector<std::uint8_t> NaiveLzw(int minimumCodeSize, std::string_view data, std::size_t limit);

}  // namespace fuzz

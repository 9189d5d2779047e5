// The calls that fakes of different seams were given, in one order.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace support {

struct CallLog {
  std::vector<std::string> calls;

  void add(std::string call) { calls.push_back(std::move(call)); }
  void clear() { calls.clear(); }

  std::size_t count(const std::string& call) const {
    return static_cast<std::size_t>(std::count(calls.begin(), calls.end(), call));
  }
};

}  // namespace support

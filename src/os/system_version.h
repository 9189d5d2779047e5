// Which family of the system the program runs on.
#pragma once

#include <cstdint>

namespace os {

class SystemVersion {
 public:
  virtual ~SystemVersion() = default;

  // The platform identifier of the version query: kNtFamily (2) or that of an older family.
  // A query that fails gives 0, as a record left untouched would.
  virtual std::int32_t platformId() = 0;
};

}  // namespace os

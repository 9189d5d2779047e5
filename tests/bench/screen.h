// The screen that rows show on.
#pragma once

#include "base/geometry.h"

namespace bench {

inline constexpr base::PixelSize kScreen{1920, 1080};

}  // namespace bench

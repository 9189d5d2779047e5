// The plain colours behind the theme's colour indexes where no window system is asked.
#pragma once

#include "base/color.h"

namespace base {

// The colour itself; for a system colour the classic theme's value.
constexpr PackedColor PlainColor(PackedColor color) {
  if (!IsSystemColor(color)) return color & 0xFFFFFF;
  switch (SystemColorIndex(color)) {
    case 5:  // window background
      return kWhite;
    case 15:  // button face
      return Rgb(240, 240, 240);
    case 22:  // 3-D light
      return Rgb(227, 227, 227);
    default:
      return kBlack;
  }
}

}  // namespace base

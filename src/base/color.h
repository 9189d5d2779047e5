// Packed colours: red + green x 256 + blue x 65536, or a system colour (top bit set, index in the low byte).
#pragma once

#include <cstdint>

namespace base {

using PackedColor = std::int32_t;

constexpr PackedColor Rgb(int red, int green, int blue) { return red + green * 256 + blue * 65536; }
constexpr int RedOf(PackedColor color) { return color & 0xFF; }
constexpr int GreenOf(PackedColor color) { return (color >> 8) & 0xFF; }
constexpr int BlueOf(PackedColor color) { return (color >> 16) & 0xFF; }

// A colour of the user's theme; the index is the platform's (GetSysColor).
constexpr PackedColor SystemColor(int index) {
  return static_cast<PackedColor>(0x80000000U | static_cast<unsigned>(index));
}
constexpr bool IsSystemColor(PackedColor color) { return color < 0; }
constexpr int SystemColorIndex(PackedColor color) { return color & 0xFF; }

constexpr PackedColor kWindowBackground = SystemColor(5);
constexpr PackedColor kButtonFace = SystemColor(15);
constexpr PackedColor kButtonText = SystemColor(18);
constexpr PackedColor kThreeDLight = SystemColor(22);
constexpr PackedColor kBlack = 0;
constexpr PackedColor kWhite = 0xFFFFFF;
constexpr PackedColor kHighlight = 0xFF0000;  // pure blue

// The colour itself; for a system colour the classic theme's value, where no window system is asked.
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

#include "pictures/preview.h"

#include "pictures/dusk_landscape.h"
#include "pictures/night_sky.h"

namespace pictures {

namespace {

constexpr float kPhotoX = 0.545F;  // the photo's middle
constexpr float kPhotoY = 0.415F;
constexpr float kHalfWidth = 0.335F;
constexpr float kHalfHeight = 0.225F;
constexpr float kBorder = 0.022F;
constexpr float kTurn = -0.075F;  // radians

// Distance to a rectangle around (0, 0), 0 and below inside.
float OutsideOf(float x, float y, float halfWidth, float halfHeight) {
  const float dx = std::fabs(x) - halfWidth;
  const float dy = std::fabs(y) - halfHeight;
  return std::hypot(std::max(dx, 0.0F), std::max(dy, 0.0F)) + std::min(std::max(dx, dy), 0.0F);
}

}  // namespace

Canvas PreviewPicture() {
  const Scene behind = PartOf(DuskLandscape(), 0.10F, 0.06F, 0.94F);
  const Scene photo = PartOf(NightSky(), 0.02F, 0.02F, 0.96F);
  const Scene scene = [behind, photo](float x, float y) {
    const float dx = x - kPhotoX - 0.12F;
    const float dy = y - kPhotoY;
    const float px = dx * std::cos(kTurn) + dy * std::sin(kTurn);
    const float py = dy * std::cos(kTurn) - dx * std::sin(kTurn);
    if (OutsideOf(px, py, kHalfWidth, kHalfHeight) <= 0) {
      const Color color =
          photo((px + kHalfWidth) / (2 * kHalfHeight), (py + kHalfHeight) / (2 * kHalfHeight));
      return color * 1.22F;
    }
    if (OutsideOf(px, py, kHalfWidth + kBorder, kHalfHeight + kBorder) <= 0) return Hex(0xFFF6E4);
    const float shadow = OutsideOf(px - 0.014F, py - 0.022F, kHalfWidth + kBorder, kHalfHeight + kBorder);
    return behind(x, y) * (1.0F - 0.60F * std::exp(-std::max(shadow, 0.0F) * 26.0F));
  };
  return Paint(scene, {160, 120}, 5);
}

}  // namespace pictures

#include "pictures/framed_photo.h"

namespace pictures {

namespace {

// Distance to a rectangle around (0, 0), 0 and below inside.
float OutsideOf(float x, float y, float halfWidth, float halfHeight) {
  const float dx = std::fabs(x) - halfWidth;
  const float dy = std::fabs(y) - halfHeight;
  return std::hypot(std::max(dx, 0.0F), std::max(dy, 0.0F)) + std::min(std::max(dx, dy), 0.0F);
}

}  // namespace

Scene WithFramedPhoto(const Scene& behind, const Scene& photo, const PhotoPlace& place) {
  return [behind, photo, place](float x, float y) {
    const float dx = x - place.x;
    const float dy = y - place.y;
    const float px = dx * std::cos(place.turn) + dy * std::sin(place.turn);
    const float py = dy * std::cos(place.turn) - dx * std::sin(place.turn);
    if (OutsideOf(px, py, place.halfWidth, place.halfHeight) <= 0) {
      const Color color = photo((px + place.halfWidth) / (2 * place.halfHeight),
                                (py + place.halfHeight) / (2 * place.halfHeight));
      return color * 1.22F;
    }
    const float outerWidth = place.halfWidth + place.border;
    const float outerHeight = place.halfHeight + place.border;
    if (OutsideOf(px, py, outerWidth, outerHeight) <= 0) return Hex(0xFFF6E4);
    const float shadow = OutsideOf(px - 0.014F, py - 0.022F, outerWidth, outerHeight);
    return behind(x, y) * (1.0F - 0.60F * std::exp(-std::max(shadow, 0.0F) * 26.0F));
  };
}

}  // namespace pictures

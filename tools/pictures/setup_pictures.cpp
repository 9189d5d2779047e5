#include "pictures/setup_pictures.h"

#include "pictures/dusk_landscape.h"
#include "pictures/framed_photo.h"
#include "pictures/night_sky.h"

namespace pictures {

Canvas SetupSidePicture() {
  const Scene behind = PartOf(DuskLandscape(), 0.70F, 0.03F, 0.97F);
  const Scene night = PartOf(NightSky(), 0.10F, 0.02F, 0.96F);
  const Scene dusk = PartOf(DuskLandscape(), 0.25F, 0.10F, 0.85F);
  const PhotoPlace high{
      .x = 0.25F, .y = 0.17F, .halfWidth = 0.165F, .halfHeight = 0.11F, .border = 0.014F, .turn = -0.09F};
  const PhotoPlace low{
      .x = 0.285F, .y = 0.43F, .halfWidth = 0.165F, .halfHeight = 0.11F, .border = 0.014F, .turn = 0.06F};
  return Paint(WithFramedPhoto(WithFramedPhoto(behind, night, high), dusk, low), {164, 314}, 5);
}

Canvas SetupHeadPicture() {
  const base::PixelSize size{150, 57};
  const Scene part = PartOf(DuskLandscape(), 0.05F, 0.28F, 0.52F);
  const float width = static_cast<float>(size.width) / static_cast<float>(size.height);
  return Paint(
      [part, width](float x, float y) {
        return Mix(Hex(0xFFFFFF), part(x, y), Smooth(0.02F, 0.75F, x / width));
      },
      size, 5);
}

}  // namespace pictures

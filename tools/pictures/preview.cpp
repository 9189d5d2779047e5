#include "pictures/preview.h"

#include "pictures/dusk_landscape.h"
#include "pictures/framed_photo.h"
#include "pictures/night_sky.h"

namespace pictures {

Canvas PreviewPicture() {
  const Scene behind = PartOf(DuskLandscape(), 0.10F, 0.06F, 0.94F);
  const Scene photo = PartOf(NightSky(), 0.02F, 0.02F, 0.96F);
  const PhotoPlace place{.x = 0.545F + 0.12F,
                         .y = 0.415F,
                         .halfWidth = 0.335F,
                         .halfHeight = 0.225F,
                         .border = 0.022F,
                         .turn = -0.075F};
  return Paint(WithFramedPhoto(behind, photo, place), {160, 120}, 5);
}

}  // namespace pictures

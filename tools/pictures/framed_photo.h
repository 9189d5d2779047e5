// A photo with a pale border that hangs, a little turned, in front of a scene and throws a shadow on it.
#pragma once

#include "pictures/canvas.h"

namespace pictures {

struct PhotoPlace {
  float x;  // the photo's middle
  float y;
  float halfWidth;
  float halfHeight;
  float border;
  float turn;  // radians
};

Scene WithFramedPhoto(const Scene& behind, const Scene& photo, const PhotoPlace& place);

}  // namespace pictures

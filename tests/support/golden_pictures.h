// The kept pictures of every effect on its way, as rows of letters.
#pragma once

#include <functional>
#include <string>

#include "base/geometry.h"

namespace support {

constexpr base::PixelSize kGoldenSize{60, 48};

// The picture after the steps 0 to `step`, as TextOfPicture() gives it.
using PictureAfterStep = std::function<std::string(int step)>;

// Four moments of an effect in the form of the kept file.
std::string GoldenText(int stepCount, const PictureAfterStep& pictureAfterStep);

// The file of an effect (1 to 8), and what it holds; empty when it cannot be read.
std::string GoldenPath(int effect);
std::string ReadGolden(int effect);

}  // namespace support

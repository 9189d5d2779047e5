#include "support/golden_pictures.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "saver/transitions/effects.h"

namespace support {

std::string GoldenText(int stepCount, const PictureAfterStep& pictureAfterStep) {
  std::ostringstream text;
  for (const int step : {0, stepCount / 3, stepCount * 2 / 3, stepCount - 1}) {
    text << "step " << step + 1 << " of " << stepCount << '\n' << pictureAfterStep(step);
  }
  return text.str();
}

std::string GoldenPath(int effect) {
  std::string name = saver::EffectNumbered(effect).name;
  std::ranges::replace(name, ' ', '-');
  return std::string(LUMORA_SOURCE_DIR) + "/tests/saver/golden/" + name + ".txt";
}

std::string ReadGolden(int effect) {
  std::ifstream file(GoldenPath(effect), std::ios::binary);
  std::ostringstream golden;
  golden << file.rdbuf();
  return golden.str();
}

}  // namespace support

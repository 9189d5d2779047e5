#include "base/orientation.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace base {
namespace {

// A picture of letters, one a pixel.
Bitmap FromText(const std::vector<std::string>& rows) {
  Bitmap picture(PixelSize{static_cast<int>(rows[0].size()), static_cast<int>(rows.size())});
  for (int y = 0; y < picture.size().height; ++y) {
    for (int x = 0; x < picture.size().width; ++x) {
      picture.row(y)[x] = static_cast<Pixel>(rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]);
    }
  }
  return picture;
}

std::vector<std::string> ToText(const Bitmap& picture) {
  std::vector<std::string> rows;
  for (int y = 0; y < picture.size().height; ++y) {
    rows.emplace_back();
    for (int x = 0; x < picture.size().width; ++x) rows.back() += static_cast<char>(picture.at(x, y));
  }
  return rows;
}

// What a camera stores of the upright picture  ABC / DEF  in each of the eight orientations.
const std::vector<std::vector<std::string>> kStored = {
    {"ABC", "DEF"},      // 1: row 0 is the top, column 0 the left side
    {"CBA", "FED"},      // 2: row 0 is the top, column 0 the right side
    {"FED", "CBA"},      // 3: row 0 is the bottom, column 0 the right side
    {"DEF", "ABC"},      // 4: row 0 is the bottom, column 0 the left side
    {"AD", "BE", "CF"},  // 5: row 0 is the left side, column 0 the top
    {"CF", "BE", "AD"},  // 6: row 0 is the right side, column 0 the top
    {"FC", "EB", "DA"},  // 7: row 0 is the right side, column 0 the bottom
    {"DA", "EB", "FC"},  // 8: row 0 is the left side, column 0 the bottom
};

TEST(Orientation, AllEightComeOutUpright) {
  for (int number = 1; number <= 8; ++number) {
    const Bitmap stored = FromText(kStored[static_cast<std::size_t>(number - 1)]);
    const auto orientation = static_cast<Orientation>(number);
    const Bitmap upright = TurnUpright(stored, orientation);
    EXPECT_EQ(ToText(upright), (std::vector<std::string>{"ABC", "DEF"})) << number;
    EXPECT_EQ(UprightSize(stored.size(), orientation), upright.size()) << number;
  }
}

TEST(Orientation, TurningKeepsTheOpaqueMark) {
  for (int number = 1; number <= 8; ++number) {
    Bitmap picture({70, 40}, 0xFF123456U);
    EXPECT_TRUE(TurnUpright(picture, static_cast<Orientation>(number)).isOpaque()) << number;
    picture.setOpaque(false);
    EXPECT_FALSE(TurnUpright(picture, static_cast<Orientation>(number)).isOpaque()) << number;
  }
}

TEST(Orientation, PicturesLargerThanATileAreTurnedWhole) {
  Bitmap picture(PixelSize{101, 67});
  for (int y = 0; y < 67; ++y) {
    for (int x = 0; x < 101; ++x) picture.row(y)[x] = static_cast<Pixel>(y * 1000 + x);
  }
  const Bitmap turned = TurnUpright(picture, Orientation::TurnedLeft);
  ASSERT_EQ(turned.size(), (PixelSize{67, 101}));
  for (int y = 0; y < 101; ++y) {
    for (int x = 0; x < 67; ++x) ASSERT_EQ(turned.at(x, y), static_cast<Pixel>((66 - x) * 1000 + y));
  }
}

TEST(Orientation, AStoredPartTurnedUprightIsThatPartOfTheUprightPicture) {
  for (int number = 1; number <= 8; ++number) {
    const auto orientation = static_cast<Orientation>(number);
    const Bitmap stored = FromText(kStored[static_cast<std::size_t>(number - 1)]);
    const auto partAsText = [&](const PixelRect& part) {
      const PixelRect place = StoredPart(part, {3, 2}, orientation);
      Bitmap cut(place.size());
      CopyRect(cut.view(), {0, 0}, stored, place);
      return ToText(TurnUpright(cut, orientation));
    };
    EXPECT_EQ(partAsText({0, 0, 3, 2}), (std::vector<std::string>{"ABC", "DEF"})) << number;
    EXPECT_EQ(partAsText({0, 0, 2, 1}), std::vector<std::string>{"AB"}) << number;
    EXPECT_EQ(partAsText({1, 1, 2, 1}), std::vector<std::string>{"EF"}) << number;
    EXPECT_EQ(partAsText({2, 0, 1, 2}), (std::vector<std::string>{"C", "F"})) << number;
  }
}

}  // namespace
}  // namespace base

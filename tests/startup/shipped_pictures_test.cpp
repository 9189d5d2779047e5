// The pictures that come with the program.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "pictures/byte_reader.h"
#include "pictures/gif_first_frame.h"
#include "pictures/picture_header.h"
#include "startup/preview.h"

namespace {

std::string ReadAsset(const std::string& name) {
  std::ifstream file(std::string(LUMORA_SOURCE_DIR) + "/assets/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::set<base::Pixel> ColorsOf(const pictures::GifFirstFrame& picture) {
  std::set<base::Pixel> colors;
  std::vector<base::Pixel> row(static_cast<std::size_t>(picture.size().width));
  for (int y = 0; y < picture.size().height; ++y) {
    picture.row(y, row.data());
    colors.insert(row.begin(), row.end());
  }
  return colors;
}

TEST(ShippedPictures, BothSamplesAreDecodedToTheirLastPixel) {
  for (const char* name : {"image1.gif", "image2.gif"}) {
    const std::string file = ReadAsset(name);
    const auto picture = pictures::GifFirstFrame::decode(file);
    ASSERT_TRUE(picture) << name;
    EXPECT_EQ(picture->size(), (base::PixelSize{1600, 900})) << name;
    EXPECT_FALSE(picture->mayBeTransparent()) << name;
    EXPECT_GT(ColorsOf(*picture).size(), 200U) << name;
    EXPECT_LT(file.size(), 1U << 20) << name;
  }
}

TEST(ShippedPictures, ASampleCutShortShowsItsUpperPart) {
  std::string file = ReadAsset("image1.gif");
  file.resize(file.size() / 2);
  const auto picture = pictures::GifFirstFrame::decode(file);
  ASSERT_TRUE(picture);
  EXPECT_TRUE(picture->mayBeTransparent());
  EXPECT_TRUE(ColorsOf(*picture).contains(base::kTransparent));
}

TEST(ShippedPictures, ThePreviewIsOpaqueAndOfItsSize) {
  const base::Bitmap preview = startup::PreviewImage(ReadAsset("preview.gif"));
  ASSERT_EQ(preview.size(), startup::kPreviewSize);
  ASSERT_EQ(preview.size(), (base::PixelSize{160, 120}));
  EXPECT_TRUE(preview.isOpaque());
  std::set<base::Pixel> colors;
  for (int y = 0; y < 120; ++y) {
    for (int x = 0; x < 160; ++x) {
      ASSERT_EQ(preview.at(x, y) >> 24, 0xFFU);
      colors.insert(preview.at(x, y));
    }
  }
  EXPECT_GT(colors.size(), 100U);
}

TEST(ShippedPictures, TheIconHasEverySizeThatTheSystemShows) {
  const std::string file = ReadAsset("lumora.ico");
  const pictures::ByteReader bytes(file, pictures::ByteOrder::LittleEndian);
  std::vector<int> sides;
  for (std::size_t i = 0; i < bytes.u16(4).value_or(0); ++i) {
    const std::size_t entry = 6 + 16 * i;
    const std::size_t length = bytes.u32(entry + 8).value();
    const std::size_t start = bytes.u32(entry + 12).value();
    ASSERT_LE(start + length, file.size());
    const auto picture = pictures::ReadPictureHeader(std::string_view(file).substr(start, length));
    if (!picture) {
      EXPECT_EQ(bytes.u32(start), 40U);       // a bitmap header
      EXPECT_EQ(bytes.u16(start + 14), 32U);  // bits a pixel
    }
    const int side = picture ? picture->size.value().width : static_cast<int>(bytes.u32(start + 4).value());
    EXPECT_EQ(bytes.u8(entry), side % 256);
    sides.push_back(side);
  }
  EXPECT_EQ(sides, (std::vector<int>{16, 20, 24, 32, 40, 48, 64, 96, 128, 256}));
}

}  // namespace

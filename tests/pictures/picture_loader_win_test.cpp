#include "pictures/picture_loader.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <fstream>

#include "os/files_win.h"
#include "os/open_file_win.h"
#include "os/picture_decoder_win.h"
#include "support/bmp_builder.h"
#include "support/channels.h"
#include "support/colors.h"
#include "support/gif_builder.h"
#include "support/jpeg_builder.h"
#include "support/temporary_folder_win.h"
#include "support/wic_encoder_win.h"

namespace pictures {
namespace {

using support::ChannelDistance;
using support::kBlackPixel;
using support::kBluePixel;
using support::kGreenPixel;
using support::kRedPixel;
using support::kWhitePixel;

constexpr int kLossy = 12;  // how far a JPEG brings a colour back

// Four fields of one colour each: red and green above, blue and white below.
base::Bitmap FourFields(base::PixelSize size) {
  base::Bitmap picture(size);
  const int x = size.width / 2;
  const int y = size.height / 2;
  base::FillRect(picture.view(), {0, 0, x, y}, kRedPixel);
  base::FillRect(picture.view(), {x, 0, size.width - x, y}, kGreenPixel);
  base::FillRect(picture.view(), {0, y, x, size.height - y}, kBluePixel);
  base::FillRect(picture.view(), {x, y, size.width - x, size.height - y}, kWhitePixel);
  picture.setOpaque(true);
  return picture;
}

class PictureLoaderWin : public testing::Test {
 protected:
  support::ComScope com;
  support::TemporaryFolder folder;
  os::FilesWin heads;
  os::PictureDecoderWin decoder;
  FilePictureLoader loader{heads, decoder};
};

TEST_F(PictureLoaderWin, BitmapsStandUprightWhicheverRowComesFirst) {
  const base::Bitmap picture = FourFields({7, 5});
  for (const auto order : {support::RowOrder::bottomUp, support::RowOrder::topDown}) {
    for (const char* name : {"a.bmp", "a.dib", "a.jpg"}) {
      const auto opened = loader.open(folder.put(name, support::TrueColorBmp(picture, order)));
      ASSERT_TRUE(opened) << name;
      EXPECT_EQ(opened->size(), picture.size());
      const auto drawn = opened->drawnAt(picture.size());
      EXPECT_EQ(*drawn, picture) << name;
      EXPECT_TRUE(drawn->isOpaque());
    }
  }
}

TEST_F(PictureLoaderWin, APalettedBitmapShowsItsColours) {
  const auto opened = loader.open(folder.put(
      "a.bmp", support::PalettedBmp({3, 2}, {kRedPixel, kGreenPixel, kBluePixel}, {0, 1, 2, 2, 0, 1})));
  ASSERT_TRUE(opened);
  const auto drawn = opened->drawnAt({3, 2});
  ASSERT_TRUE(drawn);
  const base::Pixel expected[2][3] = {{kRedPixel, kGreenPixel, kBluePixel},
                                      {kBluePixel, kRedPixel, kGreenPixel}};
  for (int y = 0; y < 2; ++y) {
    for (int x = 0; x < 3; ++x) EXPECT_EQ(drawn->at(x, y), expected[y][x]);
  }
  EXPECT_TRUE(drawn->isOpaque());
}

TEST_F(PictureLoaderWin, ALargeBitmapIsReadInBandsAndAveraged) {
  base::Bitmap picture(base::PixelSize{1201, 901});
  for (int y = 0; y < 901; ++y) {
    for (int x = 0; x < 1201; ++x) picture.row(y)[x] = (x + y) % 2 == 0 ? kWhitePixel : kBlackPixel;
  }
  const auto opened =
      loader.open(folder.put("a.bmp", support::TrueColorBmp(picture, support::RowOrder::bottomUp)));
  const auto drawn = opened->drawnAt({300, 225});
  ASSERT_TRUE(drawn);
  for (int y = 0; y < 225; ++y) {
    for (int x = 0; x < 300; ++x) {
      const int level = static_cast<int>(drawn->at(x, y) & 0xFF);
      ASSERT_NEAR(level, 127.5, 8.0) << x << "," << y;  // a quarter of a pixel of 16 may tip over
    }
  }
}

TEST_F(PictureLoaderWin, AJpegComesUprightFromAllEightOrientations) {
  const base::PixelSize stored{64, 32};
  const std::string jpeg = support::Encode(FourFields(stored), support::EncodedAs::jpeg);
  ASSERT_FALSE(jpeg.empty());
  // The colours at top left, top right, bottom left, bottom right of the upright picture.
  const base::Pixel expected[8][4] = {
      {kRedPixel, kGreenPixel, kBluePixel, kWhitePixel}, {kGreenPixel, kRedPixel, kWhitePixel, kBluePixel},
      {kWhitePixel, kBluePixel, kGreenPixel, kRedPixel}, {kBluePixel, kWhitePixel, kRedPixel, kGreenPixel},
      {kRedPixel, kBluePixel, kGreenPixel, kWhitePixel}, {kBluePixel, kRedPixel, kWhitePixel, kGreenPixel},
      {kWhitePixel, kGreenPixel, kBluePixel, kRedPixel}, {kGreenPixel, kWhitePixel, kRedPixel, kBluePixel}};
  for (int orientation = 1; orientation <= 8; ++orientation) {
    for (const bool bigEndian : {false, true}) {
      const std::string turned =
          jpeg.substr(0, 2) + support::ExifSegment(orientation, bigEndian) + jpeg.substr(2);
      const auto opened = loader.open(folder.put("a.jpg", turned));
      ASSERT_TRUE(opened);
      const base::PixelSize upright =
          orientation >= 5 ? base::PixelSize{stored.height, stored.width} : stored;
      ASSERT_EQ(opened->size(), upright) << orientation;
      const auto drawn = opened->drawnAt(upright);
      ASSERT_TRUE(drawn);
      for (int i = 0; i < 4; ++i) {
        const int x = upright.width * (i % 2 * 2 + 1) / 4;
        const int y = upright.height * (i / 2 * 2 + 1) / 4;
        EXPECT_LE(ChannelDistance(drawn->at(x, y), expected[orientation - 1][i]), kLossy)
            << orientation << " corner " << i << " " << std::hex << drawn->at(x, y);
      }
      EXPECT_TRUE(drawn->isOpaque());
    }
  }
}

TEST_F(PictureLoaderWin, AJpegIsKnownByAllItsNamesAndDrawnSmaller) {
  const std::string jpeg = support::Encode(FourFields({640, 480}), support::EncodedAs::jpeg);
  for (const char* name : {"a.jpg", "a.jpeg", "a.jif", "A.JPG"}) {
    const auto opened = loader.open(folder.put(name, jpeg));
    ASSERT_TRUE(opened) << name;
    const auto drawn = opened->drawnAt({64, 48});
    ASSERT_TRUE(drawn);
    EXPECT_LE(ChannelDistance(drawn->at(10, 10), kRedPixel), kLossy);
    EXPECT_LE(ChannelDistance(drawn->at(60, 40), kWhitePixel), kLossy);
  }
}

TEST_F(PictureLoaderWin, APngKeepsItsTransparentParts) {
  base::Bitmap straight({4, 2}, 0x80FF0000U);
  straight.row(0)[0] = kBluePixel;
  straight.row(1)[3] = 0x00FFFFFFU;
  const std::string png = support::Encode(straight, support::EncodedAs::png);
  ASSERT_FALSE(png.empty());
  const auto opened = loader.open(folder.put("a.png", png));
  ASSERT_TRUE(opened);
  const auto drawn = opened->drawnAt({4, 2});
  ASSERT_TRUE(drawn);
  EXPECT_EQ(drawn->at(0, 0), kBluePixel);
  EXPECT_EQ(drawn->at(1, 0), 0x80800000U);
  EXPECT_EQ(drawn->at(3, 1), 0U);
  EXPECT_FALSE(drawn->isOpaque());
}

TEST_F(PictureLoaderWin, APngWithoutTransparentPartsIsOpaque) {
  const auto opened =
      loader.open(folder.put("a.png", support::Encode(FourFields({9, 7}), support::EncodedAs::png)));
  ASSERT_TRUE(opened);
  const auto drawn = opened->drawnAt({9, 7});
  EXPECT_EQ(*drawn, FourFields({9, 7}));
  EXPECT_TRUE(drawn->isOpaque());
}

TEST_F(PictureLoaderWin, AGifIsComposedByTheProgramItself) {
  support::GifBuilder gif;
  gif.screen = {4, 3};
  gif.frame = {1, 1, 2, 1};
  gif.globalColors = std::string("\xFF\0\0\0\0\xFF", 6);
  gif.indices = {0, 1};
  const auto opened = loader.open(folder.put("a.gif", gif.file()));
  ASSERT_TRUE(opened);
  EXPECT_EQ(opened->size(), (base::PixelSize{4, 3}));
  const auto drawn = opened->drawnAt({4, 3});
  EXPECT_EQ(drawn->at(1, 1), kRedPixel);
  EXPECT_EQ(drawn->at(2, 1), kBluePixel);
  EXPECT_EQ(drawn->at(0, 0), 0U);
}

TEST_F(PictureLoaderWin, PathsInAnyScriptAreOpened) {
  const std::string bmp = support::TrueColorBmp(FourFields({4, 4}), support::RowOrder::bottomUp);
  for (const char* name : {"горы на закате.bmp", "日本の山.bmp", "جبل.bmp", "été 🏔.bmp"}) {
    const auto opened = loader.open(folder.put(name, bmp));
    ASSERT_TRUE(opened) << name;
    EXPECT_EQ(*opened->drawnAt({4, 4}), FourFields({4, 4})) << name;
  }
}

TEST_F(PictureLoaderWin, PathsOverTwoHundredAndSixtyCharactersAreOpened) {
  std::string deep = folder.path();
  for (int i = 0; i < 4; ++i) {
    deep += "\\" + std::string(90, static_cast<char>('a' + i));
    ASSERT_TRUE(CreateDirectoryW(os::WidePath(deep, 12).c_str(), nullptr)) << GetLastError();
  }
  const std::string jpeg = support::Encode(FourFields({32, 32}), support::EncodedAs::jpeg);
  const std::string path = deep + "\\far away.jpg";
  support::WriteFileAt(path, jpeg);
  ASSERT_GT(path.size(), 360U);
  const auto opened = loader.open(path);
  ASSERT_TRUE(opened);
  EXPECT_TRUE(opened->drawnAt({16, 16}));
}

TEST_F(PictureLoaderWin, AFormatThatOnlyTheSystemKnowsIsShown) {
  const base::Bitmap picture = FourFields({64, 48});
  const std::string bytes = support::Encode(picture, support::EncodedAs::tiff);
  ASSERT_FALSE(bytes.empty());
  const auto opened = loader.open(folder.put("a.tif", bytes));
  ASSERT_TRUE(opened);
  const auto drawn = opened->drawnAt({64, 48});
  ASSERT_TRUE(drawn);
  EXPECT_EQ(*drawn, picture);
  for (std::size_t length = 0; length < bytes.size(); length += 7) {
    const auto cut = loader.open(folder.put("cut.tif", bytes.substr(0, length)));
    if (cut) cut->drawnAt({20, 15});
  }
}

TEST_F(PictureLoaderWin, WhatIsNoPictureFileIsNull) {
  EXPECT_FALSE(loader.open(""));
  EXPECT_FALSE(loader.open(folder.path()));
  EXPECT_FALSE(loader.open(folder.path() + "\\missing.jpg"));
  EXPECT_FALSE(loader.open(folder.put("empty.jpg", "")));
  EXPECT_FALSE(loader.open(folder.put("text.bmp", "hello")));
  EXPECT_FALSE(loader.open("a<b>|?.jpg"));
  for (const char* device : {"NUL", "CON", "COM1", "LPT1", "C:\\NUL", "\\\\.\\pipe\\none", "\\\\.\\C:"}) {
    EXPECT_FALSE(loader.open(device)) << device;
  }
}

TEST_F(PictureLoaderWin, AFileLockedByAnotherIsNull) {
  const std::string path =
      folder.put("a.bmp", support::TrueColorBmp(FourFields({4, 4}), support::RowOrder::bottomUp));
  {
    const os::FileHandle lock(CreateFileW(os::WidePath(path).c_str(), GENERIC_READ | GENERIC_WRITE, 0,
                                          nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(lock.isOpen());
    EXPECT_FALSE(loader.open(path));
  }
  EXPECT_TRUE(loader.open(path));
}

TEST_F(PictureLoaderWin, AnOpenedPictureIsInNobodysWay) {
  const std::string path =
      folder.put("a.bmp", support::TrueColorBmp(FourFields({4, 4}), support::RowOrder::bottomUp));
  const auto opened = loader.open(path);
  ASSERT_TRUE(opened);
  EXPECT_TRUE(DeleteFileW(os::WidePath(path).c_str()));
}

TEST_F(PictureLoaderWin, NothingIsHeldAfterADrawing) {
  const std::string path =
      folder.put("a.bmp", support::TrueColorBmp(FourFields({4, 4}), support::RowOrder::bottomUp));
  const auto opened = loader.open(path);
  ASSERT_TRUE(opened->drawnAt({4, 4}));
  const os::FileHandle alone(CreateFileW(os::WidePath(path).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                         OPEN_EXISTING, 0, nullptr));
  EXPECT_TRUE(alone.isOpen());
}

TEST_F(PictureLoaderWin, FilesCutShortAreNullOrDrawWhatTheDecoderMakesOfThem) {
  const std::string files[] = {support::Encode(FourFields({40, 30}), support::EncodedAs::jpeg),
                               support::Encode(FourFields({40, 30}), support::EncodedAs::png),
                               support::TrueColorBmp(FourFields({40, 30}), support::RowOrder::bottomUp)};
  for (const std::string& whole : files) {
    for (std::size_t length = 0; length < whole.size(); length += 1 + whole.size() / 60) {
      const auto opened = loader.open(folder.put("a.bin", whole.substr(0, length)));
      if (!opened) continue;
      EXPECT_EQ(opened->size(), (base::PixelSize{40, 30}));
      const auto drawn = opened->drawnAt({20, 15});
      EXPECT_TRUE(!drawn || drawn->size() == (base::PixelSize{20, 15}));
    }
  }
}

TEST_F(PictureLoaderWin, ABrokenPngDrawsNothing) {
  std::string png = support::Encode(FourFields({400, 300}), support::EncodedAs::png);
  png.resize(png.size() / 2);
  const auto opened = loader.open(folder.put("a.png", png));
  EXPECT_FALSE(opened && opened->drawnAt({40, 30}));
}

}  // namespace
}  // namespace pictures

#include "pictures/picture_loader.h"

#include <gtest/gtest.h>

#include <numeric>

#include "base/area_average.h"
#include "base/resample.h"
#include "support/fake_files.h"
#include "support/fake_picture_decoder.h"
#include "support/gif_builder.h"
#include "support/jpeg_builder.h"
#include "support/photo_builder.h"

namespace pictures {
namespace {

using Read = support::FakeStoredPicture::Read;

base::Bitmap Gradient(base::PixelSize size) {
  base::Bitmap picture(size);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      picture.row(y)[x] = base::OpaquePixel(base::Rgb(x * 255 / size.width, y * 255 / size.height, 77));
    }
  }
  picture.setOpaque(true);
  return picture;
}

class PictureLoaderTest : public testing::Test {
 protected:
  // A JPEG file with these pixels, turned by an orientation when that is not 0.
  support::FakeStoredPicture& addJpeg(const std::string& path, base::Bitmap pixels, int orientation = 0) {
    const std::string segments = orientation == 0 ? "" : support::ExifSegment(orientation, true);
    heads.content[path] = support::JpegHead(segments, pixels.size());
    decoder.pictures[path].pixels = std::move(pixels);
    return decoder.pictures[path];
  }

  support::FakeFiles heads;
  support::FakePictureDecoder decoder;
  FilePictureLoader loader{heads, decoder};
};

TEST_F(PictureLoaderTest, APictureAtItsOwnSizeIsThePicture) {
  addJpeg("a.jpg", Gradient({40, 30}));
  const auto picture = loader.open("a.jpg");
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->size(), (base::PixelSize{40, 30}));
  const auto drawn = picture->drawnAt({40, 30});
  EXPECT_EQ(*drawn, Gradient({40, 30}));
  EXPECT_TRUE(drawn->isOpaque());
}

TEST_F(PictureLoaderTest, ASmallerDrawingIsTheAverageOverArea) {
  addJpeg("a.jpg", Gradient({401, 307}));
  EXPECT_EQ(*loader.open("a.jpg")->drawnAt({100, 77}), base::Resample(Gradient({401, 307}), {100, 77}));
}

TEST_F(PictureLoaderTest, ALargerDrawingIsEnlarged) {
  addJpeg("a.jpg", Gradient({4, 3}));
  const auto drawn = loader.open("a.jpg")->drawnAt({13, 11});
  EXPECT_EQ(*drawn, base::Resample(Gradient({4, 3}), {13, 11}));
  EXPECT_TRUE(drawn->isOpaque());
}

TEST_F(PictureLoaderTest, RowsAreReadInBandsFromTheTopDown) {
  auto& stored = addJpeg("a.jpg", Gradient({2000, 100}));
  ASSERT_TRUE(loader.open("a.jpg")->drawnAt({50, 30}));
  EXPECT_EQ(stored.reads, (std::vector<Read>{{1, 0, 32}, {1, 32, 32}, {1, 64, 32}, {1, 96, 4}}));
}

TEST_F(PictureLoaderTest, TheDecoderReducesAsFarAsThePictureStaysLargeEnough) {
  const auto reductionFor = [this](base::PixelSize drawn) {
    auto& stored = addJpeg("a.jpg", Gradient({800, 600}));
    stored.reductions = {1, 2, 4, 8};
    stored.reads.clear();
    EXPECT_TRUE(loader.open("a.jpg")->drawnAt(drawn));
    return stored.reads.front().reduction;
  };
  EXPECT_EQ(reductionFor({800, 600}), 1);
  EXPECT_EQ(reductionFor({401, 300}), 1);
  EXPECT_EQ(reductionFor({400, 300}), 2);
  EXPECT_EQ(reductionFor({200, 151}), 2);
  EXPECT_EQ(reductionFor({200, 150}), 4);
  EXPECT_EQ(reductionFor({30, 20}), 8);
  EXPECT_EQ(reductionFor({1600, 20}), 1);
}

TEST_F(PictureLoaderTest, AReductionThatFailsIsDoneWithout) {
  auto& stored = addJpeg("a.jpg", Gradient({80, 60}));
  stored.reductions = {1, 2, 4};
  stored.brokenReductions = {4};
  EXPECT_EQ(*loader.open("a.jpg")->drawnAt({20, 15}), base::Resample(Gradient({80, 60}), {20, 15}));
  EXPECT_EQ(stored.reads, (std::vector<Read>{{4, 0, 15}, {1, 0, 60}}));
}

TEST_F(PictureLoaderTest, ATurnedPictureIsShrunkBeforeItIsTurned) {
  auto& stored = addJpeg("a.jpg", Gradient({400, 300}), 6);
  stored.reductions = {1, 2, 4};
  const auto picture = loader.open("a.jpg");
  EXPECT_EQ(picture->size(), (base::PixelSize{300, 400}));
  const auto drawn = picture->drawnAt({75, 100});
  ASSERT_TRUE(drawn);
  EXPECT_EQ(drawn->size(), (base::PixelSize{75, 100}));
  EXPECT_EQ(stored.reads.front().reduction, 4);
  const base::Bitmap stillLying = base::Resample(Gradient({400, 300}), {100, 75});
  for (int y = 0; y < 100; ++y) {
    for (int x = 0; x < 75; ++x) ASSERT_EQ(drawn->at(x, y), stillLying.at(y, 74 - x));
  }
  EXPECT_TRUE(drawn->isOpaque());
}

TEST_F(PictureLoaderTest, EveryOrientationPutsTheStoredCornerInItsPlace) {
  const base::PixelPoint corners[] = {{0, 0}, {3, 0}, {3, 2}, {0, 2}, {0, 0}, {2, 0}, {2, 3}, {0, 3}};
  for (int orientation = 1; orientation <= 8; ++orientation) {
    base::Bitmap stored({4, 3}, 0xFF000000U);
    stored.row(0)[0] = 0xFFFFFFFFU;
    addJpeg("a.jpg", stored, orientation);
    const auto picture = loader.open("a.jpg");
    const auto drawn = picture->drawnAt(picture->size());
    const base::PixelPoint corner = corners[orientation - 1];
    EXPECT_EQ(drawn->at(corner.x, corner.y), 0xFFFFFFFFU) << orientation;
  }
}

base::Bitmap PartOf(const base::Bitmap& whole, const base::PixelRect& part) {
  base::Bitmap cut(part.size());
  base::CopyRect(cut.view(), {0, 0}, whole, part);
  return cut;
}

TEST_F(PictureLoaderTest, APartIsWhatTheWholePictureShowsThere) {
  for (int orientation = 1; orientation <= 8; ++orientation) {
    addJpeg("a.jpg", Gradient({90, 70}), orientation);
    const auto picture = loader.open("a.jpg");
    const auto whole = picture->drawnAt(picture->size());
    for (const base::PixelRect part : {base::PixelRect{10, 20, 30, 40}, base::PixelRect{0, 0, 1, 1},
                                       base::PixelRect::ofSize(picture->size())}) {
      const auto drawn = picture->drawnPart(part);
      ASSERT_TRUE(drawn);
      EXPECT_EQ(*drawn, PartOf(*whole, part)) << orientation;
      EXPECT_TRUE(drawn->isOpaque());
    }
  }
}

TEST_F(PictureLoaderTest, ForAPartNoOtherRowsAreDecodedAndNoOtherColumnsHeld) {
  auto& stored = addJpeg("a.jpg", Gradient({2000, 100}));
  const auto drawn = loader.open("a.jpg")->drawnPart({1500, 31, 20, 40});
  ASSERT_TRUE(drawn);
  EXPECT_EQ(drawn->size(), (base::PixelSize{20, 40}));
  EXPECT_EQ(stored.reads, (std::vector<Read>{{1, 31, 32}, {1, 63, 8}}));
}

TEST_F(PictureLoaderTest, ThePartOfATransparentPictureIsOpaqueWhereAllItsPixelsAre) {
  base::Bitmap pixels({4, 2}, 0xFF00FF00U);
  pixels.row(0)[0] = 0x8000FF00U;
  addJpeg("a.jpg", pixels).hasAlpha = true;
  const auto picture = loader.open("a.jpg");
  const auto clear = picture->drawnPart({0, 0, 2, 2});
  ASSERT_TRUE(clear);
  EXPECT_EQ(clear->at(0, 0), 0x80008000U);
  EXPECT_FALSE(clear->isOpaque());
  const auto opaque = picture->drawnPart({1, 0, 3, 2});
  ASSERT_TRUE(opaque);
  EXPECT_TRUE(opaque->isOpaque());
}

TEST_F(PictureLoaderTest, APartThatCannotBeDecodedIsToldLikeAWholePicture) {
  addJpeg("a.jpg", Gradient({40, 30})).brokenFromRow = 20;
  int told = 0;
  loader.onFailure = [&told](const std::string&, PictureFailure) { ++told; };
  const auto picture = loader.open("a.jpg");
  ASSERT_TRUE(picture);
  EXPECT_TRUE(picture->drawnPart({0, 0, 40, 20}));
  EXPECT_EQ(told, 0);
  EXPECT_FALSE(picture->drawnPart({0, 1, 40, 20}));
  EXPECT_EQ(told, 1);
  addJpeg("a.jpg", Gradient({41, 30}));
  EXPECT_FALSE(picture->drawnPart({0, 0, 1, 1}));  // the file has changed
  EXPECT_EQ(told, 2);
}

TEST(PictureInMemory, GivesAPartOfItself) {
  const auto picture = MakePicture(std::make_shared<base::Bitmap>(Gradient({9, 7})));
  const auto part = picture->drawnPart({2, 1, 5, 4});
  ASSERT_TRUE(part);
  EXPECT_EQ(*part, PartOf(Gradient({9, 7}), {2, 1, 5, 4}));
  EXPECT_TRUE(part->isOpaque());
  EXPECT_EQ(picture->drawnPart({0, 0, 9, 7}), picture->drawnAt({9, 7})) << "no second copy of the pixels";
}

TEST_F(PictureLoaderTest, TransparentPixelsAreMultipliedBeforeTheyAreAveraged) {
  base::Bitmap pixels(base::PixelSize{2, 1});
  pixels.row(0)[0] = 0xFFFF0000U;
  pixels.row(0)[1] = 0x0000FF00U;  // a green that nobody can see
  auto& stored = addJpeg("a.jpg", pixels);
  stored.hasAlpha = true;
  const auto drawn = loader.open("a.jpg")->drawnAt({1, 1});
  EXPECT_EQ(drawn->at(0, 0), 0x80800000U);
  EXPECT_FALSE(drawn->isOpaque());
}

TEST_F(PictureLoaderTest, APictureThatCouldBeTransparentAndIsNotIsMarkedOpaque) {
  auto& stored = addJpeg("a.jpg", Gradient({5, 5}));
  stored.hasAlpha = true;
  EXPECT_TRUE(loader.open("a.jpg")->drawnAt({5, 5})->isOpaque());
}

TEST_F(PictureLoaderTest, TheAlphaOfAnOpaquePictureMeansNothing) {
  base::Bitmap pixels(base::PixelSize{1, 1});
  pixels.row(0)[0] = 0x00112233U;
  addJpeg("a.jpg", pixels);
  EXPECT_EQ(loader.open("a.jpg")->drawnAt({1, 1})->at(0, 0), 0xFF112233U);
}

TEST_F(PictureLoaderTest, APictureBrokenHalfWayDrawsNothing) {
  addJpeg("a.jpg", Gradient({2000, 100})).brokenFromRow = 50;
  const auto picture = loader.open("a.jpg");
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->size(), (base::PixelSize{2000, 100}));
  EXPECT_FALSE(picture->drawnAt({50, 30}));
  EXPECT_FALSE(picture->drawnAt({50, 30}));
}

TEST_F(PictureLoaderTest, NothingIsKeptOpenAfterADrawing) {
  addJpeg("a.jpg", Gradient({20, 20}));
  const auto picture = loader.open("a.jpg");
  EXPECT_TRUE(picture->drawnAt({10, 10}));
  EXPECT_EQ(decoder.openSources, 0);
  EXPECT_EQ(decoder.opened.size(), 1U);
  EXPECT_TRUE(picture->drawnAt({20, 10}));
  EXPECT_EQ(decoder.openSources, 0);
  EXPECT_EQ(decoder.opened.size(), 2U);
}

TEST_F(PictureLoaderTest, AFileThatHasBecomeAnotherPictureDrawsNothing) {
  addJpeg("a.jpg", Gradient({20, 20}));
  const auto picture = loader.open("a.jpg");
  EXPECT_TRUE(picture->drawnAt({10, 10}));
  addJpeg("a.jpg", Gradient({30, 20}));
  EXPECT_FALSE(picture->drawnAt({10, 10}));
  heads.content.clear();
  EXPECT_FALSE(picture->drawnAt({10, 10}));
}

TEST_F(PictureLoaderTest, WhatIsNoPictureIsNull) {
  EXPECT_FALSE(loader.open(""));
  EXPECT_FALSE(loader.open("missing.jpg"));
  heads.content["empty.jpg"] = "";
  EXPECT_FALSE(loader.open("empty.jpg"));
  EXPECT_TRUE(decoder.opened.empty());
  heads.content["text.jpg"] = "no picture at all";
  EXPECT_FALSE(loader.open("text.jpg"));
}

std::string TiffHead(int orientation) {
  std::string tiff("MM\0\x2A\0\0\0\x08\0\1\1\x12\0\3\0\0\0\1\0", 19);
  return tiff + static_cast<char>(orientation) + std::string(6, '\0');
}

TEST_F(PictureLoaderTest, AFileOfAKindThatOnlyTheDecoderKnowsIsItsBusiness) {
  heads.content["a.heic"] = "some format of a later day";
  decoder.pictures["a.heic"].pixels = Gradient({40, 30});
  const auto picture = loader.open("a.heic");
  ASSERT_TRUE(picture);
  EXPECT_EQ(*picture->drawnAt({40, 30}), Gradient({40, 30}));
  EXPECT_EQ(decoder.opened, std::vector<std::string>{"a.heic"});
}

TEST_F(PictureLoaderTest, AnUnknownKindIsBoundedByTheSizeThatTheDecoderFinds) {
  heads.content["long.tif"] = TiffHead(1);
  decoder.pictures["long.tif"].pixels = base::Bitmap({base::AreaAverage::kLongestSide + 1, 1});
  heads.content["most.tif"] = TiffHead(1);
  decoder.pictures["most.tif"].pixels = base::Bitmap({base::AreaAverage::kLongestSide, 1});
  EXPECT_FALSE(loader.open("long.tif"));
  EXPECT_TRUE(loader.open("most.tif"));
}

TEST_F(PictureLoaderTest, ATiffFileIsTurnedUprightToo) {
  heads.content["a.tif"] = TiffHead(6);
  decoder.pictures["a.tif"].pixels = Gradient({40, 30});
  const auto picture = loader.open("a.tif");
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->size(), (base::PixelSize{30, 40}));
}

TEST_F(PictureLoaderTest, TellsOfAFileThatItCannotOpen) {
  std::vector<std::string> told;
  loader.onFailure = [&](const std::string& path, PictureFailure failure) {
    told.push_back(path + (failure == PictureFailure::NotOpened ? ": not opened" : ": not drawn"));
  };
  loader.open("missing.jpg");
  EXPECT_EQ(told, std::vector<std::string>{"missing.jpg: not opened"});
}

TEST_F(PictureLoaderTest, TellsOfAPictureThatItCannotDraw) {
  addJpeg("a.jpg", Gradient({4, 3})).brokenFromRow = 1;
  std::vector<std::string> told;
  loader.onFailure = [&](const std::string& path, PictureFailure failure) {
    told.push_back(path + (failure == PictureFailure::NotOpened ? ": not opened" : ": not drawn"));
  };
  const auto picture = loader.open("a.jpg");
  ASSERT_TRUE(picture);
  EXPECT_TRUE(told.empty());
  EXPECT_FALSE(picture->drawnAt({4, 3}));
  EXPECT_EQ(told, std::vector<std::string>{"a.jpg: not drawn"});
}

TEST_F(PictureLoaderTest, APictureThatTheDecoderRefusesIsNull) {
  heads.content["a.jpg"] = support::JpegHead("", {4, 3});
  EXPECT_FALSE(loader.open("a.jpg"));
  EXPECT_EQ(decoder.opened.size(), 1U);
}

TEST_F(PictureLoaderTest, HugeClaimsAreRefusedBeforeTheDecoderSeesThem) {
  const auto png = [](const char* size) {
    return std::string("\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR", 16) + std::string(size, 8);
  };
  heads.content["a.jpg"] = support::JpegHead("", {65535, 65535});
  heads.content["b.png"] = png("\0\0\xFF\xFF\0\0\xFF\xFF");
  heads.content["c.png"] = png("\0\1\0\0\0\0\0\1");  // 65,536 x 1
  heads.content["d.png"] = png("\x7F\xFF\xFF\xFF\x7F\xFF\xFF\xFF");
  support::GifBuilder gif;
  gif.screen = {65535, 65535};
  gif.frame = {0, 0, 1, 1};
  gif.indices = {0};
  heads.content["e.gif"] = gif.file();
  for (const auto& [path, bytes] : heads.content) EXPECT_FALSE(loader.open(path)) << path;
  EXPECT_TRUE(decoder.opened.empty());
}

TEST_F(PictureLoaderTest, ADrawingOfMoreThanTheBoundIsRefused) {
  auto& stored = addJpeg("a.jpg", Gradient({4, 3}));
  const auto picture = loader.open("a.jpg");
  EXPECT_FALSE(picture->drawnAt({1 << 14, (1 << 13) + 1}));
  EXPECT_FALSE(picture->drawnAt({2000000000, 2000000000}));
  EXPECT_TRUE(stored.reads.empty());
}

TEST_F(PictureLoaderTest, ADrawingWithoutAreaIsEmpty) {
  addJpeg("a.jpg", Gradient({4, 3}));
  const auto drawn = loader.open("a.jpg")->drawnAt({0, 7});
  ASSERT_TRUE(drawn);
  EXPECT_TRUE(drawn->isEmpty());
}

TEST_F(PictureLoaderTest, ASizeFarInsideTheFileIsFoundByALongerLook) {
  std::string profiles;
  for (int i = 0; i < 10; ++i) profiles += support::JpegSegmentBytes(0xE2, std::string(60000, 'p'));
  addJpeg("a.jpg", Gradient({8, 6}));
  heads.content["a.jpg"] = support::JpegHead(profiles, {8, 6});
  ASSERT_TRUE(loader.open("a.jpg"));
  EXPECT_EQ(heads.limits, (std::vector<std::size_t>{256 << 10, 16 << 20}));
}

TEST_F(PictureLoaderTest, APictureTellsWhatItsFileSaysAndWhenItWasTaken) {
  addJpeg("a.jpg", Gradient({8, 6}));
  heads.content["a.jpg"] =
      support::JpegHead(support::NotesSegment({.first = {{support::kModelTag, "X100"}},
                                               .exif = {{support::kTakenTag, "2019:07:14 18:05:09"}}}),
                        {8, 6});
  heads.changed["a.jpg"] = {2020, 1, 1, 0, 0, 0, 0};
  const auto picture = loader.open("a.jpg");
  ASSERT_TRUE(picture);
  const std::size_t reads = heads.reads.size();
  EXPECT_EQ(picture->facts().camera, "X100");
  EXPECT_EQ(picture->facts().date, (os::LocalTime{2019, 7, 14, 18, 5, 9, 0}));
  EXPECT_EQ(heads.reads.size(), reads) << "read once, with the orientation";
  EXPECT_TRUE(heads.dated.empty());
}

TEST_F(PictureLoaderTest, APictureOfAnUnknownMomentTellsWhenItsFileWasChanged) {
  addJpeg("a.jpg", Gradient({8, 6}));
  heads.changed["a.jpg"] = {2020, 1, 1, 12, 0, 0, 0};
  const auto picture = loader.open("a.jpg");
  ASSERT_TRUE(picture);
  EXPECT_TRUE(heads.dated.empty()) << "nobody has asked yet";
  EXPECT_EQ(picture->facts().date, (os::LocalTime{2020, 1, 1, 12, 0, 0, 0}));
  heads.content.clear();
  EXPECT_EQ(picture->facts().date, std::nullopt);
}

support::GifBuilder SmallGif() {
  support::GifBuilder gif;
  gif.screen = {3, 2};
  gif.frame = {0, 0, 2, 2};
  gif.globalColors = std::string("\xFF\0\0\0\xFF\0", 6);
  gif.indices = {0, 1, 1, 0};
  return gif;
}

TEST_F(PictureLoaderTest, TheKindIsDecidedByContentWhateverTheNameSays) {
  heads.content["photo.jpg"] = SmallGif().file();
  const auto picture = loader.open("photo.jpg");
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->size(), (base::PixelSize{3, 2}));
  EXPECT_TRUE(decoder.opened.empty());
}

TEST_F(PictureLoaderTest, AGifIsComposedOnItsScreen) {
  heads.content["a.gif"] = SmallGif().file();
  const auto picture = loader.open("a.gif");
  for (int round = 0; round < 2; ++round) {
    const auto drawn = picture->drawnAt({3, 2});
    ASSERT_TRUE(drawn);
    EXPECT_EQ(drawn->at(0, 0), 0xFFFF0000U);
    EXPECT_EQ(drawn->at(1, 0), 0xFF00FF00U);
    EXPECT_EQ(drawn->at(2, 0), 0U);
    EXPECT_FALSE(drawn->isOpaque());
  }
}

TEST_F(PictureLoaderTest, AGifLargerThanItsHeadIsReadAsFarAsItsFrameMayNeed) {
  support::GifBuilder gif;
  gif.screen = {700, 600};
  gif.frame = {0, 0, 700, 600};
  gif.indices.resize(700 * 600);
  std::iota(gif.indices.begin(), gif.indices.end(), std::uint8_t{0});
  heads.content["a.gif"] = gif.file() + std::string(5 << 20, 'x');  // further frames
  const auto drawn = loader.open("a.gif")->drawnAt({700, 600});
  ASSERT_TRUE(drawn);
  EXPECT_TRUE(drawn->isOpaque());
  const base::Pixel last = (700 * 600 - 1) % 256;
  EXPECT_EQ(drawn->at(699, 599) & 0xFF, last);
  EXPECT_EQ(heads.limits.back(), (256U << 10) + 3U * 700 * 600);
}

TEST_F(PictureLoaderTest, AGifWithoutOnePixelIsNull) {
  heads.content["a.gif"] = SmallGif().beforeData();
  EXPECT_FALSE(loader.open("a.gif"));
}

}  // namespace
}  // namespace pictures

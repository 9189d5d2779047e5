// How much a picture file may claim, before a decoder sees it and after.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "pictures/picture_loader.h"
#include "support/fake_files.h"
#include "support/jpeg_builder.h"
#include "support/sized_source.h"

namespace pictures {
namespace {

// Opens everything, at a size of its own.
class DecoderWithSize final : public os::PictureDecoder {
 public:
  std::unique_ptr<os::PictureSource> open(const std::string&) override {
    ++opened;
    return std::make_unique<support::SizedSource>(size);
  }

  base::PixelSize size;
  int opened = 0;
};

class PictureBounds : public testing::Test {
 protected:
  // Whether a file is a picture when its decoder finds this size in it.
  bool opensAt(const std::string& content, base::PixelSize found) {
    heads.content["a"] = content;
    decoder.size = found;
    return loader.open("a") != nullptr;
  }

  support::FakeFiles heads;
  DecoderWithSize decoder;
  FilePictureLoader loader{heads, decoder};
};

std::string ProgressiveJpeg(base::PixelSize size) {
  std::string jpeg = support::JpegHead("", size);
  jpeg[jpeg.find('\xC0')] = '\xC2';
  const std::size_t components = jpeg.find(std::string("\x01\x01\x11", 3));
  jpeg[components] = '\3';
  return jpeg;
}

TEST_F(PictureBounds, TheSizeThatADecoderFindsIsCheckedWhateverTheHeadClaims) {
  const std::string small = support::JpegHead("", {64, 48});
  EXPECT_TRUE(opensAt(small, {64, 48}));
  EXPECT_TRUE(opensAt(small, {16384, 16384})) << "1 GiB at four bytes a pixel";
  EXPECT_FALSE(opensAt(small, {16385, 16384}));
  EXPECT_FALSE(opensAt(small, {65536, 1}));
  EXPECT_FALSE(opensAt(small, {1, 65536}));
  EXPECT_FALSE(opensAt(small, {0, 48}));
  EXPECT_FALSE(opensAt(small, {64, 0}));
  EXPECT_EQ(decoder.opened, 7);
}

TEST_F(PictureBounds, TheSizeThatADecoderFindsIsCheckedByWhatTheHeadSaysOfEachPixel) {
  const std::string progressive = ProgressiveJpeg({64, 48});
  EXPECT_TRUE(opensAt(progressive, {10922, 10923})) << "nine bytes a pixel";
  EXPECT_FALSE(opensAt(progressive, {10923, 10923}));
}

TEST_F(PictureBounds, AClaimBeyondThemIsRefusedBeforeADecoderSeesIt) {
  EXPECT_TRUE(opensAt(support::JpegHead("", {16384, 16384}), {16384, 16384}));
  EXPECT_TRUE(opensAt(ProgressiveJpeg({10922, 10923}), {1, 1}));
  EXPECT_EQ(decoder.opened, 2);
  EXPECT_FALSE(opensAt(support::JpegHead("", {16385, 16384}), {1, 1}));
  EXPECT_FALSE(opensAt(ProgressiveJpeg({10923, 10923}), {1, 1}));
  EXPECT_FALSE(opensAt(support::JpegHead("", {0, 10}), {1, 1}));
  EXPECT_EQ(decoder.opened, 2);
}

TEST_F(PictureBounds, APictureOfAnUnknownKindMayHaveEightBytesAPixel) {
  const std::string unknown = "some format of a later day";
  EXPECT_TRUE(opensAt(unknown, {11585, 11585}));
  EXPECT_FALSE(opensAt(unknown, {11586, 11586}));
}

TEST_F(PictureBounds, ALongerLookIsTakenWhereTheFileGoesOn) {
  constexpr std::size_t kHead = 256 << 10;
  constexpr std::size_t kLongHead = 16 << 20;
  const auto looksAt = [this](std::string content, std::size_t length) {
    heads.limits.clear();
    content.resize(length, '\0');
    opensAt(content, {8, 6});
    return heads.limits;
  };
  const std::vector<std::size_t> once = {kHead};
  const std::vector<std::size_t> twice = {kHead, kLongHead};
  const std::string tiff("II\x2A\0\x08\0\0\0", 8);
  const std::string jpegWithoutSize("\xFF\xD8\xFF\xE2\xFF\xFF", 6);
  EXPECT_EQ(looksAt(tiff, kHead - 1), once);
  EXPECT_EQ(looksAt(tiff, kHead), twice) << "nobody knows that this is all";
  EXPECT_EQ(looksAt(jpegWithoutSize, kHead - 1), once);
  EXPECT_EQ(looksAt(jpegWithoutSize, kHead + 1), twice);
  EXPECT_EQ(looksAt(support::JpegHead("", {8, 6}), kHead + 1), once) << "its size is known";
  EXPECT_EQ(looksAt("some format of a later day", kHead + 1), once) << "nothing in it would be understood";
}

}  // namespace
}  // namespace pictures

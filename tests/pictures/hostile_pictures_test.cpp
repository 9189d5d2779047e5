// The hostile picture set against everything that the program decodes by itself, and against its border to
// the machine's decoder.
#include "support/hostile/hostile_pictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "pictures/picture_header.h"
#include "pictures/picture_loader.h"
#include "support/allocation_watch.h"
#include "support/fake_files.h"
#include "support/fake_picture_decoder.h"
#include "support/sized_source.h"

namespace pictures {
namespace {

constexpr base::PixelSize kThumbnail{48, 36};

bool IsGif(const support::HostilePicture& picture) { return picture.bytes.starts_with("GIF8"); }

// A decoder that opens everything that it is asked for, at the size that the file claims, and then breaks.
class TrustingDecoder final : public os::PictureDecoder {
 public:
  explicit TrustingDecoder(support::FakeFiles& heads) : heads_(heads) {}

  std::unique_ptr<os::PictureSource> open(const std::string& path) override {
    const auto header = ReadPictureHeader(heads_.content[path]);
    if (!header) return nullptr;  // of no kind that this decoder knows either
    EXPECT_TRUE(header->size.has_value()) << path << " has no size and came to the decoder";
    opened.insert(path);
    return std::make_unique<support::SizedSource>(*header->size);
  }

  std::set<std::string> opened;

 private:
  support::FakeFiles& heads_;
};

class HostilePictures : public testing::Test {
 protected:
  HostilePictures() {
    for (const auto& picture : all) heads.content[picture.name] = picture.bytes;
  }

  const support::HostilePictures all = support::AllHostilePictures();
  support::FakeFiles heads;
};

TEST_F(HostilePictures, EveryNameStandsForOneFile) {
  std::set<std::string> names;
  for (const auto& picture : all) EXPECT_TRUE(names.insert(picture.name).second) << picture.name;
}

TEST_F(HostilePictures, OurOwnDecoderDrawsWhatItShouldAndRefusesTheRest) {
  support::FakePictureDecoder none;
  FilePictureLoader loader(heads, none);
  int drawnOnes = 0;
  for (const auto& picture : all) {
    if (!IsGif(picture)) continue;
    const auto opened = loader.open(picture.name);
    const auto drawn = opened ? opened->drawnAt(kThumbnail) : nullptr;
    if (picture.outcome != support::Outcome::either) {
      EXPECT_EQ(drawn != nullptr, picture.outcome == support::Outcome::drawn) << picture.name;
    }
    if (!drawn) continue;
    ++drawnOnes;
    EXPECT_EQ(drawn->size(), kThumbnail) << picture.name;
    EXPECT_EQ(opened->size(), picture.size.value_or(opened->size())) << picture.name;
    if (!picture.corners) continue;
    const auto whole = opened->drawnAt(opened->size());
    ASSERT_TRUE(whole) << picture.name;
    EXPECT_EQ(whole->at(0, 0), picture.corners->topLeft) << picture.name;
    EXPECT_EQ(whole->at(opened->size().width - 1, opened->size().height - 1), picture.corners->bottomRight)
        << picture.name;
  }
  EXPECT_GT(drawnOnes, 10);
}

TEST_F(HostilePictures, NoClaimBeyondTheBoundComesToTheMachinesDecoder) {
  TrustingDecoder decoder(heads);
  FilePictureLoader loader(heads, decoder);
  for (const auto& picture : all) {
    const auto opened = loader.open(picture.name);
    EXPECT_FALSE(opened && !IsGif(picture) && opened->drawnAt({1, 1})) << picture.name;
    if (!decoder.opened.contains(picture.name)) continue;
    const auto header = ReadPictureHeader(picture.bytes);
    EXPECT_LE(PixelCount(*header->size) * header->bytesPerPixel, std::int64_t{1} << 30) << picture.name;
  }
  EXPECT_GT(decoder.opened.size(), 100U);
  for (const auto& name : {"bmp-claims-65535-squared.bmp", "jpeg-claims-65535-squared.jpg",
                           "jpeg-claims-coefficients-beyond-all-memory.jpg", "png-claims-65535-squared.png",
                           "png-claims-deep-pixels.png", "bmp-claims-all-it-can.bmp"}) {
    ASSERT_TRUE(heads.content.contains(name)) << name;
    EXPECT_FALSE(decoder.opened.contains(name)) << name;
  }
}

TEST_F(HostilePictures, NoFileMakesTheProgramAskForMuchMoreThanItsPixelsNeed) {
  TrustingDecoder decoder(heads);
  FilePictureLoader loader(heads, decoder);
  for (const auto& picture : all) {
    support::AllocationWatch watch;
    const auto opened = loader.open(picture.name);
    if (opened) opened->drawnAt(kThumbnail);
    // A band of rows of the widest picture, and what the file itself holds.
    const std::size_t bound =
        (std::size_t{65535} * 16 * 4) + 64 * picture.bytes.size() + (std::size_t{1} << 20);
    EXPECT_LE(watch.largest(), bound) << picture.name;
  }
}

TEST_F(HostilePictures, TheWatchOnAllocationsSeesThem) {
  support::AllocationWatch watch;
  const std::vector<char> large(12345678);
  EXPECT_GE(watch.largest(), large.size());
}

}  // namespace
}  // namespace pictures

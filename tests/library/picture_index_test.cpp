#include "library/picture_index.h"

#include <gtest/gtest.h>

namespace {

using library::FolderListing;
using library::PayloadOf;
using library::PictureIndexOf;

std::vector<FolderListing> SomeListings() {
  return {{"C:\\p", true, {"a\\1.jpg", "a\\2.jpg", "a\\2.jpg", "a\\10.jpg", "", "b.jpg"}},
          {"\\\\server\\share\\", false, {}},
          {"D:\\\xD0\xBB", true, {"\xD0\xBB\xD0\xB5.jpg", "\xD0\xBC.jpg"}}};
}

TEST(PictureIndex, ReadsBackAsItWasWritten) {
  EXPECT_EQ(PictureIndexOf(PayloadOf(SomeListings())), SomeListings());
  EXPECT_EQ(PictureIndexOf(PayloadOf(std::vector<FolderListing>())), std::vector<FolderListing>());
}

TEST(PictureIndex, ThirtyThousandPicturesTakeLittleMoreThanWhatDiffers) {
  std::vector<FolderListing> listings = {{"C:\\p", true, {}}};
  for (int i = 0; i < 30'000; ++i)
    listings[0].pictures.push_back("a folder with a long name\\picture " + std::to_string(100'000 + i) +
                                   ".jpg");
  const std::string payload = PayloadOf(listings);
  EXPECT_LT(payload.size(), 30'000U * 24U);
  EXPECT_EQ(PictureIndexOf(payload), listings);
}

TEST(PictureIndex, APayloadThatIsCutOrGoesOnIsNone) {
  const std::string payload = PayloadOf(SomeListings());
  for (std::size_t size = 0; size < payload.size(); ++size)
    EXPECT_FALSE(PictureIndexOf(payload.substr(0, size))) << size;
  EXPECT_FALSE(PictureIndexOf(payload + 'x'));
}

TEST(PictureIndex, ASmallFileCannotClaimMuchMemory) {
  library::PayloadWriter writer;
  writer.number(1);
  writer.text("C:\\p");
  writer.number(1);
  writer.number(2000);
  writer.number(0);
  writer.text(std::string(100'000, 'x'));
  for (int i = 1; i < 2000; ++i) {
    writer.number(100'000);
    writer.text("");
  }
  EXPECT_FALSE(PictureIndexOf(writer.payload()));
}

}  // namespace

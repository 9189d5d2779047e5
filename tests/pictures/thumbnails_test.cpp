#include "pictures/thumbnails.h"

#include <gtest/gtest.h>

#include "support/fake_pictures.h"

namespace pictures {
namespace {

struct ThumbnailTest : testing::Test {
  support::FakePictures files;
  std::shared_ptr<Thumbnails> kept = std::make_shared<Thumbnails>();
  ThumbnailLoader loader{
      std::shared_ptr<PictureLoader>(std::shared_ptr<void>(), &files), kept, {192, 108}, {1920, 1080}};
};

TEST_F(ThumbnailTest, APictureIsAsMuchSmallerAsTheScreen) {
  files.add("a", {640, 480}, base::kWhite);
  files.add("dot", {1, 2}, base::kWhite);
  EXPECT_EQ(loader.open("a")->size(), (base::PixelSize{64, 48}));
  EXPECT_EQ(loader.open("dot")->size(), (base::PixelSize{1, 1}));
}

TEST_F(ThumbnailTest, AFileIsDecodedOnceForAllSizes) {
  files.add("a", {6000, 4000}, base::Rgb(1, 2, 3));
  const SharedPicture first = loader.open("a");
  ASSERT_TRUE(first);
  EXPECT_EQ(first->drawnAt({162, 108})->size(), (base::PixelSize{162, 108}));
  EXPECT_EQ(loader.open("a")->drawnAt({40, 30})->at(7, 7), base::OpaquePixel(base::Rgb(1, 2, 3)));
  EXPECT_EQ(files.drawnSizes, (std::vector<base::PixelSize>{{256, 171}}));
  EXPECT_EQ(files.opened.size(), 2U) << "once for its size, once for its pixels";
}

TEST_F(ThumbnailTest, ALargerScreenReadsItAgainAndASmallerOneDoesNot) {
  files.add("a", {6000, 4000}, base::kWhite);
  loader.open("a")->drawnAt({100, 60});
  ThumbnailLoader larger(std::shared_ptr<PictureLoader>(std::shared_ptr<void>(), &files), kept, {384, 216},
                         {1920, 1080});
  larger.open("a")->drawnAt({100, 60});
  EXPECT_EQ(files.drawnSizes, (std::vector<base::PixelSize>{{256, 171}, {512, 341}}));
  loader.open("a")->drawnAt({100, 60});
  EXPECT_EQ(files.drawnSizes.size(), 2U);
}

TEST_F(ThumbnailTest, ASmallPictureIsKeptAsItIsAndAPanoramaIsCut) {
  files.add("small", {300, 20}, base::kWhite);
  files.add("long", {30000, 500}, base::kWhite);
  loader.open("small")->drawnAt({30, 2});
  loader.open("long")->drawnAt({192, 3});
  EXPECT_EQ(files.drawnSizes, (std::vector<base::PixelSize>{{300, 20}, {1024, 17}}));
}

TEST_F(ThumbnailTest, WhatCannotBeOpenedOrDrawnIsAskedForAgain) {
  EXPECT_FALSE(loader.open("missing"));
  files.addBroken("broken", {100, 100});
  EXPECT_FALSE(loader.open("broken")->drawnAt({10, 10}));
  files.add("broken", {100, 100}, base::kWhite);
  EXPECT_TRUE(loader.open("broken")->drawnAt({10, 10}));
}

TEST_F(ThumbnailTest, WhatTheFileSaysOfItselfIsKnown) {
  files.add("a", {640, 480}, base::kWhite);
  files.facts["a"] = {.title = "a title"};
  EXPECT_EQ(loader.open("a")->facts().title, "a title");
  loader.open("a")->drawnAt({10, 10});
  EXPECT_EQ(loader.open("a")->facts().title, "a title") << "of a picture that is kept, too";
}

TEST_F(ThumbnailTest, TheOldestGoesWhenThereAreTooMany) {
  for (std::size_t i = 0; i <= Thumbnails::kMost; ++i) {
    const std::string path = std::to_string(i);
    files.add(path, {10, 10}, base::kWhite);
    loader.open(path)->drawnAt({1, 1});
  }
  EXPECT_FALSE(kept->find("0"));
  EXPECT_TRUE(kept->find("1"));
  EXPECT_TRUE(kept->find(std::to_string(Thumbnails::kMost)));
}

}  // namespace
}  // namespace pictures

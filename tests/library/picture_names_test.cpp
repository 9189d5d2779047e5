#include "library/picture_names.h"

#include <gtest/gtest.h>

namespace {

using library::PatternsWith;
using library::PictureNames;

TEST(PictureNames, PatternsNameTheirEndingsAndNoOthers) {
  const PictureNames names = PictureNames::ofPatterns("*.bmp;*.JPG;;nonsense;*");
  for (const char* name : {"a.bmp", "a.BMP", "b.jpg", ".jpg"}) EXPECT_TRUE(names.contains(name)) << name;
  for (const char* name : {"a.gif", "a.jif", "bmp", "a.bmp.txt", "a.", ""})
    EXPECT_FALSE(names.contains(name)) << name;
}

TEST(PictureNames, EndingsThatPatternsLackAreAddedInOrderAndOnce) {
  EXPECT_EQ(PatternsWith("*.bmp;*.gif", {".png", ".GIF", ".dds", ".PNG"}), "*.bmp;*.gif;*.dds;*.png");
  EXPECT_EQ(PatternsWith("*.bmp", {}), "*.bmp");
}

TEST(PictureNames, WhatWouldMeanSomethingElseInAPatternIsNoEnding) {
  EXPECT_EQ(PatternsWith("*.bmp", {"", ".", "png", ".*", ".a;b", ".a|b", ".a?", ".a\\b"}), "*.bmp");
}

}  // namespace

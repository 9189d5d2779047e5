#include "base/natural_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

using base::CompareNaturally;

TEST(NaturalOrder, NumbersCountByTheirValue) {
  const std::vector<std::string> sorted = {"1.jpg",
                                           "2.jpg",
                                           "10.jpg",
                                           "a 9 b 10",
                                           "a 10 b 2",
                                           "a1.jpg",
                                           "a02.jpg",
                                           "a2.jpg",
                                           "a002b",
                                           "a3.jpg",
                                           "a10.jpg",
                                           "a2005.jpg",
                                           "a99999999999999999999999.jpg",
                                           "ab.jpg"};
  for (std::size_t i = 0; i + 1 < sorted.size(); ++i) {
    EXPECT_LT(CompareNaturally(sorted[i], sorted[i + 1]), 0) << sorted[i] << " before " << sorted[i + 1];
    EXPECT_GT(CompareNaturally(sorted[i + 1], sorted[i]), 0);
  }
}

TEST(NaturalOrder, SmallAndCapitalLettersStandTogether) {
  EXPECT_LT(CompareNaturally("Anna", "bert"), 0);
  EXPECT_LT(CompareNaturally("anna", "Bert"), 0);
  EXPECT_NE(CompareNaturally("anna", "Anna"), 0);
  EXPECT_EQ(CompareNaturally("anna", "anna"), 0);
}

TEST(NaturalOrder, AShorterTextStandsBeforeWhatGoesOn) {
  EXPECT_LT(CompareNaturally("", "a"), 0);
  EXPECT_LT(CompareNaturally("a", "a1"), 0);
  EXPECT_LT(CompareNaturally("a1", "a1b"), 0);
}

TEST(NaturalOrder, IsAnOrderForAnyNames) {
  std::mt19937 chance(1);
  const std::string letters = "aA0129-.\xC3";
  std::vector<std::string> names;
  for (int i = 0; i < 60; ++i) {
    std::string name;
    for (auto size = chance() % 6; size > 0; --size) name += letters[chance() % letters.size()];
    names.push_back(name);
  }
  for (const std::string& a : names) {
    for (const std::string& b : names) {
      EXPECT_EQ(CompareNaturally(a, b) < 0, CompareNaturally(b, a) > 0) << a << " " << b;
      EXPECT_EQ(CompareNaturally(a, b) == 0, a == b);
      for (const std::string& c : names) {
        if (CompareNaturally(a, b) < 0 && CompareNaturally(b, c) < 0) {
          EXPECT_LT(CompareNaturally(a, c), 0) << a << " " << b << " " << c;
        }
      }
    }
  }
}

TEST(NaturalOrder, WhatIsNumberedBeforeComesBefore) {
  EXPECT_TRUE(base::IsNumberedBefore("IMG_0001.jpg", "img_0002.jpg"));
  EXPECT_TRUE(base::IsNumberedBefore("a19b", "a20"));
  EXPECT_TRUE(base::IsNumberedBefore("1", "2"));
  for (const auto& [a, b] : {std::pair("2", "1"),
                             {"1", "1"},
                             {"9", "10"},
                             {"10", "9"},
                             {"1a", "1b"},
                             {"a1", "b2"},
                             {"1", "1 2"},
                             {"1x", "12"},
                             {"", "1"},
                             {"1", ""},
                             {"a", "1"},
                             {"12", "2"}})
    EXPECT_FALSE(base::IsNumberedBefore(a, b)) << a << ", " << b;
}

TEST(NaturalOrder, NothingIsNumberedBeforeWhatItComesBehind) {
  std::mt19937 chance(1);
  const auto text = [&] {
    std::string made;
    for (auto length = chance() % 6; length > 0; --length) made += "aA019_."[chance() % 7];
    return made;
  };
  int numbered = 0;
  for (int i = 0; i < 200'000; ++i) {
    const std::string a = text();
    const std::string b = text();
    if (!base::IsNumberedBefore(a, b)) continue;
    ++numbered;
    ASSERT_LT(base::CompareNaturally(a, b), 0) << a << ", " << b;
  }
  EXPECT_GT(numbered, 1000);
}

}  // namespace

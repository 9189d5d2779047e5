#include "pictures/tiff_block.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "support/byte_writer.h"

namespace pictures {
namespace {

using support::NumberBytes;

// A block whose directory stands at an offset and announces a count of entries.
std::string Block(bool bigEndian, std::uint32_t directory, std::uint32_t count, const std::string& entries) {
  return (bigEndian ? "MM" : "II") + NumberBytes(42, 2, bigEndian) + NumberBytes(directory, 4, bigEndian) +
         std::string(directory - 8, '\x7F') + NumberBytes(count, 2, bigEndian) + entries;
}

std::string Entry(bool bigEndian, std::uint32_t tag, std::uint32_t type, std::uint32_t count,
                  const std::string& value) {
  return NumberBytes(tag, 2, bigEndian) + NumberBytes(type, 2, bigEndian) + NumberBytes(count, 4, bigEndian) +
         value;
}

// The number that the only entry of a block holds, in its four bytes.
std::optional<std::uint32_t> NumberIn(bool bigEndian, std::uint32_t type, std::uint32_t count,
                                      const std::string& value) {
  const std::string bytes = Block(bigEndian, 8, 1, Entry(bigEndian, 1, type, count, value));
  const auto block = TiffBlock::of(bytes);
  const auto entry = block ? block->entry(8, 0) : std::nullopt;
  return entry ? block->number(*entry) : std::nullopt;
}

TEST(TiffBlock, EveryEntryOfADirectoryIsReadAndNoneBehindIt) {
  for (const bool bigEndian : {false, true}) {
    for (const std::uint32_t count : {0U, 1U, 2U, 255U, 256U, 300U, 5461U}) {
      std::string entries;
      for (std::uint32_t i = 0; i <= count; ++i) {  // one more than the directory has
        entries += Entry(bigEndian, 1000 + i, 3, 1, NumberBytes(i, 4, bigEndian));
      }
      const std::string bytes = Block(bigEndian, 8, count, entries);
      const auto block = TiffBlock::of(bytes);
      ASSERT_TRUE(block);
      for (std::uint32_t i = 0; i < count; ++i) {
        const auto entry = block->entry(8, i);
        ASSERT_TRUE(entry) << i << " of " << count;
        ASSERT_EQ(entry->tag, 1000 + i);
      }
      EXPECT_FALSE(block->entry(8, count)) << count;
    }
  }
}

TEST(TiffBlock, BeginsWithAByteOrderAnd42InIt) {
  const auto isBlock = [](const char* beginning) {
    return TiffBlock::of(std::string(beginning, 4) + std::string(20, '\0')).has_value();
  };
  EXPECT_TRUE(isBlock("II\x2A\0"));
  EXPECT_TRUE(isBlock("MM\0\x2A"));
  for (const char* other :
       {"II\0\x2A", "MM\x2A\0", "II\x2B\0", "MM\0\x2B", "II\x2A\1", "MM\1\x2A", "II\0\0", "MM\0\0",
        "IM\x2A\0", "IM\0\x2A", "MI\0\x2A", "ii\x2A\0", "mm\0\x2A", "\0\0\0\x2A", "JJ\0\x2A", "JJ\x2A\0"}) {
    EXPECT_FALSE(isBlock(other)) << other;
  }
}

TEST(TiffBlock, ANumberIsAByteAShortOrALongAndNothingElse) {
  const std::string value("\x05\x06\x07\x08", 4);
  for (std::uint32_t type = 0; type <= 0x0404; ++type) {
    for (const bool bigEndian : {false, true}) {
      const auto number = NumberIn(bigEndian, type, 1, value);
      if (type == 1) {
        EXPECT_EQ(number, 5U);
      } else if (type == 3) {
        EXPECT_EQ(number, bigEndian ? 0x0506U : 0x0605U);
      } else if (type == 4) {
        EXPECT_EQ(number, bigEndian ? 0x05060708U : 0x08070605U);
      } else {
        EXPECT_EQ(number, std::nullopt) << type;
      }
    }
  }
}

TEST(TiffBlock, ANumberStandsInItsEntryWhateverCountItHas) {
  for (const std::uint32_t count : {0U, 1U, 2U, 4U, 5U, 0x01000000U, 0xFFFFFFFFU}) {
    EXPECT_EQ(NumberIn(false, 3, count, std::string("\6\0\xFF\xFF", 4)), 6U) << count;
  }
}

TEST(TiffBlock, ItsDirectoryMayStandAnywhere) {
  for (const bool bigEndian : {false, true}) {
    for (const std::uint32_t place : {8U, 9U, 255U, 256U, 65535U, 65536U, 70001U}) {
      const std::string bytes =
          Block(bigEndian, place, 1, Entry(bigEndian, 0x0112, 3, 1, std::string(4, '\0')));
      const auto block = TiffBlock::of(bytes);
      ASSERT_TRUE(block);
      ASSERT_EQ(block->firstDirectory(), place);
      const auto entry = block->entry(place, 0);
      ASSERT_TRUE(entry) << place;
      EXPECT_EQ(entry->tag, 0x0112);
    }
  }
}

TEST(TiffBlock, WhatStandsBeyondItsBytesIsZeroOrNothing) {
  const std::string whole = Block(false, 8, 2, Entry(false, 0x0112, 3, 1, std::string("\6\0\0\0", 4)));
  const auto block = TiffBlock::of(whole);
  ASSERT_TRUE(block);
  EXPECT_TRUE(block->entry(8, 0));
  EXPECT_FALSE(block->entry(8, 1)) << "announced, and not there";
  EXPECT_FALSE(block->entry(whole.size() - 1, 0));
  EXPECT_FALSE(block->entry(0xFFFFFFFF, 0));
  const std::string tagAlone = whole.substr(0, 12);
  const auto cut = TiffBlock::of(tagAlone);
  const auto entry = cut->entry(8, 0);
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->type, 0);
  EXPECT_EQ(cut->number(*entry), std::nullopt);
  EXPECT_FALSE(TiffBlock::of(whole.substr(0, 11))->entry(8, 0)) << "half a tag";
}

}  // namespace
}  // namespace pictures

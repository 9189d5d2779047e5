#include "library/sealed.h"

#include <gtest/gtest.h>

namespace {

using library::Seal;
using library::SealKind;
using library::Unseal;

constexpr SealKind kKind{'T', 3};

TEST(Sealed, WhatWasSealedIsUnsealedWithItsSerial) {
  const std::string payload("a\0b\xFF\n", 5);
  const std::string bytes = Seal(kKind, 0x1234567890ABCDEFU, payload);
  const auto unsealed = Unseal(kKind, bytes);
  ASSERT_TRUE(unsealed);
  EXPECT_EQ(unsealed->payload, payload);
  EXPECT_EQ(unsealed->serial, 0x1234567890ABCDEFU);
  EXPECT_EQ(Unseal(kKind, Seal(kKind, 0, ""))->payload, "");
}

TEST(Sealed, TheChecksumIsThatOfZipAndPng) {
  // Of the head and "abc", as zlib's crc32() gives it.
  const std::string bytes = Seal({'S', 1}, 1, "abc");
  ASSERT_EQ(bytes.size(), 27U + 4U + 3U);
  EXPECT_EQ(bytes.substr(27, 4), std::string("\x73\x95\x0E\x7D", 4));
}

TEST(Sealed, AFileThatIsCutAnywhereIsNotTaken) {
  const std::string bytes = Seal(kKind, 7, "payload");
  for (std::size_t size = 0; size < bytes.size(); ++size)
    EXPECT_FALSE(Unseal(kKind, bytes.substr(0, size))) << size;
}

TEST(Sealed, AFileWithOneDamagedByteIsNotTaken) {
  const std::string bytes = Seal(kKind, 7, "payload");
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    for (const int flipped : {1, 0x80, 0xFF}) {
      std::string damaged = bytes;
      damaged[at] = static_cast<char>(damaged[at] ^ flipped);
      EXPECT_FALSE(Unseal(kKind, damaged)) << at;
    }
  }
}

TEST(Sealed, AFileThatGoesOnBehindItsEndIsNotTaken) {
  EXPECT_FALSE(Unseal(kKind, Seal(kKind, 7, "payload") + '\0'));
}

TEST(Sealed, AnotherKindOrVersionIsNotTaken) {
  const std::string bytes = Seal(kKind, 7, "payload");
  EXPECT_FALSE(Unseal({'U', 3}, bytes));
  EXPECT_FALSE(Unseal({'T', 4}, bytes));
  EXPECT_FALSE(Unseal({'T', 2}, bytes));
  EXPECT_TRUE(Unseal({'T', 3}, bytes));
}

TEST(PayloadReader, ReadsWhatAWriterWrote) {
  library::PayloadWriter writer;
  writer.number(0xFFFFFFFFFFFFFFFFU);
  writer.text("C:\\\xD0\xBB\xD0\xB5\xD1\x82\xD0\xBE.jpg");
  writer.text("");
  library::PayloadReader reader(writer.payload());
  EXPECT_EQ(reader.number(), 0xFFFFFFFFFFFFFFFFU);
  EXPECT_EQ(reader.text(), "C:\\\xD0\xBB\xD0\xB5\xD1\x82\xD0\xBE.jpg");
  EXPECT_EQ(reader.text(), "");
  EXPECT_TRUE(reader.isWhole());
  EXPECT_TRUE(reader.isAtEnd());
}

TEST(PayloadReader, ATextLongerThanThePayloadIsEmptyAndEverythingBehindItToo) {
  library::PayloadWriter writer;
  writer.number(1'000'000'000'000U);
  writer.number(5);
  library::PayloadReader reader(writer.payload());
  EXPECT_EQ(reader.text(), "");
  EXPECT_FALSE(reader.isWhole());
  EXPECT_EQ(reader.number(), 0U);
}

}  // namespace

#include "os/ansi_code_page_win.h"

#include <gtest/gtest.h>

#include "support/windows_1252.h"

namespace {

TEST(AnsiCodePageWin, TheWesternPageIsTheOneOfTheNativeTests) {
  const os::AnsiCodePageWin page(1252);
  const support::Windows1252 known;
  for (int byte = 0; byte < 256; ++byte) {
    const std::string bytes(1, static_cast<char>(byte));
    EXPECT_EQ(page.decode(bytes), known.decode(bytes)) << byte;
    EXPECT_EQ(page.encode(known.decode(bytes)), bytes) << byte;
  }
}

TEST(AnsiCodePageWin, EveryTwoBytesComeBackOrAreTheSameCharacter) {
  for (const unsigned number : {1250U, 1251U, 1252U, 1253U, 874U, 932U, 936U, 949U, 950U, 65001U}) {
    const os::AnsiCodePageWin page(number);
    for (int pair = 0; pair < 0x10000; ++pair) {
      const std::string bytes{static_cast<char>(pair >> 8), static_cast<char>(pair & 0xFF)};
      const std::string text = page.decode(bytes);
      const auto back = page.encode(text);
      ASSERT_TRUE(back.has_value()) << number << ' ' << std::hex << pair;
      ASSERT_TRUE(back == bytes || page.decode(*back) == text) << number << ' ' << std::hex << pair;
    }
  }
}

TEST(AnsiCodePageWin, OnlyAnExactPlaceCounts) {
  const os::AnsiCodePageWin western(1252);
  EXPECT_EQ(western.encode("\xC4\x81"), std::nullopt);          // a with a macron is not a
  EXPECT_EQ(western.encode("\xEF\xBC\xA1"), std::nullopt);      // a full-width A is not A
  EXPECT_EQ(western.encode("\xF0\x9F\x8C\x99"), std::nullopt);  // a moon
  EXPECT_EQ(western.encode("?"), "?");
  const os::AnsiCodePageWin japanese(932);
  EXPECT_EQ(japanese.encode("\xE8\xA1\xA8"), "\x95\x5C");  // its second byte is a backslash
  EXPECT_EQ(japanese.decode("\x95\x5C"), "\xE8\xA1\xA8");
}

TEST(AnsiCodePageWin, TheUtf8PageKeepsBrokenBytesBesideWholeCharacters) {
  const os::AnsiCodePageWin page(65001);
  const std::string bytes = "\xE2\x82\xAC \xE9 \xF0\x9F\x8C\x99";
  EXPECT_NE(page.decode(bytes).find("\xF0\x9F\x8C\x99"), std::string::npos);
  EXPECT_EQ(page.encode(page.decode(bytes)), bytes);
}

TEST(AnsiCodePageWin, TheSystemsPageReadsAscii) {
  const os::AnsiCodePageWin page;
  EXPECT_EQ(page.decode("zbfaone"), "zbfaone");
  EXPECT_EQ(page.encode("zbfaone"), "zbfaone");
}

}  // namespace

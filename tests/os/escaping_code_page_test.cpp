#include "os/escaping_code_page.h"

#include <gtest/gtest.h>

#include "support/windows_1252.h"

namespace {

// A small code page with characters of two bytes: 0x81 0x40 is the euro sign, 0xA1 is an e with an acute
// accent, and no other byte above 0x7F has a meaning.
class TwoByteCodePage : public os::EscapingCodePage {
 protected:
  std::optional<std::string> decodeExactly(std::string_view ansi) const override {
    std::string utf8;
    for (std::size_t i = 0; i < ansi.size(); ++i) {
      if (ansi.substr(i).starts_with("\x81\x40")) {
        utf8 += "\xE2\x82\xAC";
        ++i;
      } else if (ansi[i] == '\xA1') {
        utf8 += "\xC3\xA9";
      } else if (static_cast<unsigned char>(ansi[i]) < 0x80) {
        utf8 += ansi[i];
      } else {
        return std::nullopt;
      }
    }
    return utf8;
  }
  std::optional<std::string> encodeExactly(std::string_view utf8) const override {
    std::string ansi;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
      if (utf8.substr(i).starts_with("\xE2\x82\xAC")) {
        ansi += "\x81\x40";
        i += 2;
      } else if (utf8.substr(i).starts_with("\xC3\xA9")) {
        ansi += '\xA1';
        i += 1;
      } else if (static_cast<unsigned char>(utf8[i]) < 0x80) {
        ansi += utf8[i];
      } else {
        return std::nullopt;
      }
    }
    return ansi;
  }
  std::size_t characterLength(std::string_view ansi) const override { return ansi.front() == '\x81' ? 2 : 1; }
};

TEST(EscapingCodePage, ReadsCharactersOfEveryLength) {
  const TwoByteCodePage page;
  EXPECT_EQ(page.decode("a\x81\x40\xA1z"), "a\xE2\x82\xAC\xC3\xA9z");
  EXPECT_EQ(page.encode("a\xE2\x82\xAC\xC3\xA9z"), "a\x81\x40\xA1z");
  EXPECT_EQ(page.decode(""), "");
}

TEST(EscapingCodePage, ABrokenByteCostsNoOtherCharacter) {
  const TwoByteCodePage page;
  EXPECT_EQ(page.decode("\xFF\x81\x40\x80z"), "\xED\xB3\xBF\xE2\x82\xAC\xED\xB2\x80z");
}

TEST(EscapingCodePage, EveryByteComesBackFromEveryPlace) {
  const TwoByteCodePage page;
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      const std::string bytes{static_cast<char>(first), static_cast<char>(second)};
      EXPECT_EQ(page.encode(page.decode(bytes)), bytes) << first << ' ' << second;
    }
  }
}

TEST(EscapingCodePage, TextThatHasNoPlaceIsRefused) {
  const TwoByteCodePage page;
  EXPECT_EQ(page.encode("\xD0\xBB"), std::nullopt);
  EXPECT_EQ(page.encode("\xED\xA0\x80"), std::nullopt);  // a lone high surrogate
}

TEST(EscapingCodePage, ALoneSurrogateWhoseByteWouldReadBackOtherwiseIsRefused) {
  const TwoByteCodePage page;
  EXPECT_EQ(page.encode("\xED\xB2\xA1"), std::nullopt);      // U+DCA1, but A1 is a character
  EXPECT_EQ(page.encode("\xED\xB2\x81\x40"), std::nullopt);  // U+DC81 before @ would join it
  EXPECT_EQ(page.encode("\xED\xB2\x81z"), "\x81z");
}

TEST(Windows1252, EveryByteComesBack) {
  const support::Windows1252 page;
  for (int byte = 0; byte < 256; ++byte) {
    const std::string bytes(1, static_cast<char>(byte));
    EXPECT_EQ(page.encode(page.decode(bytes)), bytes) << byte;
  }
  EXPECT_EQ(page.decode("\x80\xE9\x81"), "\xE2\x82\xAC\xC3\xA9\xC2\x81");
  EXPECT_EQ(page.encode("\xD0\xBB"), std::nullopt);
}

}  // namespace

#include "startup/caption_example.h"

#include <gtest/gtest.h>

#include "support/fake_date_text.h"
#include "support/windows_1252.h"

namespace startup {
namespace {

TEST(CaptionExampleTest, KnowsAWordForEveryToken) {
  const support::FakeDateText dates;
  const support::Windows1252 ansi;
  for (const char* token :
       {"{name}", "{file}", "{folder}", "{date}", "{time}", "{camera}", "{title}", "{number}", "{total}"}) {
    const std::string word = CaptionExample(token, dates, ansi);
    EXPECT_FALSE(word.empty()) << token;
    EXPECT_NE(word, token);
  }
  EXPECT_EQ(CaptionExample("{title}| - {folder}|", dates, ansi), "Evening at the lake - Summer");
  EXPECT_EQ(CaptionExample("", dates, ansi), "");
}

}  // namespace
}  // namespace startup

#include "saver/caption_template.h"

#include <gtest/gtest.h>

#include "support/noise.h"
#include "support/plain_caption.h"

namespace saver {
namespace {

const CaptionWords kKnown = {.name = "IMG_1",
                             .file = "IMG_1.jpg",
                             .folder = "Italy",
                             .date = "7/14/2019",
                             .time = "6:05 PM",
                             .camera = "Acme X100",
                             .title = "Lake",
                             .number = "3",
                             .total = "17"};
const CaptionWords kNothing = {};

std::string Filled(const std::string& pattern, const CaptionWords& words = kKnown) {
  const std::string caption = FillCaptionTemplate(pattern, words);
  EXPECT_EQ(caption, support::PlainCaption(pattern, words)) << "the second reading of " << pattern;
  return caption;
}

TEST(CaptionTemplate, EveryTokenStandsForItsWord) {
  EXPECT_EQ(Filled("{name};{file};{folder};{date};{time};{camera};{title};{number};{total}"),
            "IMG_1;IMG_1.jpg;Italy;7/14/2019;6:05 PM;Acme X100;Lake;3;17");
  EXPECT_EQ(Filled("{name}{file}{folder}{date}{time}{camera}{title}{number}{total}", kNothing), "");
}

TEST(CaptionTemplate, OtherWordsStandAsTheyAre) {
  EXPECT_EQ(Filled("Our garden"), "Our garden");
  EXPECT_EQ(Filled("{number} of {total}"), "3 of 17");
  EXPECT_EQ(Filled("S\xC3\xB8ren {title}\xF0\x9F\x8C\x8A"), "S\xC3\xB8ren Lake\xF0\x9F\x8C\x8A");
  EXPECT_EQ(Filled(""), "");
}

TEST(CaptionTemplate, UnknownTokensStandAsTheyAre) {
  EXPECT_EQ(Filled("{place} {title}"), "{place} Lake");
  for (const char* pattern :
       {"{Title}", "{ title}", "{titles}", "{title", "title}", "{}", "{", "}", "}}", "{tit{le}"})
    EXPECT_EQ(Filled(pattern), pattern);
}

TEST(CaptionTemplate, TwoOpeningBracesAreOne) {
  EXPECT_EQ(Filled("{{title}"), "{title}");
  EXPECT_EQ(Filled("{{{title}}"), "{Lake}");
  EXPECT_EQ(Filled("{{{{"), "{{");
  EXPECT_EQ(Filled("{{{"), "{{");
  EXPECT_EQ(Filled("a{{b"), "a{b");
}

TEST(CaptionTemplate, WhatLiesBetweenTwoBarsIsLeftOutWhenAllItsTokensAreEmpty) {
  const CaptionWords untitled = {.date = "7/14/2019", .number = "3"};
  EXPECT_EQ(Filled("{title}| - {date}|"), "Lake - 7/14/2019");
  EXPECT_EQ(Filled("{title}| - {date}|", {.title = "Lake"}), "Lake");
  EXPECT_EQ(Filled("|{title}: |{date}", untitled), "7/14/2019");
  EXPECT_EQ(Filled("|{title} ({camera}), |{date}", untitled), "7/14/2019");
  EXPECT_EQ(Filled("|{title} ({number}), |{date}", untitled), "(3), 7/14/2019") << "one of them is known";
  EXPECT_EQ(Filled("|{title}||{camera}||{date}|", untitled), "7/14/2019");
  EXPECT_EQ(Filled("|{title}|", untitled), "");
}

TEST(CaptionTemplate, APartWithoutATokenIsShown) {
  EXPECT_EQ(Filled("A| and |B", kNothing), "A and B");
  EXPECT_EQ(Filled("A||B", kNothing), "AB");
  EXPECT_EQ(Filled("|{place}|", kNothing), "{place}") << "unknown tokens are words";
  EXPECT_EQ(Filled("|{{title}|", kNothing), "{title}");
}

TEST(CaptionTemplate, ALastBarWithoutPartnerStandsForItself) {
  EXPECT_EQ(Filled("Lake | {date}"), "Lake | 7/14/2019");
  EXPECT_EQ(Filled("Lake | {date}", kNothing), "Lake |");
  EXPECT_EQ(Filled("|{title}|{date}|", kNothing), "|");
  EXPECT_EQ(Filled("|"), "|");
}

TEST(CaptionTemplate, AWordIsNotReadAsATemplate) {
  EXPECT_EQ(Filled("{title}{name}", {.name = "{{|", .title = "{date}|"}), "{date}|{{|");
}

TEST(CaptionTemplate, LineEndsAndControlCharactersBecomeBlanks) {
  EXPECT_EQ(Filled("{title}", {.title = "one\r\ntwo\nthree\rfour\tfive"}), "one two three four five");
  EXPECT_EQ(Filled("{title}", {.title = std::string("a\0b\x01"
                                                    "c\x7F"
                                                    "d",
                                                    7)}),
            "a b c d");
  EXPECT_EQ(Filled("{title}", {.title = "a\xC2\x85"
                                        "b\xE2\x80\xA8"
                                        "c\xE2\x80\xA9"
                                        "d"}),
            "a b c d");
  EXPECT_EQ(Filled("{title}", {.title = "a\xC2\x80|\xC2\x9F|\xC2\xA0z"}), "a | |\xC2\xA0z");
  EXPECT_EQ(Filled("a\tb"), "a b");
  EXPECT_EQ(Filled("{title}|, {date}|", {.date = " \r\n ", .title = "Lake"}), "Lake")
      << "blanks alone are nothing";
}

TEST(CaptionTemplate, BlanksAtTheEndsOfWordsAndCaptionSayNothing) {
  EXPECT_EQ(Filled("  {title}  {camera} ", {.title = "  Lake  "}), "Lake");
  EXPECT_EQ(Filled("<{title}>", {.title = "  Lake  "}), "<Lake>");
}

TEST(CaptionTemplate, WhatIsNoCharacterIsShownAsOneThatIsBroken) {
  const std::string broken = "\xEF\xBF\xBD";
  EXPECT_EQ(Filled("{title}", {.title = "a\xE4"
                                        "b"}),
            "a" + broken + "b");
  EXPECT_EQ(Filled("{title}", {.title = "a\xED\xB2\x80"
                                        "b"}),
            "a" + broken + "b")
      << "half of a pair";
}

std::size_t CharactersOf(const std::string& utf8) {
  return static_cast<std::size_t>(
      std::ranges::count_if(utf8, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

TEST(CaptionTemplate, ACaptionHas254WholeCharactersAtMost) {
  for (const std::string& character : {std::string("x"), std::string("\xC3\xA4"), std::string("\xE6\xB9\x96"),
                                       std::string("\xF0\x9F\x8C\x8A")}) {
    for (const int count : {253, 254, 255, 1000}) {
      std::string title;
      for (int i = 0; i < count; ++i) title += character;
      const std::string caption = Filled("{title}", {.title = title});
      EXPECT_EQ(CharactersOf(caption), static_cast<std::size_t>(std::min(count, 254)));
      EXPECT_EQ(caption, title.substr(0, caption.size()));
      EXPECT_EQ(caption.size() % character.size(), 0U);
    }
  }
  EXPECT_EQ(Filled(std::string(253, 'x') + "  y"), std::string(253, 'x')) << "no blank at the cut";
}

TEST(CaptionTemplate, AgreesWithASecondReadingOfItsGrammar) {
  static const char* const kPieces[] = {"{title}",
                                        "{date}",
                                        "{name}",
                                        "{",
                                        "{{",
                                        "}",
                                        "|",
                                        "|",
                                        " ",
                                        "x",
                                        "{camera}",
                                        "{number}",
                                        "{tit",
                                        "{Date}",
                                        "\n",
                                        "\r\n",
                                        "\xC3\xA4",
                                        "\xE4",
                                        "{file}",
                                        "{folder}",
                                        "{time}",
                                        "{total}",
                                        "\xF0\x9F\x8C\x8A",
                                        "\xED\xA0\x80"};
  static const char* const kWords[] = {"",       "",       " ", "Lake", "\r\n",
                                       " a\tb ", "{date}", "|", "\xE4", "\xE6\xB9\x96"};
  support::Noise noise;
  const auto pick = [&noise](const auto& of) {
    return of[static_cast<std::size_t>(noise.upTo(static_cast<int>(std::size(of)) - 1))];
  };
  for (int round = 0; round < 10000; ++round) {
    std::string pattern;
    for (int pieces = noise.upTo(12); pieces > 0; --pieces) pattern += pick(kPieces);
    CaptionWords words;
    for (std::string* word : {&words.name, &words.file, &words.folder, &words.date, &words.time,
                              &words.camera, &words.title, &words.number, &words.total}) {
      *word = pick(kWords);
    }
    const std::string caption = FillCaptionTemplate(pattern, words);
    ASSERT_EQ(caption, support::PlainCaption(pattern, words)) << pattern;
  }
}

}  // namespace
}  // namespace saver

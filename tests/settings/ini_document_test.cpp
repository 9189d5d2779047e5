#include "settings/ini_document.h"

#include <gtest/gtest.h>

#include "support/windows_1252.h"

namespace {

using namespace std::string_view_literals;

using settings::IniDocument;

using support::kWestern;

IniDocument Read(std::string_view bytes) { return {bytes, kWestern}; }

std::string Utf16File(std::u16string_view text) {
  std::string bytes = "\xFF\xFE";
  for (const char16_t unit : text) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  return bytes;
}

// --- reading ---

TEST(IniDocument, AMissingSectionOrKeyIsEmptyText) {
  const IniDocument document = Read("[image]\r\npicSpeed=3\r\n");
  EXPECT_EQ(document.value("image", "picSpeed"), "3");
  EXPECT_EQ(document.value("image", "timeInterval"), "");
  EXPECT_EQ(document.value("font", "picSpeed"), "");
  EXPECT_EQ(Read("").value("image", "picSpeed"), "");
  EXPECT_FALSE(document.has("image", "timeInterval"));
  EXPECT_TRUE(document.has("image", "picSpeed"));
}

TEST(IniDocument, NamesAreFoundInAnyCase) {
  EXPECT_EQ(Read("[IMAGE]\r\nPICSPEED=3\r\n").value("image", "picSpeed"), "3");
  EXPECT_EQ(Read("[image]\r\npicspeed=3\r\n").value("Image", "PicSpeed"), "3");
}

TEST(IniDocument, BlanksRoundNamesAndValuesAreDropped) {
  const IniDocument document = Read(" \t[ \v image\t ] \r\n \t picSpeed \v=\t 3 4 \v\r\n");
  EXPECT_EQ(document.value("image", "picSpeed"), "3 4");
}

TEST(IniDocument, OnePairOfEnclosingQuotesIsRemoved) {
  const IniDocument document = Read(
      "[q]\na=\"  x  \"\nb='x'\nc=\"x'\nd=\"\ne=\"\"\nf=\"\"x\"\"\ng= \"x\" y\nh='\"x\"'\ni=\"x\" "
      "\nj=\"x\";c\n");
  EXPECT_EQ(document.value("q", "a"), "  x  ");
  EXPECT_EQ(document.value("q", "b"), "x");
  EXPECT_EQ(document.value("q", "c"), "\"x'");
  EXPECT_EQ(document.value("q", "d"), "\"");
  EXPECT_EQ(document.value("q", "e"), "");
  EXPECT_EQ(document.value("q", "f"), "\"x\"");
  EXPECT_EQ(document.value("q", "g"), "\"x\" y");
  EXPECT_EQ(document.value("q", "h"), "\"x\"");
  EXPECT_EQ(document.value("q", "i"), "x");
  EXPECT_EQ(document.value("q", "j"), "\"x\";c");
}

TEST(IniDocument, TheFirstSectionAndTheFirstKeyCount) {
  const IniDocument document = Read("[a]\nx=1\nX=2\n[b]\ny=3\n[A]\nx=4\nz=5\n");
  EXPECT_EQ(document.value("a", "x"), "1");
  EXPECT_EQ(document.value("a", "z"), "");
}

TEST(IniDocument, ASemicolonMakesACommentOnlyInFrontOfTheLine) {
  const IniDocument document = Read("[a]\n;x=1\n  ; y=2\nz=3;4\n#w=5\n");
  EXPECT_EQ(document.value("a", ";x"), "");
  EXPECT_EQ(document.value("a", "x"), "");
  EXPECT_EQ(document.value("a", "y"), "");
  EXPECT_EQ(document.value("a", "z"), "3;4");
  EXPECT_EQ(document.value("a", "#w"), "5");
}

TEST(IniDocument, ALineWithoutAnEqualsSignIsNoKey) {
  EXPECT_FALSE(Read("[a]\nx\n").has("a", "x"));
  EXPECT_EQ(Read("[a]\nx\nx=1\n").value("a", "x"), "1");
  EXPECT_EQ(Read("[a]\nx=y=z\n").value("a", "x"), "y=z");
}

TEST(IniDocument, ASectionNameEndsAtItsFirstBracketOrTheEndOfTheLine) {
  EXPECT_EQ(Read("[a] b] ; c\nx=1\n").value("a", "x"), "1");
  EXPECT_EQ(Read("[a\nx=1\n").value("a", "x"), "1");
  EXPECT_EQ(Read("[a=b\nx=1\n").value("a=b", "x"), "1");
}

TEST(IniDocument, KeysBeforeTheFirstSectionAreIgnored) {
  const IniDocument document = Read("x=1\n[a]\ny=2\n");
  EXPECT_EQ(document.value("", "x"), "");
  EXPECT_EQ(document.value("a", "x"), "");
}

TEST(IniDocument, LinesEndInAnyOfTheThreeWaysOrWithTheFile) {
  const IniDocument document = Read("[a]\nx=1\r\ny=2\rz=3\n\r\nw=4");
  EXPECT_EQ(document.value("a", "x"), "1");
  EXPECT_EQ(document.value("a", "y"), "2");
  EXPECT_EQ(document.value("a", "z"), "3");
  EXPECT_EQ(document.value("a", "w"), "4");
}

TEST(IniDocument, ANulEndsAValueAndHarmsNothingElse) {
  const IniDocument document = Read(
      "[a]\nx=1\0"
      "2\ny=3\n\0\nz=4\n"sv);
  EXPECT_EQ(document.value("a", "x"), "1");
  EXPECT_EQ(document.value("a", "y"), "3");
  EXPECT_EQ(document.value("a", "z"), "4");
}

TEST(IniDocument, LongValuesAreCutToTheCharactersAsked) {
  const std::string value = std::string(254, 'x') + "yz";
  EXPECT_EQ(Read("[a]\nx=" + value).value("a", "x", 254), std::string(254, 'x'));
  EXPECT_EQ(Read("[a]\nx=" + value).value("a", "x"), value);
  EXPECT_EQ(Read("[a]\nx=\"" + value + "\"").value("a", "x", 254), std::string(254, 'x'));
  EXPECT_EQ(Read("[a]\nx=" + value.substr(0, 254)).value("a", "x", 254), std::string(254, 'x'));
}

TEST(IniDocument, CharactersOfAnAnsiFileAreItsBytes) {
  const IniDocument document = Read("[a]\nx=" + std::string(300, '\xE9'));
  std::string expected;
  for (int i = 0; i < 254; ++i) expected += "\xC3\xA9";
  EXPECT_EQ(document.value("a", "x", 254), expected);
}

TEST(IniDocument, CharactersOfAUtf16FileAreItsUnitsAndNoPairIsCut) {
  std::u16string text = u"[a]\nx=" + std::u16string(253, u'x') + u"\U0001F319y";
  EXPECT_EQ(Read(Utf16File(text)).value("a", "x", 254), std::string(253, 'x'));
  text = u"[a]\nx=" + std::u16string(252, u'x') + u"\U0001F319y";
  EXPECT_EQ(Read(Utf16File(text)).value("a", "x", 254), std::string(252, 'x') + "\xF0\x9F\x8C\x99");
}

TEST(IniDocument, Utf16IsReadWithItsMarkAlone) {
  EXPECT_EQ(Read(Utf16File(u"[a]\r\nx=\u043B\u00E9\r\n")).value("a", "x"), "\xD0\xBB\xC3\xA9");
  EXPECT_EQ(Read(Utf16File(u"[a]\r\nx=1\r\n").substr(2)).value("a", "x"), "");
  EXPECT_EQ(Read(Utf16File(u"[a]\r\nx=1") + '\n').value("a", "x"), "1");  // half a unit at the end
  EXPECT_EQ(Read("\xFF\xFE").value("a", "x"), "");
}

TEST(IniDocument, AUtf8MarkMakesItsLineUnreadableAndNoOther) {
  const IniDocument document = Read("\xEF\xBB\xBF[a]\nx=1\n[b]\ny=2\n");
  EXPECT_EQ(document.value("a", "x"), "");
  EXPECT_EQ(document.value("b", "y"), "2");
}

// --- bytes ---

TEST(IniDocument, AnUnchangedAnsiFileKeepsEveryByte) {
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  for (const std::string& file :
       {std::string(), std::string("\n"), std::string("[a]\r\nx = 1\r\r\n\n; c\n[a"), bytes,
        bytes + "\r\n[a]\n" + bytes + "=" + bytes, std::string("\xEF\xBB\xBF[a]\nx=1")}) {
    EXPECT_EQ(Read(file).serialise(), file);
  }
}

TEST(IniDocument, TextOutsideTheCodePageMakesTheFileUtf16) {
  IniDocument document = Read("; caf\xE9\r\n[a]\r\nx=1\r\n");
  document.set("a", "x", "\xD0\xBB\xF0\x9F\x8C\x99");
  EXPECT_EQ(document.serialise(), Utf16File(u"; caf\u00E9\r\n[a]\r\nx=\u043B\U0001F319\r\n"));
}

TEST(IniDocument, AUtf16FileBecomesAnsiAgainWhenAllOfItFits) {
  IniDocument document = Read(Utf16File(u"[a]\r\nx=\u043B\r\ny=\u20AC\r\n"));
  EXPECT_EQ(document.serialise(), Utf16File(u"[a]\r\nx=\u043B\r\ny=\u20AC\r\n"));
  document.set("a", "x", "1");
  EXPECT_EQ(document.serialise(), "[a]\r\nx=1\r\ny=\x80\r\n");
}

TEST(IniDocument, TextThatWouldLookLikeTheMarkStaysUtf16) {
  const std::string file = Utf16File(u"\u00FF\u00FE\r\n[a]\r\nx=1\r\n");
  EXPECT_EQ(Read(file).serialise(), file);
}

// --- editing ---

TEST(IniDocument, AChangedValueKeepsTheSpellingAndSpacingOfItsLine) {
  IniDocument document = Read("[A]\n  PicSpeed =  3  \nb=1\r\nc=\r\n");
  document.set("a", "picSpeed", "12");
  document.set("a", "c", "2");
  EXPECT_EQ(document.serialise(), "[A]\n  PicSpeed =  12  \nb=1\r\nc=2\r\n");
  EXPECT_EQ(document.value("a", "picspeed"), "12");
}

TEST(IniDocument, AChangedLineDoesNotKeepItsOldBytes) {
  IniDocument document = Read("[a]\nx=caf\xE9\nna\xEFve=1\n");
  document.set("a", "x", "tea");
  document.set("a", "na\xC3\xAFve", "2");
  EXPECT_EQ(document.serialise(), "[a]\nx=tea\nna\xEFve=2\n");
}

TEST(IniDocument, AValueThatReadsSoAlreadyIsNotTouched) {
  IniDocument document = Read("[a]\nx='1'\ny=caf\xE9\x81\n");
  document.set("a", "x", "1");
  document.set("a", "y", "caf\xC3\xA9\xC2\x81");
  EXPECT_EQ(document.serialise(), "[a]\nx='1'\ny=caf\xE9\x81\n");
}

TEST(IniDocument, ANewKeyGoesBehindTheLastKeyOfItsSection) {
  IniDocument document = Read("[a]\nx=1\n; about b\n\n[b]\ny=2\n");
  document.set("a", "z", "3");
  document.set("a", "w", "4");
  EXPECT_EQ(document.serialise(), "[a]\nx=1\nz=3\r\nw=4\r\n; about b\n\n[b]\ny=2\n");
}

TEST(IniDocument, ANewSectionGoesToTheEndOfTheFile) {
  IniDocument document = Read("[a]\nx=1");
  document.set("b", "y", "2");
  document.set("B", "z", "3");
  EXPECT_EQ(document.serialise(), "[a]\nx=1\r\n[b]\r\ny=2\r\nz=3\r\n");
  IniDocument empty = Read("");
  empty.set("b", "y", "2");
  EXPECT_EQ(empty.serialise(), "[b]\r\ny=2\r\n");
}

TEST(IniDocument, AKeyBehindALastLineWithoutAnEndBeginsALineOfItsOwn) {
  IniDocument document = Read("[a]");
  document.set("a", "x", "1");
  EXPECT_EQ(document.serialise(), "[a]\r\nx=1\r\n");
  IniDocument last = Read("[a]\r\nx=1");
  last.set("a", "y", "2");
  EXPECT_EQ(last.serialise(), "[a]\r\nx=1\r\ny=2\r\n");
}

TEST(IniDocument, ErasingTakesTheKeysAndLeavesTheRest) {
  IniDocument document =
      Read("[a]\r\n; of the user\r\n0=x\r\n\r\n1=y\r\nno key\r\n0=z\r\n; end\r\n[b]\r\n0=w\r\n");
  document.eraseSection("A");
  EXPECT_EQ(document.value("a", "0"), "");
  EXPECT_EQ(document.serialise(), "[a]\r\n; of the user\r\n\r\nno key\r\n; end\r\n[b]\r\n0=w\r\n");
  document.eraseSection("missing");
  document.eraseSection("a");
  document.set("a", "0", "n");
  document.set("a", "1", "m");
  EXPECT_EQ(document.serialise(),
            "[a]\r\n; of the user\r\n0=n\r\n1=m\r\n\r\nno key\r\n; end\r\n[b]\r\n0=w\r\n");
  EXPECT_EQ(document.value("b", "0"), "w");
}

TEST(IniDocument, ErasingAKeyTakesEveryLineOfIt) {
  IniDocument document = Read("[a]\r\nx=1\r\n; of x\r\nX = 2\r\ny=3\r\nx=4\r\n[b]\r\nx=5\r\n");
  document.erase("A", "x");
  EXPECT_FALSE(document.has("a", "x"));
  EXPECT_EQ(document.serialise(), "[a]\r\n; of x\r\ny=3\r\n[b]\r\nx=5\r\n");
  document.erase("a", "x");
  document.erase("missing", "x");
  document.erase("b", "x");
  document.set("a", "z", "6");
  document.set("b", "w", "7");
  EXPECT_EQ(document.serialise(), "[a]\r\n; of x\r\ny=3\r\nz=6\r\n[b]\r\nw=7\r\n");
}

TEST(IniDocument, CountsTheKeysOfASection) {
  const IniDocument document = Read("[a]\nx=1\n; c\nX=2\ny\ny=3\n[a]\nz=4\n");
  EXPECT_EQ(document.keysIn("A"), 2U);
  EXPECT_EQ(document.keysIn("b"), 0U);
}

TEST(IniDocument, ANumberIsAKeyOnlyWhereItBeginsItsLine) {
  IniDocument document = Read("[images]\r\n 0=a\r\n\t1 = b\r\n2 \t= c\r\n  name=d\r\n");
  EXPECT_EQ(document.value("images", "0"), "");
  EXPECT_EQ(document.value("images", "1"), "");
  EXPECT_EQ(document.value("images", "2"), "c");
  EXPECT_EQ(document.value("images", "name"), "d");
  document.set("images", "0", "e");
  EXPECT_EQ(Read(document.serialise()).value("images", "0"), "e");
  document.eraseSection("images");
  EXPECT_EQ(document.serialise(), "[images]\r\n");
}

TEST(IniDocument, CanBeWrittenAsUtf16ThoughItFitsTheCodePage) {
  IniDocument document = Read("[a]\nx=1\n");
  document.writeAsUtf16();
  EXPECT_EQ(document.serialise(), Utf16File(u"[a]\nx=1\n"));
}

TEST(IniDocument, ErasingTheFirstOfTwoSectionsDoesNotBringTheSecondForward) {
  IniDocument document = Read("[a]\nx=1\n[a]\nx=2\n");
  document.eraseSection("a");
  EXPECT_EQ(Read(document.serialise()).value("a", "x"), "");
}

TEST(IniDocument, EveryTextReadsBackAsItWasSet) {
  for (const std::string text : {" x",
                                 "x ",
                                 " ",
                                 "\tx\v",
                                 "\"x\"",
                                 "'x'",
                                 "\"",
                                 "'",
                                 "\"\"",
                                 "\"x'",
                                 "x\"y",
                                 ";x",
                                 "[x]",
                                 "x=y",
                                 "",
                                 "  \" ",
                                 "\x1A",
                                 "x\f",
                                 "\x7F",
                                 "\xC2\xA0x",
                                 "caf\xC3\xA9",
                                 "\xD0\xBB",
                                 "\xF0\x9F\x8C\x99",
                                 "\xED\xB2\x80",
                                 "C:\\Pictures\\My cat.jpg"}) {
    IniDocument document = Read("[caption]\r\n0=old\r\n");
    document.set("caption", "0", text);
    document.set("caption", "1", text);
    EXPECT_EQ(document.value("caption", "0"), text);
    const IniDocument again = Read(document.serialise());
    EXPECT_EQ(again.value("caption", "0"), text);
    EXPECT_EQ(again.value("caption", "1"), text);
  }
}

TEST(IniDocument, ALineBreakInAValueBecomesABlankAndInjectsNothing) {
  IniDocument document = Read("[caption]\r\n");
  document.set("caption", "0", "one\r\n[total]\ntotal=9\rend\n");
  document.set("caption", "1", std::string("a\0b", 3));
  const IniDocument again = Read(document.serialise());
  EXPECT_EQ(again.value("caption", "0"), "one [total] total=9 end ");
  EXPECT_EQ(again.value("caption", "1"), "a b");
  EXPECT_EQ(again.value("total", "total"), "");
}

TEST(IniDocument, AMovedDocumentGoesOnWorking) {
  IniDocument document = Read("[a]\nx=1\n");
  IniDocument moved = std::move(document);
  moved.set("a", "y", "2");
  EXPECT_EQ(moved.value("a", "x"), "1");
  EXPECT_EQ(moved.serialise(), "[a]\nx=1\ny=2\r\n");
}

// Room for the keys of a section is made from the lines that follow it: those of all sections together must
// not count again for each.
TEST(IniDocument, ManyIndentedSectionsTakeNoMoreRoomThanTheyHaveLines) {
  std::string file;
  for (int i = 0; i < 50'000; ++i)
    file += " [s" + std::to_string(i) + "]\r\nkey=" + std::to_string(i) + "\r\n";
  EXPECT_EQ(Read(file).value("s49999", "key"), "49999");
}

TEST(IniDocument, ThirtyThousandPicturesAmongThirtyThousandCommentsAreRebuilt) {
  constexpr int kCount = 30'000;
  std::string file = "[images]\r\n";
  for (int i = 0; i < kCount; ++i)
    file += std::to_string(i) + "=C:\\" + std::to_string(i) + ".jpg\r\n; comment\r\n";
  IniDocument document = Read(file);
  for (int i = 0; i < kCount; ++i) {
    ASSERT_EQ(document.value("images", std::to_string(i)), "C:\\" + std::to_string(i) + ".jpg");
  }
  document.eraseSection("images");
  for (int i = 0; i < kCount; ++i)
    document.set("images", std::to_string(i), "D:\\" + std::to_string(i) + ".jpg");
  const IniDocument again = Read(document.serialise());
  EXPECT_EQ(again.value("images", "0"), "D:\\0.jpg");
  EXPECT_EQ(again.value("images", "29999"), "D:\\29999.jpg");
}

}  // namespace

#include "settings/settings_file.h"

#include <gtest/gtest.h>

#include "settings/load_settings.h"
#include "settings/settings_record.h"
#include "support/fake_files.h"
#include "support/windows_1252.h"

namespace {

using settings::IniDocument;
using settings::SettingsRecord;
using settings::WriteExtras;
using settings::WriteSettings;

using support::kWestern;

// A record in which every key holds a text of its own.
SettingsRecord Numbered() {
  SettingsRecord record;
  int number = 100;
  for (const settings::Key& key : settings::kWrittenKeys) record.*key.field = std::to_string(number++);
  return record;
}

TEST(WriteSettings, AnEmptyFileGetsEverythingInTheOrderOfWriting) {
  IniDocument document("", kWestern);
  WriteSettings(document, Numbered(), {"C:\\a.jpg", "C:\\b.jpg"}, {"A", ""});
  EXPECT_EQ(
      document.serialise(),
      "[images]\r\n0=C:\\a.jpg\r\n1=C:\\b.jpg\r\n2=\r\n"
      "[total]\r\ntotal=2\r\n"
      "[caption]\r\n0=A\r\n1=\r\n2=\r\n"
      "[image]\r\nrandomPick=100\r\npicSpeed=103\r\ntimeInterval=104\r\npicRandom=105\r\npicChange=106\r\n"
      "mouseSensitivity=113\r\npicturePercent=114\r\ntimeDisplay=125\r\n"
      "[background]\r\nnewBackColor=101\r\nbackEffect=102\r\nbackgroundImage=107\r\nbackgroundDisplay=108\r\n"
      "redBackground=109\r\ngreenBackground=110\r\nblueBackground=111\r\n"
      "[font]\r\nscroll=112\r\nscrollSpeed=115\r\nnewFontName=129\r\nnewFontSize=130\r\nnewFontBold=131\r\n"
      "newFontItalic=132\r\nnewFontUnderline=133\r\nnewFontFontStrikethru=134\r\nnewFontForeColor=135\r\n"
      "[transitions]\r\nbStandard=116\r\nbLeftWipe=117\r\nbRightWipe=118\r\nbRightandLeftWipe=119\r\n"
      "bUpAndDown=120\r\nbCenter=121\r\nbHorizontalBlinds=122\r\nbVerticalBlinds=123\r\nbFade=124\r\n"
      "[date]\r\ncountdownMonth=126\r\ncountdownDay=127\r\ncountdownYear=128\r\n");
}

TEST(WriteSettings, AListEndsWithOneEmptyKeyNumberedWithItsCount) {
  IniDocument document("", kWestern);
  WriteSettings(document, {}, {"a", "b", "c"}, {"", "", ""});
  EXPECT_TRUE(document.has("images", "3"));
  EXPECT_EQ(document.value("images", "3"), "");
  EXPECT_FALSE(document.has("images", "4"));
  EXPECT_TRUE(document.has("caption", "3"));
  EXPECT_EQ(document.value("total", "total"), "3");
}

TEST(WriteSettings, RemovedPicturesAndCaptionsDisappear) {
  IniDocument document("[images]\r\n0=a\r\n1=b\r\n2=c\r\n3=\r\n[caption]\r\n0=A\r\n1=B\r\n2=C\r\n3=\r\n",
                       kWestern);
  WriteSettings(document, {}, {"c"}, {"C"});
  EXPECT_EQ(document.value("images", "0"), "c");
  EXPECT_EQ(document.value("caption", "0"), "C");
  EXPECT_TRUE(document.has("images", "1"));
  EXPECT_EQ(document.value("images", "1"), "");
  EXPECT_FALSE(document.has("images", "2"));
  EXPECT_FALSE(document.has("caption", "3"));
}

TEST(WriteSettings, ValuesAreWrittenAsTheyStandEvenWhenEmpty) {
  IniDocument document("[font]\r\nnewFontName=Arial\r\n", kWestern);
  SettingsRecord record;
  record.mouseSensitivity = "not a number";
  WriteSettings(document, record, {}, {});
  EXPECT_EQ(document.value("font", "newFontName"), "");
  EXPECT_TRUE(document.has("font", "newFontName"));
  EXPECT_EQ(document.value("image", "mouseSensitivity"), "not a number");
  EXPECT_EQ(document.value("total", "total"), "0");
}

TEST(WriteSettings, WhatTheDialogDoesNotKnowStaysAsItIs) {
  const std::string unknown =
      "; by hand\n[Mine]\nkey = 1\n\n[extras]\r\ntransitionTime = 900 ; slow\r\nunknown=2\r\n";
  IniDocument document(unknown, kWestern);
  SettingsRecord record = Numbered();
  record.transitionTime = "1";
  WriteSettings(document, record, {"a"}, {""});
  EXPECT_TRUE(document.serialise().starts_with(unknown));
}

TEST(WriteSettings, ClearsTheFirstRunMarkerOfAFileThatHasOne) {
  IniDocument marked("[firstrun]\r\nsamples=1\r\n", kWestern);
  WriteSettings(marked, {}, {"a"}, {""});
  EXPECT_EQ(marked.value("firstrun", "samples"), "0");
  IniDocument plain("", kWestern);
  WriteSettings(plain, {}, {"a"}, {""});
  EXPECT_FALSE(plain.has("firstrun", "samples"));
}

TEST(WriteSettings, ASecondSaveOfTheSameChangesNoByte) {
  IniDocument document("", kWestern);
  WriteSettings(document, Numbered(), {"a", "b"}, {" A", "\"B\""});
  const std::string once = document.serialise();
  IniDocument again(once, kWestern);
  WriteSettings(again, Numbered(), {"a", "b"}, {" A", "\"B\""});
  EXPECT_EQ(again.serialise(), once);
}

TEST(WriteSettings, WhatIsSavedIsLoadedInAnyScript) {
  const std::vector<std::string> paths{"C:\\caf\xC3\xA9.jpg", "C:\\\xD0\xBB\xD0\xB5\xD1\x82\xD0\xBE.jpg"};
  const std::vector<std::string> captions{"  in quotes \"", "\xF0\x9F\x8C\x99"};
  SettingsRecord record = Numbered();
  record.timeDisplay = "2";
  IniDocument document("", kWestern);
  WriteSettings(document, record, paths, captions);
  support::FakeFiles files;
  files.content["C:\\Lumora\\zbfaone.ini"] = document.serialise();
  settings::SaverSettings loaded;
  LoadSettings(loaded, settings::OpenSettings(files, kWestern, "C:\\Lumora"), settings::Conversion::Strict);
  EXPECT_EQ(loaded.imageFiles, (std::vector<std::string>{paths[0], paths[1], ""}));
  EXPECT_EQ(loaded.imageCaptions, (std::vector<std::string>{captions[0], captions[1], ""}));
  EXPECT_EQ(loaded.record.newFontForeColor, "135");
  EXPECT_EQ(loaded.record.mouseSensitivity, "-83");
  EXPECT_EQ(loaded.countdownTarget, "126/127/128 12:00:00 AM");
}

TEST(WriteSettings, ThirtyThousandPicturesAreWrittenAndReadBack) {
  const std::vector<std::string> paths(30'000, "C:\\Pictures\\one.jpg");
  IniDocument document("", kWestern);
  WriteSettings(document, {}, paths, std::vector<std::string>(paths.size()));
  const IniDocument again(document.serialise(), kWestern);
  EXPECT_EQ(again.value("total", "total"), "30000");
  EXPECT_EQ(again.value("images", "29999"), "C:\\Pictures\\one.jpg");
  EXPECT_TRUE(again.has("caption", "30000"));
}

// A code page in which this letter takes two bytes.
constexpr char kLetter[] = "\xD0\xBB";

class TwoBytes : public os::AnsiCodePage {
 public:
  std::string decode(std::string_view ansi) const override { return exchanged(ansi, "\x81\x82", kLetter); }
  std::optional<std::string> encode(std::string_view utf8) const override {
    return exchanged(utf8, kLetter, "\x81\x82");
  }

 private:
  static std::string exchanged(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
      const bool found = text.substr(i).starts_with(from);
      result += found ? to : text.substr(i, 1);
      i += found ? from.size() : 1;
    }
    return result;
  }
};

TEST(WriteSettings, ACaptionThatWouldBeCutInTheCodePageMakesTheFileUtf16) {
  static const TwoBytes kTwoBytes;
  for (const std::size_t letters : {127U, 128U, 254U}) {
    SCOPED_TRACE(letters);
    std::string caption;
    for (std::size_t i = 0; i < letters; ++i) caption += kLetter;
    IniDocument document("", kTwoBytes);
    WriteSettings(document, {}, {"a"}, {caption});
    const std::string bytes = document.serialise();
    EXPECT_EQ(bytes.starts_with("\xFF\xFE"), letters > 127);
    EXPECT_EQ(settings::ReadIniValue(IniDocument(bytes, kTwoBytes), "caption", "0"), caption);
  }
}

TEST(WriteExtras, WritesWhatChangedAloneAndTakesAnAbsenceOut) {
  IniDocument document("[extras]\r\n; mine\r\ntransitionTime = 700\r\nlog=1\r\nother=x\r\n", kWestern);
  SettingsRecord loaded;
  loaded.transitionTime = "700";
  loaded.log = "1";
  SettingsRecord record = loaded;
  WriteExtras(document, record, loaded);
  EXPECT_EQ(document.serialise(), "[extras]\r\n; mine\r\ntransitionTime = 700\r\nlog=1\r\nother=x\r\n");
  record.log.clear();
  record.livePreview = "1";
  record.transitionTime = "900";
  WriteExtras(document, record, loaded);
  EXPECT_EQ(document.serialise(),
            "[extras]\r\n; mine\r\ntransitionTime = 900\r\nother=x\r\nlivePreview=1\r\n");
}

TEST(WriteExtras, ATextThatWouldBeCutInTheCodePageMakesTheFileUtf16) {
  static const TwoBytes kTwoBytes;
  SettingsRecord record;
  for (int i = 0; i < 200; ++i) record.captions += kLetter;
  IniDocument document("", kTwoBytes);
  WriteExtras(document, record, {});
  const IniDocument again(document.serialise(), kTwoBytes);
  EXPECT_EQ(settings::ReadIniValue(again, "extras", "captions"), record.captions);
}

using Folders = std::vector<std::string>;

TEST(WriteFolders, AFolderThatWouldBeCutInTheCodePageMakesTheFileUtf16) {
  static const TwoBytes kTwoBytes;
  std::string folder = "C:\\";
  for (int i = 0; i < 200; ++i) folder += kLetter;
  IniDocument document("", kTwoBytes);
  settings::WriteFolders(document, {folder}, {});
  EXPECT_EQ(settings::FollowedFolders(IniDocument(document.serialise(), kTwoBytes)), Folders{folder});
}

TEST(WriteFolders, WritesNothingOverTheOnesThatWereLoaded) {
  const std::string text = "[folders]\r\n0 = C:\\a\r\n1=" + std::string(300, 'x') + "\r\n";
  IniDocument document(text, kWestern);
  const Folders loaded = settings::FollowedFolders(document);
  settings::WriteFolders(document, loaded, loaded);
  EXPECT_EQ(document.serialise(), text);
  // Another program has changed them meanwhile: nobody chose anything here.
  IniDocument changed("[folders]\r\n0=D:\\new\r\n", kWestern);
  settings::WriteFolders(changed, loaded, loaded);
  EXPECT_EQ(changed.serialise(), "[folders]\r\n0=D:\\new\r\n");
}

TEST(WriteFolders, ReadsBackWhateverStoodThere) {
  const std::vector<std::string> before = {
      "",
      "[folders]\r\n0=a\r\n",
      "[folders]\r\n0=a\r\n1=b\r\n2=c\r\n",
      "[folders]\r\n0=a\r\n2=c\r\n",
      "[folders]\r\n1=b\r\n2=c\r\n",
      "[folders]\r\n0=\r\n1=b\r\n",
      "[folders]\r\n1=b\r\n0=a\r\n; note\r\nmine=1\r\n",
  };
  for (const std::string& text : before) {
    for (const Folders& folders :
         {Folders{}, Folders{"x"}, Folders{"a"}, Folders{"a", "y"}, Folders{"x", "y", "z"}}) {
      IniDocument document(text, kWestern);
      const Folders loaded = settings::FollowedFolders(document);
      settings::WriteFolders(document, folders, loaded);
      const std::string bytes = document.serialise();
      EXPECT_EQ(settings::FollowedFolders(IniDocument(bytes, kWestern)), folders) << bytes;
      EXPECT_EQ(bytes.find("mine=1") != std::string::npos, text.find("mine=1") != std::string::npos);
      EXPECT_EQ(bytes.find("; note") != std::string::npos, text.find("; note") != std::string::npos);
    }
  }
}

}  // namespace

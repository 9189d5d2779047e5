#include "settings/load_settings.h"
#include "settings/settings_file.h"

#include <gtest/gtest.h>

#include "base/errors.h"
#include "support/fake_files.h"
#include "support/windows_1252.h"

namespace {

using settings::Conversion;
using settings::LoadSettings;
using settings::OpenSettings;
using settings::SaverSettings;

constexpr const char* kFolder = "C:\\Lumora";
constexpr const char* kPath = "C:\\Lumora\\zbfaone.ini";
constexpr const char* kNumbers =
    "[image]\r\nmouseSensitivity=23\r\npicturePercent=90\r\ntimeDisplay=0\r\n[total]\r\ntotal=0\r\n";

using support::kWestern;

// A program folder with this settings file.
struct Folder {
  support::FakeFiles files;
  SaverSettings settings;

  explicit Folder(const std::string& ini) { files.content[kPath] = ini; }

  SaverSettings& load(Conversion conversion = Conversion::Strict) {
    LoadSettings(settings, OpenSettings(files, kWestern, kFolder), conversion);
    return settings;
  }
};

// The numbers that must be there, each as given.
std::string Ini(const std::string& total, const std::string& sensitivity = "23",
                const std::string& percent = "90", const std::string& timeDisplay = "0") {
  return "[total]\r\ntotal=" + total + "\r\n[image]\r\nmouseSensitivity=" + sensitivity +
         "\r\npicturePercent=" + percent + "\r\ntimeDisplay=" + timeDisplay + "\r\n";
}

std::string ThresholdOf(const std::string& sensitivity) {
  return Folder(Ini("0", sensitivity)).load().record.mouseSensitivity;
}

TEST(LoadSettings, FollowedFoldersAreReadUpToTheFirstThatIsMissing) {
  Folder folder(Ini("0") + "[folders]\r\n0=C:\\a\r\n1=D:\\b\\\r\n3=C:\\d\r\n[extras]\r\nsubfolders=1\r\n");
  EXPECT_EQ(folder.load().folders, (std::vector<std::string>{"C:\\a", "D:\\b\\"}));
  EXPECT_EQ(folder.settings.record.subfolders, "1");
  EXPECT_TRUE(Folder(Ini("0") + "[folders]\r\n1=C:\\a\r\n").load().folders.empty());
  EXPECT_TRUE(Folder(Ini("0")).load().folders.empty());
}

TEST(LoadSettings, ATotalOfNoneGivesOneEmptyEntryEvenWhenPicturesAreListed) {
  Folder folder(Ini("0") + "[images]\r\n0=C:\\a.jpg\r\n");
  folder.load();
  EXPECT_EQ(folder.settings.imageFiles, std::vector<std::string>{""});
  EXPECT_EQ(folder.settings.imageCaptions, std::vector<std::string>{""});
  EXPECT_EQ(folder.settings.lastImageIndex, -1);
}

TEST(LoadSettings, TheCountFollowsTheTotalAndNotTheKeys) {
  Folder folder(Ini("3") + "[images]\r\n0=a.jpg\r\n1=b.jpg\r\n[caption]\r\n0=A\r\n2=C\r\n3=D\r\n");
  folder.load();
  EXPECT_EQ(folder.settings.imageFiles, (std::vector<std::string>{"a.jpg", "b.jpg", "", ""}));
  EXPECT_EQ(folder.settings.imageCaptions, (std::vector<std::string>{"A", "", "C", ""}));
  EXPECT_EQ(folder.settings.lastImageIndex, 2);
}

TEST(LoadSettings, ASmallerTotalHidesTheOtherPictures) {
  Folder folder(Ini("1") + "[images]\r\n0=a.jpg\r\n1=b.jpg\r\n");
  EXPECT_EQ(folder.load().imageFiles, (std::vector<std::string>{"a.jpg", ""}));
}

TEST(LoadSettings, KeysWithLeadingZerosAreNeverFound) {
  Folder folder(Ini("2") + "[images]\r\n00=a.jpg\r\n01=b.jpg\r\n");
  EXPECT_EQ(folder.load().imageFiles, (std::vector<std::string>{"", "", ""}));
}

TEST(LoadSettings, KeysWithABlankBeforeThemAreNeverFound) {
  Folder folder(Ini("2") + "[images]\r\n 0=a.jpg\r\n\t1=b.jpg\r\n1 = c.jpg\r\n");
  EXPECT_EQ(folder.load().imageFiles, (std::vector<std::string>{"", "c.jpg", ""}));
}

TEST(LoadSettings, ANegativeTotalIsNone) {
  Folder folder(Ini("-5"));
  folder.load();
  EXPECT_EQ(folder.settings.imageFiles.size(), 1U);
  EXPECT_EQ(folder.settings.lastImageIndex, -1);
}

TEST(LoadSettings, ABrokenTotalCountsItsWholePicturesAndKeepsTheLastEntryEmpty) {
  for (const auto& [total, entries, last] : {std::tuple("2.5", 3U, 1), std::tuple("3.7", 5U, 2),
                                             std::tuple("0.5", 1U, -1), std::tuple("1.5", 3U, 0)}) {
    Folder folder(Ini(total) + "[images]\r\n0=a\r\n1=b\r\n2=c\r\n3=d\r\n4=e\r\n");
    folder.load();
    EXPECT_EQ(folder.settings.imageFiles.size(), entries) << total;
    EXPECT_EQ(folder.settings.imageFiles.back(), "") << total;
    EXPECT_EQ(folder.settings.lastImageIndex, last) << total;
  }
}

TEST(LoadSettings, ThePicturesAreCountedWith16Bits) {
  Folder most(Ini("32767"));
  EXPECT_EQ(most.load().lastImageIndex, 32766);
  EXPECT_EQ(most.settings.imageFiles.size(), 32768U);
  for (const char* total : {"32768", "2000000000", "99999999999", "1e400"}) {
    Folder folder(Ini(total));
    EXPECT_THROW(folder.load(Conversion::Strict), base::Overflow) << total;
    EXPECT_THROW(folder.load(Conversion::Mend), base::Overflow) << total;
    EXPECT_TRUE(folder.settings.imageFiles.empty()) << total;
    Folder logged(Ini(total) + "[extras]\r\nlog=1\r\n");
    EXPECT_THROW(logged.load(Conversion::Mend), base::Overflow) << total;
    EXPECT_EQ(logged.settings.record.log, "1") << "so that the log hears of it";
  }
}

TEST(LoadSettings, TheSensitivityBecomesTheThresholdOfMovement) {
  EXPECT_EQ(ThresholdOf("30"), "1");
  EXPECT_EQ(ThresholdOf("29"), "1");
  EXPECT_EQ(ThresholdOf("23"), "7");
  EXPECT_EQ(ThresholdOf("2"), "28");
  EXPECT_EQ(ThresholdOf("1"), "30");
  EXPECT_EQ(ThresholdOf("0"), "30");
  EXPECT_EQ(ThresholdOf("22.5"), "7.5");
  EXPECT_EQ(ThresholdOf("40"), "-10");
}

TEST(LoadSettings, APictureOfTheWholeScreenIsShownAt99Percent) {
  Folder whole(Ini("0", "23", "100"));
  EXPECT_EQ(whole.load().record.picturePercent, "99");
  EXPECT_FLOAT_EQ(whole.settings.pictureScale, 0.99F);
  Folder large(Ini("0", "23", "150"));
  EXPECT_EQ(large.load().record.picturePercent, "150");
  EXPECT_FLOAT_EQ(large.settings.pictureScale, 1.5F);
}

TEST(LoadSettings, ACountdownAimsAtTheMidnightThatBeginsItsDay) {
  const std::string date = "[date]\r\ncountdownMonth=12\r\ncountdownDay=25\r\ncountdownYear=2006\r\n";
  EXPECT_EQ(Folder(Ini("0", "23", "90", "2") + date).load().countdownTarget, "12/25/2006 12:00:00 AM");
  Folder clock(Ini("0", "23", "90", "1") + date);
  clock.settings.countdownTarget = "as it was";
  EXPECT_EQ(clock.load().countdownTarget, "as it was");
}

TEST(LoadSettings, EveryOtherKeyIsKeptAsItsText) {
  Folder folder(
      "[total]\r\ntotal=0\r\n"
      "[image]\r\nrandomPick=1\r\npicSpeed=2\r\ntimeInterval=3\r\npicRandom=rand\r\npicChange=ch\r\n"
      "mouseSensitivity=4\r\npicturePercent=5\r\ntimeDisplay=0\r\n"
      "[background]\r\nnewBackColor=6\r\nbackEffect=7\r\nbackgroundImage=C:\\b.jpg\r\nbackgroundDisplay=8\r\n"
      "redBackground=9\r\ngreenBackground=10\r\nblueBackground=11\r\n"
      "[font]\r\nnewFontName=Arial\r\nnewFontSize=8.25\r\nnewFontBold=True\r\nnewFontItalic=False\r\n"
      "newFontUnderline=true\r\nnewFontFontStrikethru=false\r\nnewFontForeColor=12\r\nscroll=13\r\n"
      "scrollSpeed=14\r\n"
      "[transitions]\r\nbStandard=15\r\nbLeftWipe=16\r\nbRightWipe=17\r\nbRightandLeftWipe=18\r\n"
      "bUpAndDown=19\r\nbCenter=20\r\nbHorizontalBlinds=21\r\nbVerticalBlinds=22\r\nbFade=23\r\n"
      "[date]\r\ncountdownMonth=24\r\ncountdownDay=25\r\ncountdownYear=26\r\n"
      "[extras]\r\ntransitionTime=27\r\notherScreens=28\r\nlivePreview=29\r\nlog=30\r\n");
  const settings::SettingsRecord& r = folder.load().record;
  EXPECT_EQ(r.randomPick + r.picSpeed + r.timeInterval + r.picRandom, "123rand");
  EXPECT_EQ(r.picChange, "");
  EXPECT_EQ(r.mouseSensitivity + r.picturePercent + r.timeDisplay, "2650");
  EXPECT_EQ(r.newBackColor + r.backEffect + r.backgroundImage + r.backgroundDisplay, "67C:\\b.jpg8");
  EXPECT_EQ(r.redBackground + r.greenBackground + r.blueBackground, "91011");
  EXPECT_EQ(r.newFontName + r.newFontSize + r.newFontBold + r.newFontItalic, "Arial8.25TrueFalse");
  EXPECT_EQ(r.newFontUnderline + r.newFontFontStrikethru + r.newFontForeColor, "truefalse12");
  EXPECT_EQ(r.scroll + r.scrollSpeed, "1314");
  EXPECT_EQ(r.bStandard + r.bLeftWipe + r.bRightWipe + r.bRightandLeftWipe, "15161718");
  EXPECT_EQ(r.bUpAndDown + r.bCenter + r.bHorizontalBlinds + r.bVerticalBlinds + r.bFade, "1920212223");
  EXPECT_EQ(r.countdownMonth + r.countdownDay + r.countdownYear, "242526");
  EXPECT_EQ(r.transitionTime + r.otherScreens + r.livePreview + r.log, "27282930");
  EXPECT_TRUE(folder.settings.mended.empty());
}

TEST(LoadSettings, TheStrikeThroughKeyIsSpelledWithFontTwice) {
  EXPECT_EQ(Folder(kNumbers + std::string("[font]\r\nnewFontStrikethru=True\r\n"))
                .load()
                .record.newFontFontStrikethru,
            "");
}

TEST(LoadSettings, LongValuesAreCutTo254Characters) {
  const std::string longText(300, 'x');
  Folder folder(Ini("1") + "[images]\r\n0=" + longText + "\r\n[caption]\r\n0=" + longText +
                "\r\n[font]\r\nnewFontName=" + longText + "\r\n");
  folder.load();
  EXPECT_EQ(folder.settings.imageFiles[0].size(), 254U);
  EXPECT_EQ(folder.settings.imageCaptions[0].size(), 254U);
  EXPECT_EQ(folder.settings.record.newFontName.size(), 254U);
}

// --- text that is no number ---

TEST(LoadSettings, StrictlyAFileWithoutATotalIsATypeMismatch) {
  Folder folder("[image]\r\nmouseSensitivity=23\r\n");
  EXPECT_THROW(folder.load(), base::TypeMismatch);
  Folder missing("");
  missing.files.content.clear();
  EXPECT_THROW(missing.load(), base::TypeMismatch);
}

TEST(LoadSettings, StrictlyTheFieldsReadSoFarAreSetAndTheRestUntouched) {
  Folder total(Ini("many") + "[font]\r\nscroll=1\r\n");
  total.settings.record.scroll = "before";
  total.settings.imageFiles = {"before"};
  EXPECT_THROW(total.load(), base::TypeMismatch);
  EXPECT_EQ(total.settings.record.total, "many");
  EXPECT_EQ(total.settings.record.mouseSensitivity, "23");
  EXPECT_EQ(total.settings.record.scroll, "before");
  EXPECT_EQ(total.settings.imageFiles, std::vector<std::string>{"before"});

  Folder sensitivity(Ini("1", "quick") + "[font]\r\nscroll=1\r\nscrollSpeed=200\r\n[images]\r\n0=a.jpg\r\n");
  sensitivity.settings.record.picturePercent = "before";
  EXPECT_THROW(sensitivity.load(), base::TypeMismatch);
  EXPECT_EQ(sensitivity.settings.imageFiles[0], "a.jpg");
  EXPECT_EQ(sensitivity.settings.record.scroll, "1");
  EXPECT_EQ(sensitivity.settings.record.mouseSensitivity, "quick");
  EXPECT_EQ(sensitivity.settings.record.picturePercent, "before");

  Folder percent(Ini("0", "23", "half") + "[font]\r\nscrollSpeed=200\r\n");
  percent.settings.pictureScale = 0.25F;
  EXPECT_THROW(percent.load(), base::TypeMismatch);
  EXPECT_EQ(percent.settings.record.mouseSensitivity, "7");
  EXPECT_EQ(percent.settings.record.picturePercent, "half");
  EXPECT_EQ(percent.settings.pictureScale, 0.25F);
  EXPECT_EQ(percent.settings.record.scrollSpeed, "");

  Folder display(Ini("0", "23", "90", "") + "[date]\r\ncountdownYear=2030\r\n[extras]\r\nlog=x\r\n");
  EXPECT_THROW(display.load(), base::TypeMismatch);
  EXPECT_EQ(display.settings.record.countdownYear, "2030");
  EXPECT_EQ(display.settings.countdownTarget, "");
  EXPECT_EQ(display.settings.record.log, "x") << "read before anything that can fail";
}

TEST(LoadSettings, MendingPutsTheDefaultInPlaceAndNamesTheKeyInTheOrderOfReading) {
  Folder folder(Ini("many", "quick", "half", "") + "[images]\r\n0=a.jpg\r\n[font]\r\nscroll=1\r\n");
  folder.load(Conversion::Mend);
  EXPECT_EQ(folder.settings.mended,
            (std::vector<std::string>{"total", "mouseSensitivity", "picturePercent", "timeDisplay"}));
  EXPECT_EQ(folder.settings.record.total, "0");
  EXPECT_EQ(folder.settings.imageFiles, std::vector<std::string>{""});
  EXPECT_EQ(folder.settings.lastImageIndex, -1);
  EXPECT_EQ(folder.settings.record.mouseSensitivity, "7");
  EXPECT_EQ(folder.settings.record.picturePercent, "99");
  EXPECT_FLOAT_EQ(folder.settings.pictureScale, 0.99F);
  EXPECT_EQ(folder.settings.record.timeDisplay, "0");
  EXPECT_EQ(folder.settings.record.scroll, "1");
}

TEST(LoadSettings, MendingTakesANumberOutOfRangeForNone) {
  Folder folder(Ini("0", "1e400", "1e39", "2"));
  folder.load(Conversion::Mend);
  EXPECT_EQ(folder.settings.mended, (std::vector<std::string>{"mouseSensitivity", "picturePercent"}));
  EXPECT_FLOAT_EQ(folder.settings.pictureScale, 0.99F);
  EXPECT_THROW(Folder(Ini("0", "1e400")).load(Conversion::Strict), base::Overflow);
}

TEST(LoadSettings, MendingAMissingFileGivesAShowWithoutPictures) {
  Folder folder("");
  folder.files.content.clear();
  folder.load(Conversion::Mend);
  EXPECT_EQ(folder.settings.mended.size(), 4U);
  EXPECT_EQ(folder.settings.lastImageIndex, -1);
  EXPECT_TRUE(folder.files.writes.empty());
}

TEST(LoadSettings, AKeyThatIsAbsentOrEmptyHasItsDefault) {
  Folder none("");
  Folder empty("");
  for (const settings::Key& key : settings::kWrittenKeys) {
    empty.files.content[kPath] += "[" + std::string(key.section) + "]\r\n" + key.name + "=\r\n";
  }
  for (Folder* folder : {&none, &empty}) {
    const settings::SettingsRecord& record = folder->load(Conversion::Mend).record;
    for (const settings::Key& key : settings::kWrittenKeys) {
      const std::string name = key.name;
      const char* expected = name == "picChange" ? "" : name == "mouseSensitivity" ? "7" : key.fallback;
      EXPECT_EQ(record.*key.field, expected) << key.name;
    }
    for (const settings::Key& key : settings::kExtraKeys) EXPECT_EQ(record.*key.field, key.fallback);
  }
}

TEST(LoadSettings, TextThatIsThereIsKeptWhateverItSays) {
  Folder folder(Ini("0") + "[transitions]\r\nbFade=perhaps\r\n[image]\r\ntimeInterval=soon\r\n");
  folder.load(Conversion::Mend);
  EXPECT_EQ(folder.settings.record.bFade, "perhaps");
  EXPECT_TRUE(folder.settings.mended.empty()) << "who uses it converts it";
}

TEST(LoadSettings, StrictlyAnAbsentKeyIsEmptyText) {
  Folder folder(Ini("0"));
  EXPECT_EQ(folder.load(Conversion::Strict).record.bFade, "");
  EXPECT_EQ(folder.settings.record.newFontName, "");
}

TEST(LoadSettings, AGoodFileReportsNothingAfterABadOne) {
  Folder folder(Ini("many"));
  folder.load(Conversion::Mend);
  folder.files.content[kPath] = Ini("0");
  EXPECT_TRUE(folder.load(Conversion::Mend).mended.empty());
}

TEST(LoadSettings, TheFolderMayEndInABackslashAndNoOtherPathIsRead) {
  Folder folder(Ini("0"));
  LoadSettings(folder.settings, OpenSettings(folder.files, kWestern, "C:\\Lumora\\"), Conversion::Strict);
  EXPECT_EQ(folder.files.reads, std::vector<std::string>{kPath});
}

TEST(LoadSettings, ReadsTheFileOnceHoweverManyPicturesThereAre) {
  std::string ini = Ini("30000") + "[images]\r\n";
  for (int i = 0; i < 30000; ++i) ini += std::to_string(i) + "=C:\\" + std::to_string(i) + ".jpg\r\n";
  Folder folder(ini);
  folder.load();
  EXPECT_EQ(folder.files.reads.size(), 1U);
  EXPECT_EQ(folder.settings.lastImageIndex, 29999);
  EXPECT_EQ(folder.settings.imageFiles[29999], "C:\\29999.jpg");
}

// --- the first run ---

TEST(FirstRun, SeedsTheSamplesAndClearsTheMarkerInOneWrite) {
  Folder folder("[firstrun]\r\nsamples=1\r\n[images]\r\n" + Ini("2") + "[caption]\r\n0=A\r\n1=B\r\n");
  folder.load();
  EXPECT_EQ(folder.settings.imageFiles,
            (std::vector<std::string>{"C:\\Lumora\\image1.gif", "C:\\Lumora\\image2.gif", ""}));
  EXPECT_EQ(folder.settings.imageCaptions, (std::vector<std::string>{"A", "B", ""}));
  EXPECT_EQ(folder.files.writes, std::vector<std::string>{kPath});
  EXPECT_EQ(
      folder.files.content[kPath],
      "[firstrun]\r\nsamples=0\r\n[images]\r\n0=C:\\Lumora\\image1.gif\r\n1=C:\\Lumora\\image2.gif\r\n" +
          Ini("2") + "[caption]\r\n0=A\r\n1=B\r\n");
}

TEST(FirstRun, IsOnce) {
  Folder folder("[firstrun]\r\nsamples=1\r\n" + Ini("1"));
  folder.load();
  folder.files.content[kPath] += "[other]\r\n";
  const std::string content = folder.files.content[kPath];
  folder.load();
  EXPECT_EQ(folder.files.writes.size(), 1U);
  EXPECT_EQ(folder.files.content[kPath], content);
}

TEST(FirstRun, InAFolderThatCannotBeWrittenShowsTheSamplesAllTheSame) {
  Folder folder("[firstrun]\r\nsamples=1\r\n" + Ini("2"));
  folder.files.writable = false;
  folder.load();
  EXPECT_EQ(folder.settings.imageFiles[1], "C:\\Lumora\\image2.gif");
  EXPECT_EQ(folder.files.content[kPath], "[firstrun]\r\nsamples=1\r\n" + Ini("2"));
}

TEST(FirstRun, WritesNeitherTheTotalNorCaptions) {
  Folder folder("[firstrun]\r\nsamples=1\r\n" + Ini("0"));
  EXPECT_EQ(folder.load().imageFiles, std::vector<std::string>{""});
  EXPECT_EQ(folder.files.content[kPath].find("[caption]"), std::string::npos);
  EXPECT_NE(folder.files.content[kPath].find("total=0"), std::string::npos);
}

TEST(FirstRun, LeavesAListThatHasAFirstPictureAlone) {
  Folder folder("[firstrun]\r\nsamples=1\r\n[images]\r\n0=C:\\mine.jpg\r\n" + Ini("1"));
  EXPECT_EQ(folder.load().imageFiles[0], "C:\\mine.jpg");
  EXPECT_EQ(folder.files.content[kPath],
            "[firstrun]\r\nsamples=0\r\n[images]\r\n0=C:\\mine.jpg\r\n" + Ini("1"));
}

TEST(FirstRun, WithoutItsMarkerWritesNothing) {
  Folder folder(Ini("0"));
  folder.load();
  EXPECT_TRUE(folder.files.writes.empty());
}

}  // namespace

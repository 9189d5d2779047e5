// Captions that the show makes by itself, and the shade behind words, as they are seen on the screen.
#include <gtest/gtest.h>

#include "base/contrast.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "os/date_text.h"
#include "os/files_win.h"
#include "support/colors.h"
#include "support/jpeg_builder.h"
#include "support/photo_builder.h"
#include "support/wic_encoder_win.h"

namespace {

using support::kWhitePixel;

constexpr int kTopRows = 80;  // rows at the top of the screen, in which the words stand
constexpr os::LocalTime kTaken{2019, 7, 14, 18, 5, 9, 0};

const support::PhotoNotes kNotes = {
    .first = {{support::kMakeTag, "ACME CORPORATION"},
              {support::kModelTag, "Acme X100"},
              {support::kTitleTag, support::Utf16Bytes("Lake at dawn"), 1}},
    .exif = {{support::kTakenTag, "2019:07:14 18:05:09"}},
};

// A small photo of one colour, so that the words stand over the background.
std::string Photo(const std::string& segments) {
  const support::ComScope com;
  return support::WithSegments(
      support::Encode(base::Bitmap({300, 200}, 0xFF804020U), support::EncodedAs::jpeg), segments);
}

base::Bitmap Band() {
  base::Bitmap band({e2e::ScreenSize().width, kTopRows});
  base::CopyRect(band.view(), {0, 0}, e2e::ReadScreen(), base::PixelRect::ofSize(band.size()));
  return band;
}

bool HasWords(const base::Bitmap& band) { return !e2e::BoundsOf(band, kWhitePixel).isEmpty(); }

// What a show of one picture has at the top of the screen as soon as words are there.
base::Bitmap WordsOf(e2e::ProgramFolder& folder) {
  folder.set("image/timeInterval", "0");
  folder.writeSettings();
  const e2e::RunningProgram show(folder.program(), L"/S");
  EXPECT_NE(show.waitForShow(), nullptr);
  base::Bitmap seen;
  EXPECT_TRUE(e2e::WaitFor([&seen] {
    seen = Band();
    return HasWords(seen);
  }));
  return seen;
}

base::Bitmap TypedWords(const std::string& words) {
  e2e::ProgramFolder folder;
  folder.addPath(folder.writeFile("photo.jpg", Photo("")), words);
  return WordsOf(folder);
}

TEST(CaptionsOnScreen, AreTheWordsThatTheUserWouldHaveTyped) {
  const base::Bitmap typed =
      TypedWords("Lake at dawn - " + os::MakeDateText()->date(kTaken) + " (Acme X100), 1/1");
  e2e::ProgramFolder folder;
  folder.addPath(folder.writeFile("photo.jpg", Photo(support::NotesSegment(kNotes))));
  folder.set("extras/captions", "{title}| - {date}|| ({camera})|, {number}/{total}");
  EXPECT_EQ(WordsOf(folder), typed) << "loaded when it is due";
  folder.set("extras/loadAhead", "1");
  EXPECT_EQ(WordsOf(folder), typed) << "loaded ahead";
}

TEST(CaptionsOnScreen, TellWhenTheFileWasChangedWhereNobodyNotedMore) {
  e2e::ProgramFolder folder;
  const std::string path = folder.writeFile("photo.jpg", Photo(""));
  folder.addPath(path);
  folder.set("extras/captions", "{date} {time}|, {title}|");
  const std::optional<os::LocalTime> changed = os::FilesWin().changedAt(path);
  ASSERT_TRUE(changed);
  const std::unique_ptr<os::DateText> form = os::MakeDateText();
  EXPECT_EQ(WordsOf(folder), TypedWords(form->date(*changed) + " " + form->timeToTheMinute(*changed)));
}

TEST(CaptionsOnScreen, GoWithTheirPictures) {
  e2e::ProgramFolder folder;
  folder.addPath(folder.writeFile("I.jpg", Photo("")));
  folder.addPath(folder.writeFile("HHHHHHHHHHHHHHHH.jpg", Photo("")));
  folder.addPath(folder.writeFile("none.jpg", Photo("")), "\" \"");
  folder.set("extras/captions", "{name}");
  folder.writeSettings();
  const e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  const auto width = [] { return e2e::BoundsOf(Band(), kWhitePixel).width; };
  EXPECT_TRUE(e2e::WaitFor([&] { return width() > 0 && width() < 40; }));
  EXPECT_TRUE(e2e::WaitFor([&] { return width() > 200; }));
  EXPECT_TRUE(e2e::WaitFor([&] { return width() == 0; }));
  EXPECT_TRUE(e2e::WaitFor([&] { return width() > 0 && width() < 40; }));
}

// How many pixels of a part of the screen are so dark that white words can be read on them.
int DarkPixels(const base::Bitmap& screen, const base::PixelRect& part) {
  int count = 0;
  for (int y = part.top; y < part.bottom(); ++y) {
    for (int x = part.left; x < part.right(); ++x) {
      const auto grey = static_cast<int>(screen.at(x, y) & 0xFF);
      if (base::ContrastRatio(base::kWhite, base::Rgb(grey, grey, grey)) >= base::kReadableContrast) ++count;
    }
  }
  return count;
}

TEST(ShadeOnScreen, WhiteWordsOnAWhitePictureCanBeRead) {
  const base::PixelSize screen = e2e::ScreenSize();
  e2e::ProgramFolder folder;
  folder.set("image/timeInterval", "0");
  folder.set("image/picturePercent", "100");
  folder.set("image/timeDisplay", "1");
  folder.set("background/newBackColor", "16777215");
  folder.set("extras/shade", "1");
  folder.addPicture(screen, base::kWhite, "HHHH");
  folder.writeSettings();
  const e2e::RunningProgram show(folder.program(), L"/S");
  ASSERT_NE(show.waitForShow(), nullptr);
  const base::PixelRect caption{screen.width / 2 - 150, 0, 300, kTopRows};
  const base::PixelRect clock{screen.width - 400, screen.height - 60, 400, 60};
  int atCaption = 0;
  int atClock = 0;
  int anywhere = 0;
  EXPECT_TRUE(e2e::WaitFor([&] {
    const base::Bitmap seen = e2e::ReadScreen();
    atCaption = DarkPixels(seen, caption);
    atClock = DarkPixels(seen, clock);
    anywhere = DarkPixels(seen, base::PixelRect::ofSize(screen));
    return atCaption > 500 && atClock > 500 && anywhere == atCaption + atClock;
  })) << atCaption
      << ' ' << atClock << ' ' << anywhere;
}

}  // namespace

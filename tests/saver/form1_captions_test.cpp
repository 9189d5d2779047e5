// Captions that the show makes by itself.
#include <gtest/gtest.h>

#include "support/colors.h"
#include "support/show_stage.h"
#include "support/started_show.h"

namespace {

using support::kRed;
using support::ShowStage;

constexpr base::PixelSize kSize{100, 80};

class CaptionsByThemselves : public testing::TestWithParam<bool> {
 protected:
  CaptionsByThemselves() { show.set("extras/loadAhead", GetParam() ? "1" : "0"); }

  void addPhoto(const std::string& title, const std::string& own = "") {
    show.addPicture(kSize, kRed, own);
    show.pictures.facts["C:\\pictures\\" + std::to_string(photos_++) + ".jpg"].title = title;
  }

  // What stands under each of so many pictures from the first on.
  std::vector<std::string> captions(int pictures) {
    std::vector<std::string> seen;
    show.runFor(700);
    for (int i = 0; i < pictures; ++i) {
      seen.push_back(show.form->Label1.caption());
      show.runFor(1300);
    }
    return seen;
  }

  ShowStage show;

 private:
  int photos_ = 0;
};

INSTANTIATE_TEST_SUITE_P(LoadedWhenDueAndAhead, CaptionsByThemselves, testing::Bool());

TEST_P(CaptionsByThemselves, StandUnderThePicturesThatTheyAreAbout) {
  show.set("extras/captions", "{title}");
  for (const char* title : {"Lake", "Hill", "Sea"}) addPhoto(title);
  show.start();
  EXPECT_EQ(captions(4), (std::vector<std::string>{"Lake", "Hill", "Sea", "Lake"}));
  EXPECT_TRUE(show.errors.empty());
}

TEST_P(CaptionsByThemselves, CaptionsOfTheUsersOwnStay) {
  show.set("extras/captions", "{title}");
  addPhoto("Lake");
  addPhoto("Hill", "Our hill");
  addPhoto("Sea", "\" \"");
  addPhoto("");
  show.start();
  EXPECT_EQ(captions(4), (std::vector<std::string>{"Lake", "Our hill", " ", ""}));
}

TEST_P(CaptionsByThemselves, TellEverythingThatIsKnown) {
  show.set("extras/captions", "{name};{file};{folder};{date};{time};{camera};{title};{number}/{total}");
  addPhoto("Sea");
  addPhoto("Lake");
  show.pictures.facts["C:\\pictures\\1.jpg"] = {
      .title = "Lake", .camera = "Acme X100", .date = os::LocalTime{2019, 7, 14, 18, 5, 9, 0}};
  show.start();
  EXPECT_EQ(captions(2)[1], "1;1.jpg;pictures;7/14/2019;6:05 PM;Acme X100;Lake;2/2");
}

TEST_P(CaptionsByThemselves, APictureThatCannotBeLoadedHasNone) {
  show.set("extras/captions", "{name}");
  addPhoto("Lake");
  show.set("images/1", "C:\\pictures\\gone.jpg");
  show.set("caption/1", "");
  show.set("total/total", "2");
  show.start();
  EXPECT_EQ(captions(3), (std::vector<std::string>{"0", "", "0"}));
}

TEST_P(CaptionsByThemselves, WithoutTemplateNoPictureIsAskedForWhatItSays) {
  addPhoto("Lake");
  addPhoto("Hill");
  show.start();
  EXPECT_EQ(captions(2), (std::vector<std::string>{"", ""}));
  EXPECT_TRUE(show.pictures.factsAsked.empty());
}

TEST_P(CaptionsByThemselves, AreCenteredAndScrollAsAnyOther) {
  show.set("extras/captions", "{title}");
  addPhoto("Lake");
  show.set("image/timeInterval", "0");
  show.start();
  show.runFor(600);
  const float width = 4 * 6 * 15 + 200;
  EXPECT_FLOAT_EQ(show.form->Label1.width(), width);
  EXPECT_FLOAT_EQ(show.form->Label1.left(), (1024 * 15 - width) / 2);
  EXPECT_GT(show.form->Label1.height(), 0);
}

TEST_P(CaptionsByThemselves, AFloatingPictureKeepsOutOfTheirBand) {
  show.set("extras/captions", "{title}");
  show.set("image/picRandom", "rand");
  show.set("image/picSpeed", "5");
  show.set("image/timeInterval", "0");
  show.addPicture({900, 700}, kRed);
  show.start();
  EXPECT_EQ(show.form->captionHeight(), 12 * 15);
  show.runFor(5000);  // it begins inside the band, or not far from it, and leaves it
  float highest = show.form->DisplayingPicture.top();
  for (int i = 0; i < 100; ++i) {
    show.runFor(100);
    highest = std::min(highest, show.form->DisplayingPicture.top());
  }
  EXPECT_GE(highest, 12 * 15 - 15) << "one step beyond it turns round";
  EXPECT_LT(highest, 12 * 15 + 100) << "it never came near";
}

TEST(CaptionBandByTemplate, IsThereWhereSomePictureHasNoCaptionOfItsOwn) {
  const auto band = [](const std::string& pattern, const std::vector<std::string>& own,
                       const std::string& folder = "") {
    ShowStage show;
    show.set("extras/captions", pattern);
    if (!folder.empty()) show.set("folders/0", folder);
    for (const std::string& caption : own) show.addPicture(kSize, kRed, caption);
    show.start();
    return show.form->captionHeight();
  };
  constexpr int kLine = 12 * 15;
  EXPECT_EQ(band("{title}", {""}), kLine);
  EXPECT_EQ(band("{title}", {"\" \"", ""}), kLine);
  EXPECT_EQ(band("{title}", {"Lake", ""}), kLine);
  EXPECT_EQ(band("{title}", {"\" \""}), 0) << "all have one of their own, which nobody sees";
  EXPECT_EQ(band("{title}", {}), 0);
  EXPECT_EQ(band("{title}", {}, "C:\\followed"), kLine) << "pictures of a folder have none of their own";
  EXPECT_EQ(band("", {""}), 0);
  EXPECT_EQ(band("", {}, "C:\\followed"), 0);
}

TEST(CaptionsByThemselvesAhead, AskNoDiskWhenThePictureIsShown) {
  ShowStage show;
  show.set("extras/captions", "{title}");
  show.set("extras/loadAhead", "1");
  show.addPicture(kSize, kRed);
  show.addPicture(kSize, kRed);
  show.pictures.facts["C:\\pictures\\1.jpg"].title = "Lake";
  show.start();
  show.runFor(1000);
  const std::vector<std::string> asked = {"C:\\pictures\\0.jpg", "C:\\pictures\\1.jpg"};
  EXPECT_EQ(show.pictures.factsAsked, asked) << "the second one while the first stands";
  show.pictures.facts.clear();
  show.runFor(1000);
  EXPECT_EQ(show.form->Label1.caption(), "Lake");
}

TEST(CaptionsByThemselvesOnScreens, EachScreenTellsOfItsOwnPicture) {
  support::StartedShow started({800, 600});
  ShowStage& show = started.stage;
  show.screen.others = {{800, 0, 640, 480}};
  show.set("extras/captions", "{title} {number}");
  show.set("extras/otherScreens", "different");
  for (int i = 0; i < 4; ++i) {
    show.addPicture(kSize, kRed);
    show.pictures.facts["C:\\pictures\\" + std::to_string(i) + ".jpg"].title =
        std::string(1, static_cast<char>('A' + i));
  }
  started.start();
  show.runFor(700);
  EXPECT_EQ(started.show->form().Label1.caption(), "A 1");
  ASSERT_EQ(started.covers.size(), 1U);
  // The words on the other screen are as wide as those on the first.
  const base::Bitmap& other = started.covers[0]->screen;
  int inked = 0;
  for (int x = 0; x < other.size().width; ++x) inked += other.at(x, 3) == 0xFFFFFFFFU ? 1 : 0;
  EXPECT_EQ(inked, 2 * 5) << "B 2: two letters of five columns";
}

}  // namespace

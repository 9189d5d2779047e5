// Several entries of a list chosen by keys and pointer.
#include <gtest/gtest.h>

#include "base/errors.h"
#include "forms/form.h"
#include "forms/lists.h"
#include "support/fake_window_system.h"

namespace forms {
namespace {

using Indices = std::vector<int>;

constexpr ListHands kBare{};
constexpr ListHands kShift{.shift = true};
constexpr ListHands kControl{.control = true};
constexpr ListHands kBoth{.shift = true, .control = true};

struct ListChoice : testing::Test {
  Form form{"Form"};
  ListBox list{form, "list"};
  int clicks = 0;

  ListChoice() {
    list.multiSelect = true;
    list.onClick = [this] { ++clicks; };
    list.setItems({"a", "b", "c", "d", "e", "f"});
  }

  void press(int index, ListHands hands = kBare) {
    list.userPressed(index, hands);
    list.userReleased();
  }
};

TEST_F(ListChoice, APlainClickChoosesOneEntryAlone) {
  press(1);
  press(3);
  EXPECT_EQ(list.chosen(), Indices{3});
  EXPECT_EQ(list.listIndex(), 3);
  EXPECT_EQ(clicks, 2);
}

TEST_F(ListChoice, ShiftChoosesAllFromTheAnchorOn) {
  press(1);
  press(4, kShift);
  EXPECT_EQ(list.chosen(), (Indices{1, 2, 3, 4}));
  EXPECT_EQ(list.listIndex(), 4);
  press(0, kShift);
  EXPECT_EQ(list.chosen(), (Indices{0, 1})) << "from the same anchor, to the other side";
  EXPECT_EQ(clicks, 3);
}

TEST_F(ListChoice, ControlAddsAndTakesAway) {
  press(1);
  press(4, kControl);
  EXPECT_EQ(list.chosen(), (Indices{1, 4}));
  press(1, kControl);
  EXPECT_EQ(list.chosen(), Indices{4});
  EXPECT_EQ(list.listIndex(), 1) << "the keyboard stands where the click was";
}

TEST_F(ListChoice, BothKeysAddARange) {
  press(0);
  press(3, kControl);
  press(5, kBoth);
  EXPECT_EQ(list.chosen(), (Indices{0, 3, 4, 5}));
}

TEST_F(ListChoice, OneOfSeveralPressedKeepsThemUntilTheButtonIsUp) {
  press(1);
  press(3, kShift);
  list.userPressed(2, kBare);
  EXPECT_EQ(list.chosen(), (Indices{1, 2, 3})) << "they may be about to be dragged";
  EXPECT_EQ(list.listIndex(), 2);
  list.userReleased();
  EXPECT_EQ(list.chosen(), Indices{2});
}

TEST_F(ListChoice, DraggedEntriesStayChosen) {
  std::vector<int> gaps;
  list.onEntriesDragged = [&](int gap) { gaps.push_back(gap); };
  press(1);
  press(3, kShift);
  list.userPressed(2, kBare);
  list.userDraggedTo(6);
  list.userReleased();
  EXPECT_EQ(gaps, std::vector<int>{6});
  EXPECT_EQ(list.chosen(), (Indices{1, 2, 3}));
}

TEST_F(ListChoice, ADragThatWasGivenUpLeavesNothingToTheNextClick) {
  press(1);
  press(3, kShift);
  list.userPressed(2, kBare);  // and never released
  press(5, kControl);
  EXPECT_EQ(list.chosen(), (Indices{1, 2, 3, 5}));
}

TEST_F(ListChoice, WalkingChoosesNothingAndSpaceDoes) {
  press(0);
  list.userWalkedTo(1);
  list.userWalkedTo(2);
  EXPECT_EQ(list.chosen(), Indices{0});
  EXPECT_EQ(list.listIndex(), 2);
  list.userToggled(2);
  EXPECT_EQ(list.chosen(), (Indices{0, 2}));
  EXPECT_EQ(clicks, 3);
}

TEST_F(ListChoice, AllAreChosenWhereTheKeyboardStays) {
  list.userChoseAll();
  EXPECT_EQ(list.chosen(), (Indices{0, 1, 2, 3, 4, 5}));
  EXPECT_EQ(list.listIndex(), 0);
  press(4);
  list.userChoseAll();
  EXPECT_EQ(list.listIndex(), 4);
  list.clear();
  list.userChoseAll();
  EXPECT_EQ(list.chosen(), Indices{});
  EXPECT_EQ(list.listIndex(), -1);
}

TEST_F(ListChoice, TheProgramsSelectionIsChosenAlone) {
  list.userChoseAll();
  const int before = clicks;
  list.setListIndex(0);
  EXPECT_EQ(list.chosen(), Indices{0});
  EXPECT_EQ(clicks, before) << "it was selected before";
  list.choose(Indices{2, 4}, 4);
  EXPECT_EQ(list.chosen(), (Indices{2, 4}));
  EXPECT_EQ(clicks, before + 1);
  EXPECT_THROW(list.choose(Indices{4, 2}, 4), base::InvalidPropertyValue);
  EXPECT_THROW(list.choose(Indices{6}, 0), base::InvalidPropertyValue);
  EXPECT_EQ(list.chosen(), (Indices{2, 4}));
}

TEST_F(ListChoice, ChosenEntriesStaySoWhileOthersComeAndGo) {
  list.choose(Indices{1, 4}, 4);
  list.addItem("0", 0);
  EXPECT_EQ(list.chosen(), (Indices{2, 5}));
  list.removeItem(3);
  EXPECT_EQ(list.chosen(), (Indices{2, 4}));
  EXPECT_EQ(list.text(), "e");
  list.removeItem(4);
  EXPECT_EQ(list.chosen(), Indices{2});
  EXPECT_EQ(list.listIndex(), -1);
  list.addItems({"x", "y"});
  EXPECT_EQ(list.chosen(), Indices{2});
}

TEST_F(ListChoice, WithoutLeaveOneEntryIsChosenAtATime) {
  ListBox single(form, "single");
  single.setItems({"a", "b"});
  EXPECT_EQ(single.chosen(), Indices{});
  single.setListIndex(1);
  EXPECT_EQ(single.chosen(), Indices{1});
  EXPECT_TRUE(single.isChosen(1));
  EXPECT_FALSE(single.isChosen(0));
  EXPECT_FALSE(single.isChosen(7));
}

TEST_F(ListChoice, EntriesTakenOutComeBackToTheirPlaces) {
  const Indices scattered{0, 2, 5};
  list.setListIndex(3);
  std::vector<std::string> taken = list.takeItems(scattered);
  EXPECT_EQ(taken, (std::vector<std::string>{"a", "c", "f"}));
  EXPECT_EQ(list.items(), (std::vector<std::string>{"b", "d", "e"}));
  EXPECT_EQ(list.text(), "d");
  list.putItems(scattered, std::move(taken));
  EXPECT_EQ(list.items(), (std::vector<std::string>{"a", "b", "c", "d", "e", "f"}));
  EXPECT_EQ(list.text(), "d");
  EXPECT_THROW(list.takeItems(Indices{2, 2}), base::InvalidPropertyValue);
  EXPECT_THROW(list.takeItems(Indices{6}), base::InvalidPropertyValue);
  EXPECT_THROW(list.putItems(Indices{8}, {"x"}), base::InvalidPropertyValue);
  EXPECT_EQ(list.listCount(), 6);
}

// What a host that follows each edit has in the end.
struct Follower : support::FakeWindowSystem {
  std::vector<std::string> lines;

  void listChanged(ListBox& list, const ListEdit& edit) override {
    ++listEdits;
    if (edit.kind == ListEdit::Kind::Reset) {
      lines = list.items();
      return;
    }
    for (int i = edit.index; i < edit.index + edit.count; ++i) {
      const int at = edit.kind == ListEdit::Kind::Removed ? edit.index : i;
      if (edit.kind != ListEdit::Kind::Inserted) lines.erase(lines.begin() + at);
      if (edit.kind != ListEdit::Kind::Removed) lines.insert(lines.begin() + at, list.item(i));
    }
  }
};

TEST_F(ListChoice, AHostThatFollowsEveryEditHasTheSameLines) {
  Follower host;
  form.setHost(&host);
  list.setItems({"a", "b", "c", "d", "e", "f"});
  const Indices scattered{0, 2, 3, 5};
  std::vector<std::string> taken = list.takeItems(scattered);
  EXPECT_EQ(host.lines, list.items());
  EXPECT_EQ(host.listEdits, 1 + 3) << "neighbours are one edit";
  list.putItems(Indices{1, 2, 4, 5}, std::move(taken));
  EXPECT_EQ(host.lines, list.items());
  list.removeItem(3);
  list.addItem("x", 2);
  EXPECT_EQ(host.lines, list.items());
  form.setHost(nullptr);
}

TEST_F(ListChoice, HalfOfThirtyThousandGoInOneEdit) {
  Follower host;
  list.setItems(std::vector<std::string>(30'000, "picture"));
  form.setHost(&host);
  Indices everyOther;
  for (int i = 0; i < 30'000; i += 2) everyOther.push_back(i);
  list.choose(everyOther, 0);
  std::vector<std::string> taken = list.takeItems(list.chosen());
  EXPECT_EQ(list.listCount(), 15'000);
  EXPECT_EQ(host.listEdits, 1);
  list.putItems(everyOther, std::move(taken));
  EXPECT_EQ(host.listEdits, 2);
  EXPECT_EQ(host.lines.size(), 30'000U);
  form.setHost(nullptr);
}

TEST_F(ListChoice, TakingAllMovesTheirTexts) {
  list.setItems({"a text that is too long to be kept inside a string object", "b"});
  const char* const letters = list.item(0).data();
  std::vector<std::string> taken = list.takeItems(Indices{0, 1});
  EXPECT_EQ(taken.front().data(), letters);
  list.putItems(Indices{0, 1}, std::move(taken));
  EXPECT_EQ(list.item(0).data(), letters);
}

}  // namespace
}  // namespace forms

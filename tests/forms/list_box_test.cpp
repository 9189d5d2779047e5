#include "forms/lists.h"

#include <gtest/gtest.h>

#include "base/errors.h"
#include "forms/form.h"
#include "support/fake_window_system.h"

namespace forms {
namespace {

struct ListBoxTest : testing::Test {
  Form form{"Form"};
  ListBox list{form, "list"};
  int clicks = 0;

  ListBoxTest() {
    list.onClick = [this] { ++clicks; };
    list.setItems({"a", "b", "c"});
  }
};

TEST_F(ListBoxTest, SelectingFromCodeRaisesTheClickUnlessItWasSelected) {
  list.setListIndex(1);
  list.setListIndex(1);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(list.text(), "b");
  list.userSelected(2);
  EXPECT_EQ(clicks, 2);
}

TEST_F(ListBoxTest, NothingSelectedIsAnEmptyText) {
  EXPECT_EQ(list.listIndex(), -1);
  EXPECT_EQ(list.text(), "");
  EXPECT_EQ(list.item(3), "");
}

TEST_F(ListBoxTest, AnIndexBeyondTheListIsRefused) {
  EXPECT_THROW(list.setListIndex(3), base::InvalidPropertyValue);
  EXPECT_THROW(list.removeItem(-1), base::InvalidPropertyValue);
  EXPECT_THROW(list.addItem("x", 4), base::InvalidPropertyValue);
  EXPECT_THROW(list.setItem(3, "x"), base::InvalidPropertyValue);
  EXPECT_EQ(list.listCount(), 3);
}

TEST_F(ListBoxTest, TheSelectionStaysOnItsEntryWhileOthersComeAndGo) {
  list.setListIndex(1);
  list.addItem("0", 0);
  EXPECT_EQ(list.listIndex(), 2);
  EXPECT_EQ(list.text(), "b");
  list.removeItem(0);
  EXPECT_EQ(list.listIndex(), 1);
  list.removeItem(2);
  EXPECT_EQ(list.text(), "b");
  EXPECT_EQ(clicks, 1);
}

TEST_F(ListBoxTest, RemovingTheSelectedEntrySelectsNothingWithoutAClick) {
  list.setListIndex(1);
  list.removeItem(1);
  EXPECT_EQ(list.listIndex(), -1);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ListBoxTest, ManyEntriesComeInOneStep) {
  support::FakeWindowSystem host;
  form.setHost(&host);
  std::vector<std::string> many(30000, "picture");
  list.setListIndex(2);
  list.addItems(many);
  EXPECT_EQ(list.listCount(), 30003);
  EXPECT_EQ(list.listIndex(), 2);
  EXPECT_EQ(host.listEdits, 1);
  list.clear();
  EXPECT_EQ(list.listIndex(), -1);
  form.setHost(nullptr);
}

}  // namespace
}  // namespace forms

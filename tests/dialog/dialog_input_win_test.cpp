// The dialog under a person's hands: pointer and keys on the real windows.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>
#include <shellapi.h>
#include <shlobj.h>

#include <cstring>
#include <string>
#include <vector>

#include "support/real_dialog_win.h"

namespace dialog {
namespace {

using support::RealDialog;

struct DialogInput : testing::Test {
  support::DialogMachine machine;
  std::unique_ptr<RealDialog> dialog;

  DialogInput() {
    machine.set("total", "total", "3");
    for (const char* i : {"0", "1", "2"}) {
      const std::string path = std::string("C:\\") + i + ".gif";
      machine.set("images", i, path);
      machine.pictures.add(path, {40, 30}, base::kWhite);
    }
    machine.pictures.add("C:\\new.gif", {30, 40}, base::kBlack);
    machine.writeSettings();
    dialog = std::make_unique<RealDialog>(machine);
  }

  Form2& form() { return dialog->form(); }

  // True when the record's field soon has this text.
  bool becomes(const std::string& field, const std::string& text) {
    return dialog->waitFor([&] { return field == text; });
  }

  // The controls at which the tab key stops, from the one that has the keyboard until it has it again.
  std::string tabStops() {
    std::string stops;
    const std::string first = dialog->focusedName();
    std::string now = first;
    for (int i = 0; i < 30; ++i) {
      stops += now + " ";
      const HWND before = GetFocus();
      dialog->press(VK_TAB);
      dialog->waitFor([&] { return GetFocus() != before; });
      now = dialog->focusedName();
      if (now == first) break;
    }
    return stops;
  }
};

TEST_F(DialogInput, ClicksReachTheirHandlers) {
  dialog->showTab(1);
  dialog->click(form().nChange);
  EXPECT_TRUE(becomes(form().record.picChange, "not_ch"));
  EXPECT_FALSE(IsWindowEnabled(dialog->windowOf(form().Text2)));
  EXPECT_EQ(RealDialog::textOf(dialog->windowOf(form().Text2)), "0");
  EXPECT_EQ(SendMessageW(dialog->windowOf(form().Random_select), BM_GETCHECK, 0, 0), BST_UNCHECKED);
  dialog->click(form().aChange);
  EXPECT_TRUE(becomes(form().record.picChange, "ch"));
  EXPECT_TRUE(IsWindowEnabled(dialog->windowOf(form().Text2)));
  dialog->click(form().Random_select);
  EXPECT_TRUE(becomes(form().record.randomPick, "1"));
  EXPECT_EQ(SendMessageW(dialog->windowOf(form().Random_select), BM_GETCHECK, 0, 0), BST_CHECKED);
}

TEST_F(DialogInput, AClickIntoTheListSelects) {
  const int line = static_cast<int>(SendMessageW(dialog->windowOf(form().List1), LB_GETITEMHEIGHT, 0, 0));
  dialog->click(form().List1, 20, 4 + line * 3 / 2);
  EXPECT_TRUE(dialog->waitFor([&] { return form().List1.listIndex() == 1; }));
  dialog->press(VK_DOWN);
  EXPECT_TRUE(dialog->waitFor([&] { return form().List1.listIndex() == 2; }));
}

TEST_F(DialogInput, TheRealListFollowsTheModel) {
  const HWND list = dialog->windowOf(form().List1);
  form().List1.addItem("C:\\new.gif", 1);
  form().photo_caption.addItem("", 1);
  EXPECT_EQ(SendMessageW(list, LB_GETCOUNT, 0, 0), 4);
  form().List1.setListIndex(1);
  EXPECT_EQ(SendMessageW(list, LB_GETCURSEL, 0, 0), 1);
  form().List1.removeItem(1);
  form().photo_caption.removeItem(1);
  EXPECT_EQ(SendMessageW(list, LB_GETCOUNT, 0, 0), 3);
  EXPECT_EQ(SendMessageW(list, LB_GETCURSEL, 0, 0), LB_ERR);
  form().List1.addItems({"x", "y"});
  form().List1.setItem(4, "z");
  wchar_t text[16] = {};
  SendMessageW(list, LB_GETTEXT, 4, reinterpret_cast<LPARAM>(text));
  EXPECT_STREQ(text, L"z");
  form().List1.clear();
  EXPECT_EQ(SendMessageW(list, LB_GETCOUNT, 0, 0), 0);
}

TEST_F(DialogInput, ANumberTypedMovesTheScrollBarAndTheArrowsCountUp) {
  dialog->showTab(1);
  dialog->click(form().Text2, 20, 12);
  dialog->press(VK_END);
  for (int i = 0; i < 4; ++i) dialog->press(VK_BACK);
  dialog->type("120");
  EXPECT_TRUE(becomes(form().record.timeInterval, "120"));
  EXPECT_EQ(RealDialog::textOf(dialog->windowOf(form().Text2)), "120");
  EXPECT_EQ(form().changeVScroll1.value(), 120);
  dialog->click(form().changeVScroll1, 8, 4);
  EXPECT_TRUE(becomes(form().record.timeInterval, "121"));
  EXPECT_EQ(RealDialog::textOf(dialog->windowOf(form().Text2)), "121");
}

TEST_F(DialogInput, LettersCannotBeTypedIntoTheInterval) {
  dialog->showTab(1);
  dialog->click(form().Text2, 20, 12);
  dialog->press('A');
  dialog->press('5');
  dialog->waitFor([&] { return form().Text2.text().find('5') != std::string::npos; });
  EXPECT_EQ(form().Text2.text().find('a'), std::string::npos);
}

TEST_F(DialogInput, ArrowKeysChooseInAGroup) {
  dialog->showTab(7);
  dialog->click(form().yearOption);
  EXPECT_TRUE(becomes(form().record.timeDisplay, "2"));
  dialog->press(VK_UP);
  EXPECT_TRUE(becomes(form().record.timeDisplay, "1"));
  EXPECT_FALSE(IsWindowEnabled(dialog->windowOf(form().monthCombo)));
  dialog->press(VK_UP);
  EXPECT_TRUE(becomes(form().record.timeDisplay, "0"));
  dialog->press(VK_UP);
  EXPECT_TRUE(becomes(form().record.timeDisplay, "2")) << "round to the last";
}

TEST_F(DialogInput, MnemonicsWorkOnTheTabThatIsShown) {
  dialog->showTab(1);
  dialog->press('N', VK_MENU);
  EXPECT_TRUE(becomes(form().record.picChange, "not_ch"));
  dialog->press('A', VK_MENU);
  EXPECT_TRUE(becomes(form().record.picChange, "ch"));
}

TEST_F(DialogInput, KeysMoveASlider) {
  dialog->showTab(3);
  dialog->press(VK_TAB);
  EXPECT_TRUE(dialog->waitFor([&] { return dialog->focusedName() == "MouseSensitiveSlider"; }));
  dialog->press(VK_RIGHT);
  EXPECT_TRUE(becomes(form().record.mouseSensitivity, "13"));
  dialog->press(VK_NEXT);
  EXPECT_TRUE(becomes(form().record.mouseSensitivity, "18"));
  dialog->press(VK_HOME);
  EXPECT_TRUE(becomes(form().record.mouseSensitivity, "1"));
  dialog->click(form().defaultMouseSensitivity);
  EXPECT_TRUE(becomes(form().record.mouseSensitivity, "23"));
  EXPECT_EQ(SendMessageW(dialog->windowOf(form().MouseSensitiveSlider), TBM_GETPOS, 0, 0), 23);
}

TEST_F(DialogInput, AComboIsChosenFromAndShowsAnyText) {
  dialog->showTab(7);
  form().monthCombo.setText("soon");
  form().record.countdownMonth = "none";
  const HWND combo = dialog->windowOf(form().monthCombo);
  EXPECT_EQ(RealDialog::textOf(combo), "soon");
  dialog->click(form().monthCombo, 20, 12);
  EXPECT_TRUE(dialog->waitFor([&] { return SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) != 0; }));
  dialog->press(VK_DOWN);
  dialog->press(VK_RETURN);
  EXPECT_TRUE(dialog->waitFor([&] { return form().record.countdownMonth != "none"; }));
  EXPECT_EQ(form().record.countdownMonth.substr(0, 1), "0");
  EXPECT_EQ(RealDialog::textOf(combo), form().record.countdownMonth);
  EXPECT_TRUE(dialog->isOpen()) << "Enter closed the list, not the dialog";
}

TEST_F(DialogInput, TheTabKeyStopsAtEveryControlInOrder) {
  EXPECT_EQ(tabStops(),
            "List1 up down ImagePosition Text3 add remove RemoveAll FolderCommand EnlargeCommand p_caption "
            "caption_clear MoreCommand TryIt Ok Cancel SSTab1 ");
  dialog->showTab(1);
  EXPECT_EQ(tabStops(),
            "SSTab1 aChange Text2 changeVScroll1 Random_select pRandom floatSlider MoreCommand TryIt Ok "
            "Cancel ");
}

TEST_F(DialogInput, ControlTabGoesRoundTheTabs) {
  for (int tab = 1; tab <= 8; ++tab) {
    dialog->press(VK_TAB, VK_CONTROL);
    EXPECT_TRUE(dialog->waitFor([&] { return form().SSTab1.tab() == tab % 8; })) << tab;
    EXPECT_EQ(SendMessageW(dialog->windowOf(form().SSTab1), TCM_GETCURSEL, 0, 0), tab % 8);
  }
}

TEST_F(DialogInput, ThePointerIsExplained) {
  dialog->pointAt(form().Ok);
  EXPECT_TRUE(dialog->waitFor(
      [&] { return dialog->statusText(1) == "Save Settings: Save all screen saver settings"; }));
  dialog->pointAt(form().SSTab1, 5, 425);
  EXPECT_TRUE(dialog->waitFor([&] { return dialog->statusText(1).empty(); }));
  dialog->showTab(5);
  dialog->pointAt(form().Frame4, 40, 118);
  const std::string hint = "Image transitions: Image effects on loaded images";
  EXPECT_TRUE(dialog->waitFor([&] { return dialog->statusText(1) == hint; }));
  dialog->pointAt(form().Fade, 20, 10);
  dialog->loop().runPending();
  EXPECT_EQ(dialog->statusText(1), hint);
  dialog->showTab(4);
  dialog->pointAt(form().Label13, 20, 8);
  EXPECT_TRUE(dialog->waitFor([&] {
    return dialog->statusText(1) ==
           "Image Size: Display all loaded images less than a percentage of the screen";
  })) << "labels let the pointer through, yet it is found by its place";
}

TEST_F(DialogInput, EscapeCancels) {
  dialog->press(VK_ESCAPE);
  EXPECT_TRUE(dialog->waitFor([&] { return !dialog->isOpen(); }));
  EXPECT_TRUE(dialog->loop().isQuitting());
}

TEST_F(DialogInput, EnterPressesOk) {
  int pressed = 0;
  form().Ok.onClick = [&] { ++pressed; };
  dialog->press(VK_RETURN);
  EXPECT_TRUE(dialog->waitFor([&] { return pressed == 1; }));
}

TEST_F(DialogInput, ClosingTheWindowCancels) {
  PostMessageW(dialog->window(), WM_SYSCOMMAND, SC_CLOSE, 0);
  EXPECT_TRUE(dialog->waitFor([&] { return !dialog->isOpen(); }));
}

// As the shell gives the paths of dropped files: behind a head, each closed by a zero, and one more at the
// end.
HDROP DroppedFiles(const std::vector<std::wstring>& paths) {
  std::wstring names;
  for (const std::wstring& path : paths) names += path + L'\0';
  names += L'\0';
  const std::size_t bytes = names.size() * sizeof(wchar_t);
  const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(DROPFILES) + bytes);
  auto* const head = static_cast<DROPFILES*>(GlobalLock(block));
  head->pFiles = sizeof(DROPFILES);
  head->fWide = TRUE;
  std::memcpy(head + 1, names.data(), bytes);
  GlobalUnlock(block);
  return static_cast<HDROP>(block);
}

TEST_F(DialogInput, PicturesDroppedOnTheListComeBehindItsOwn) {
  for (const char* path : {"C:\\new.gif", "C:\\newer.gif"}) {
    machine.files.content[path] = "";
    machine.pictures.add(path, {30, 40}, base::kBlack);
  }
  const HDROP drop = DroppedFiles({L"C:\\new.gif", L"C:\\newer.gif"});
  PostMessageW(dialog->windowOf(form().List1), WM_DROPFILES, reinterpret_cast<WPARAM>(drop), 0);
  EXPECT_TRUE(dialog->waitFor([&] { return form().List1.listCount() == 5; }));
  EXPECT_EQ(form().List1.item(3), "C:\\new.gif");
  EXPECT_EQ(form().List1.item(4), "C:\\newer.gif");
}

}  // namespace
}  // namespace dialog

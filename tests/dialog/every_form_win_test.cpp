// Every form as real windows at every usual number of dots per inch, in the system's own font.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "auxwin/frm_about.h"
#include "auxwin/multi_files.h"
#include "dialog/control_table.h"
#include "dialog/more_options.h"
#include "dialog/more_table.h"
#include "os/handles_win.h"
#include "os/utf16_win.h"
#include "support/real_dialog_win.h"

namespace dialog {
namespace {

using support::RealDialog;

constexpr int kDpis[] = {96, 120, 144, 192};

// A window with its place on the screen.
struct Child {
  HWND window = nullptr;
  RECT place{};
  std::string windowClass;
  DWORD style = 0;
};

std::vector<Child> ChildrenOf(HWND form) {
  std::vector<Child> children;
  EnumChildWindows(
      form,
      [](HWND window, LPARAM list) CALLBACK -> BOOL {
        Child child{window,
                    {},
                    RealDialog::classOf(window),
                    static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE))};
        GetWindowRect(window, &child.place);
        // A name for screen readers has no size and is never seen.
        const bool seen = (child.style & WS_VISIBLE) != 0 && !IsRectEmpty(&child.place);
        const bool onPage = RealDialog::classOf(GetParent(window)) == "LumoraPage";
        if (seen || (onPage && !IsRectEmpty(&child.place))) {
          reinterpret_cast<std::vector<Child>*>(list)->push_back(child);
        }
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&children));
  return children;
}

// The room that a window's text needs, wrapped at `width` where that is not 0.
SIZE NeededBy(HWND window, const std::string& text, int width, bool hasMnemonic) {
  const os::WindowDc dc(window);
  const os::Selected font(dc.get(), reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)));
  RECT needed{0, 0, width, 0};
  const UINT prefix = hasMnemonic ? 0 : DT_NOPREFIX;
  DrawTextW(dc.get(), os::ToWide(text).c_str(), -1, &needed,
            DT_CALCRECT | prefix | (width > 0 ? DT_WORDBREAK : DT_SINGLELINE));
  return {needed.right, needed.bottom};
}

// What stands beside a button's text: its edges, its box, the ends of its line.
int BesideTextOf(DWORD style, int dpi) {
  switch (style & BS_TYPEMASK) {
    case BS_PUSHBUTTON:
    case BS_DEFPUSHBUTTON:
      return MulDiv(8, dpi, 96);
    default:
      return MulDiv(18, dpi, 96);
  }
}

void ExpectRoomForTheText(const Child& child, int dpi) {
  const std::string text = RealDialog::textOf(child.window);
  if (text.empty() || (child.style & BS_ICON) != 0) return;
  RECT inside{};
  GetClientRect(child.window, &inside);
  if (child.windowClass == "Button") {
    const SIZE needed = NeededBy(child.window, text, 0, true);
    EXPECT_LE(needed.cx + BesideTextOf(child.style, dpi), inside.right) << text;
    EXPECT_LE(needed.cy, inside.bottom) << text;
  }
  if (child.windowClass == "Static") {
    const bool wraps = (child.style & SS_TYPEMASK) == SS_LEFT;
    const SIZE needed = NeededBy(child.window, text, wraps ? static_cast<int>(inside.right) : 0,
                                 (child.style & SS_NOPREFIX) == 0);
    EXPECT_LE(needed.cx, inside.right) << text;
    EXPECT_LE(needed.cy, inside.bottom) << text;
  }
  if (child.windowClass == "ComboBox") {
    const auto items = static_cast<int>(SendMessageW(child.window, CB_GETCOUNT, 0, 0));
    for (int i = 0; i < items; ++i) {
      std::wstring item(
          static_cast<std::size_t>(SendMessageW(child.window, CB_GETLBTEXTLEN, static_cast<WPARAM>(i), 0)) +
              1,
          L'\0');
      SendMessageW(child.window, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(item.data()));
      item.pop_back();
      const SIZE needed = NeededBy(child.window, os::FromWide(item), 0, false);
      EXPECT_LE(needed.cx + MulDiv(26, dpi, 96), inside.right) << os::FromWide(item);
    }
  }
}

// Pages lie on their tabs, and the status bar stays in sight where not all of the form does.
bool MayCoverOthers(const Child& child) {
  return child.windowClass == "LumoraPage" || child.windowClass == "SysTabControl32" ||
         child.windowClass == "msctls_statusbar32";
}

void ExpectNothingOnAnother(const std::vector<Child>& children) {
  for (std::size_t i = 0; i < children.size(); ++i) {
    for (std::size_t j = i + 1; j < children.size(); ++j) {
      const Child& a = children[i];
      const Child& b = children[j];
      if (GetParent(a.window) != GetParent(b.window) || MayCoverOthers(a) || MayCoverOthers(b)) continue;
      RECT common{};
      EXPECT_FALSE(IntersectRect(&common, &a.place, &b.place))
          << RealDialog::textOf(a.window) << " and " << RealDialog::textOf(b.window);
    }
  }
}

void ExpectInsideItsParent(const Child& child) {
  const HWND parent = GetParent(child.window);
  if (RealDialog::classOf(parent) != "LumoraPage" && RealDialog::classOf(parent) != "Button") return;
  RECT inside{};
  GetWindowRect(parent, &inside);
  EXPECT_GE(child.place.left, inside.left) << RealDialog::textOf(child.window);
  EXPECT_GE(child.place.top, inside.top) << RealDialog::textOf(child.window);
  EXPECT_LE(child.place.right, inside.right) << RealDialog::textOf(child.window);
  EXPECT_LE(child.place.bottom, inside.bottom) << RealDialog::textOf(child.window);
}

class EveryFormOnScreen : public testing::Test {
 protected:
  EveryFormOnScreen() { machine.writeSettings(); }

  void check(const forms::Form& form) {
    const HWND window = dialog->program().windows().windowOf(form);
    ASSERT_TRUE(window);
    for (const int dpi : kDpis) {
      SCOPED_TRACE(form.name() + " at " + std::to_string(dpi));
      SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), 0);
      const std::vector<Child> children = ChildrenOf(window);
      EXPECT_GT(children.size(), 2U);
      for (const Child& child : children) {
        ExpectRoomForTheText(child, dpi);
        ExpectInsideItsParent(child);
      }
      ExpectNothingOnAnother(children);
    }
  }

  // Every hint has room in the form's status bar.
  template <typename Rows>
  void checkHints(const forms::Form& form, const Rows& rows) {
    const HWND window = dialog->program().windows().windowOf(form);
    for (const int dpi : kDpis) {
      SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), 0);
      const HWND bar = FindWindowExW(window, nullptr, STATUSCLASSNAMEW, nullptr);
      RECT inside{};
      GetClientRect(bar, &inside);
      for (const auto& row : rows) {
        if (!row.hint) continue;
        EXPECT_LE(NeededBy(bar, row.hint, 0, false).cx + MulDiv(10, dpi, 96), inside.right) << row.hint;
      }
    }
  }

  support::DialogMachine machine;
  std::unique_ptr<RealDialog> dialog = nullptr;
};

TEST_F(EveryFormOnScreen, TheSettings) {
  dialog = std::make_unique<RealDialog>(machine);
  check(dialog->form());
  checkHints(dialog->form(), ControlTable());
}

TEST_F(EveryFormOnScreen, TheMoreOptions) {
  dialog = std::make_unique<RealDialog>(machine);
  MoreOptions more(dialog->form().services(), {dialog->form().record, {"C:\\", "C:\\windows"}});
  dialog->program().windows().show(more);
  check(more);
  checkHints(more, MoreControlTable());
  const HWND window = dialog->program().windows().windowOf(more);
  EXPECT_EQ(SendMessageW(FindWindowExW(window, nullptr, WC_TABCONTROLW, nullptr), TCM_GETROWCOUNT, 0, 0), 1);
  dialog->program().windows().unload(more);
}

TEST_F(EveryFormOnScreen, TheFolderImportAndTheAboutBox) {
  dialog = std::make_unique<RealDialog>(machine);
  auxwin::MultiFiles import(
      dialog->program().dialog().pictures.target(),
      auxwin::ImportServices{machine.files, machine.dialogs, dialog->program().windows(), dialog->loop(),
                             dialog->form().services().folders, dialog->form().services().makeWorker});
  dialog->program().windows().show(import);
  check(import);
  dialog->program().windows().unload(import);
  dialog->program().windows().show(dialog->program().dialog().about);
  check(dialog->program().dialog().about);
}

}  // namespace
}  // namespace dialog

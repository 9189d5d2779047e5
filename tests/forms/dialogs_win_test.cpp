// The system's own colour and font dialogs, with a person in front of them.
#include "forms/dialogs_win.h"

#include <dlgs.h>
#include <gtest/gtest.h>

#include <deque>
#include <string>

#include "os/handles_win.h"
#include "os/utf16_win.h"

namespace forms {
namespace {

// The places of red, green and blue in the colour dialog (ColorDlg.h of the platform's headers).
constexpr int kRedBox = 706;
constexpr int kGreenBox = 707;
constexpr int kBlueBox = 708;

// The dialog of this thread that can be answered now: one over another has disabled it.
HWND AnswerableDialog() {
  HWND found = nullptr;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND window, LPARAM result) CALLBACK -> BOOL {
        wchar_t name[16] = {};
        GetClassNameW(window, name, 16);
        if (std::wstring(name) != L"#32770" || !IsWindowVisible(window) || !IsWindowEnabled(window))
          return TRUE;
        *reinterpret_cast<HWND*>(result) = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

std::string TextOf(HWND window) {
  wchar_t text[256] = {};
  GetWindowTextW(window, text, 256);
  return os::FromWide(text);
}

class RealDialogs : public testing::Test {
 protected:
  using Step = std::function<void(HWND)>;

  RealDialogs() {
    hands_ = this;
    timer_ = SetTimer(nullptr, 0, 20, [](HWND, UINT, UINT_PTR, DWORD) CALLBACK { hands_->act(); });
  }
  ~RealDialogs() override {
    KillTimer(nullptr, timer_);
    EXPECT_TRUE(steps.empty()) << "some were never done";
  }

  static Step press(int button) {
    return [button](HWND dialog) { PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0); };
  }
  static Step type(int box, const std::wstring& text) {
    return [box, text](HWND dialog) { SetDlgItemTextW(dialog, box, text.c_str()); };
  }

  // What is done with the dialog that is open, one a tick.
  std::deque<Step> steps;
  DialogsWin dialogs{[] { return HWND{}; }};

 private:
  void act() {
    const HWND dialog = AnswerableDialog();
    if (!dialog || steps.empty()) return;
    const Step step = steps.front();
    steps.pop_front();
    step(dialog);
  }

  static inline RealDialogs* hands_ = nullptr;
  UINT_PTR timer_ = 0;
};

TEST_F(RealDialogs, TheColourDialogBeginsWithTheColourThatItIsGiven) {
  std::string shown;
  steps = {[&](HWND dialog) {
             for (const int box : {kRedBox, kGreenBox, kBlueBox})
               shown += TextOf(GetDlgItem(dialog, box)) + " ";
           },
           press(IDOK)};
  EXPECT_EQ(dialogs.chooseColor({base::Rgb(10, 200, 30), kStartOnColor}), base::Rgb(10, 200, 30));
  EXPECT_EQ(shown, "10 200 30 ");
}

TEST_F(RealDialogs, TheColourDialogGivesTheColourThatWasChosen) {
  steps = {type(kRedBox, L"99"), type(kGreenBox, L"0"), type(kBlueBox, L"255"), press(IDOK)};
  EXPECT_EQ(dialogs.chooseColor({base::Rgb(10, 200, 30), kStartOnColor}), base::Rgb(99, 0, 255));
}

TEST_F(RealDialogs, TheColourDialogThatIsCancelledGivesNothing) {
  steps = {type(kRedBox, L"99"), press(IDCANCEL)};
  EXPECT_EQ(dialogs.chooseColor({base::Rgb(10, 200, 30), kStartOnColor}), std::nullopt);
}

class RealFontDialog : public RealDialogs {
 protected:
  static constexpr base::PackedColor kRed = base::Rgb(255, 0, 0);

  static FontRequest requestOf(const base::Font& font) {
    return {font, kRed, kScreenFonts | kFontEffects | kLimitSize, 10, 48};
  }
  // One that the machine has, whichever that is.
  static base::Font plainFont() {
    base::Font font;
    EnumFontFamiliesW(
        os::WindowDc(nullptr).get(), nullptr,
        [](const LOGFONTW* face, const TEXTMETRICW*, DWORD, LPARAM result) CALLBACK -> int {
          const std::wstring name = face->lfFaceName;
          const bool isPlain = name == L"Arial" || name == L"Liberation Sans";
          if (isPlain) *reinterpret_cast<std::string*>(result) = os::FromWide(name);
          return isPlain ? 0 : 1;
        },
        reinterpret_cast<LPARAM>(&font.name));
    font.sizePoints = 14;
    return font;
  }
};

TEST_F(RealFontDialog, BeginsWithTheFontThatItIsGivenAndGivesItBack) {
  for (const int set : {1, 2, 4, 8}) {
    base::Font font = plainFont();
    font.bold = (set & 1) != 0;
    font.italic = (set & 2) != 0;
    font.underline = (set & 4) != 0;
    font.strikethrough = (set & 8) != 0;
    steps = {press(IDOK)};
    const auto chosen = dialogs.chooseFont(requestOf(font));
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->font.name, font.name);
    EXPECT_EQ(chosen->font.sizePoints, 14);
    EXPECT_EQ(chosen->font.bold, font.bold) << set;
    EXPECT_EQ(chosen->font.italic, font.italic) << set;
    EXPECT_EQ(chosen->font.underline, font.underline) << set;
    EXPECT_EQ(chosen->font.strikethrough, font.strikethrough) << set;
    EXPECT_EQ(chosen->color, kRed);
  }
}

TEST_F(RealFontDialog, OffersStrikeThroughUnderlineAndColour) {
  std::string offered;
  steps = {[&](HWND dialog) {
             for (const int control : {chx1, chx2, cmb4})
               offered += IsWindowVisible(GetDlgItem(dialog, control)) ? "1" : "0";
           },
           press(IDCANCEL)};
  EXPECT_FALSE(dialogs.chooseFont(requestOf(plainFont())));
  EXPECT_EQ(offered, "111");
}

TEST_F(RealFontDialog, OffersNoSizesBeyondTheLimits) {
  std::string first, last;
  steps = {[&](HWND dialog) {
             const HWND sizes = GetDlgItem(dialog, cmb3);
             wchar_t text[16] = {};
             SendMessageW(sizes, CB_GETLBTEXT, 0, reinterpret_cast<LPARAM>(text));
             first = os::FromWide(text);
             SendMessageW(sizes, CB_GETLBTEXT,
                          static_cast<WPARAM>(SendMessageW(sizes, CB_GETCOUNT, 0, 0) - 1),
                          reinterpret_cast<LPARAM>(text));
             last = os::FromWide(text);
           },
           press(IDCANCEL)};
  EXPECT_FALSE(dialogs.chooseFont(requestOf(plainFont())));
  EXPECT_EQ(first, "10");
  EXPECT_EQ(last, "48");
}

}  // namespace
}  // namespace forms

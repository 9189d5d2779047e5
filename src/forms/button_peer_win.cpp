// Push buttons, options and check boxes as real buttons.
#include <algorithm>

#include "forms/buttons.h"
#include "forms/form.h"
#include "forms/peers_win.h"
#include "os/dib_win.h"

namespace forms {

namespace {

// A triangle of `side` pixels that points up or down, in a text colour.
os::OwnedIcon MakeArrow(int side, bool up, COLORREF color) {
  os::Dib dib(base::PixelSize{side, side});
  const base::BitmapView view = dib.view();
  const base::Pixel ink = base::OpaquePixel(static_cast<base::PackedColor>(color));
  const int height = (side + 1) / 2;
  const int top = (side - height) / 2;
  for (int i = 0; i < height; ++i) {
    const int y = top + (up ? i : height - 1 - i);
    for (int x = side / 2 - i; x <= side / 2 + i; ++x) {
      if (x >= 0 && x < side) view.row(y)[x] = ink;
    }
  }
  const os::OwnedBitmap mask(CreateBitmap(side, side, 1, 1, nullptr));
  ICONINFO info{};
  info.fIcon = TRUE;
  info.hbmMask = mask.get();
  // The bitmap that the device context holds is the picture.
  info.hbmColor = static_cast<HBITMAP>(GetCurrentObject(dib.dc(), OBJ_BITMAP));
  return os::OwnedIcon(CreateIconIndirect(&info));
}

// An option that is the first of its group, in the order of the tab key.
bool StartsGroup(const OptionButton& option) {
  for (const Control* other : option.form().controls()) {
    if (other->kind() != ControlKind::OptionButton || other->container() != option.container()) continue;
    return other == &option;
  }
  return true;
}

// Whether the tab key stops at the option: at the chosen one, at the first while none is chosen.
bool TakesTab(const OptionButton& option) {
  for (const Control* other : option.form().controls()) {
    if (other->kind() != ControlKind::OptionButton || other->container() != option.container()) continue;
    if (static_cast<const OptionButton*>(other)->value()) return other == &option;
  }
  return StartsGroup(option);
}

class CommandButtonPeer : public ControlPeer {
 public:
  CommandButtonPeer(CommandButton& button, PeerOwner& owner) : ControlPeer(button, owner), button_(button) {}
  void onCommand(int code) override;

 protected:
  WindowRecipe recipe() const override;
  std::string windowText() const override;
  void onPlaced() override { drawGlyph(); }
  void onAppearance() override { drawGlyph(); }
  void onChange(Change change) override;

 private:
  void drawGlyph();

  CommandButton& button_;
  os::OwnedIcon glyph_;
};

class OptionButtonPeer : public ControlPeer {
 public:
  OptionButtonPeer(OptionButton& option, PeerOwner& owner) : ControlPeer(option, owner), option_(option) {}
  void onCommand(int code) override;

 protected:
  WindowRecipe recipe() const override;
  std::string windowText() const override { return option_.caption(); }
  void fill() override { showValue(); }
  void onChange(Change change) override;

 private:
  void showValue();

  OptionButton& option_;
};

class CheckBoxPeer : public ControlPeer {
 public:
  CheckBoxPeer(CheckBox& box, PeerOwner& owner) : ControlPeer(box, owner), box_(box) {}
  void onCommand(int code) override;

 protected:
  WindowRecipe recipe() const override { return {L"BUTTON", WS_TABSTOP | WS_GROUP | BS_CHECKBOX, 0}; }
  std::string windowText() const override { return box_.caption(); }
  void fill() override { onChange(Change::Value); }
  void onChange(Change change) override;

 private:
  CheckBox& box_;
};

}  // namespace

WindowRecipe CommandButtonPeer::recipe() const {
  const DWORD kind = button_.isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
  const DWORD icon = button_.glyph == ButtonGlyph::None ? 0 : BS_ICON;
  return {L"BUTTON", WS_TABSTOP | WS_GROUP | kind | icon, 0};
}

std::string CommandButtonPeer::windowText() const {
  return button_.caption().empty() ? button_.accessibleName() : button_.caption();
}

void CommandButtonPeer::drawGlyph() {
  if (button_.glyph == ButtonGlyph::None) return;
  const int side = MulDiv(9, owner().dpi(), 96) | 1;
  const int color = button_.takesInput() ? COLOR_BTNTEXT : COLOR_GRAYTEXT;
  os::OwnedIcon drawn = MakeArrow(side, button_.glyph == ButtonGlyph::Up, GetSysColor(color));
  send(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(drawn.get()));
  glyph_ = std::move(drawn);
}

void CommandButtonPeer::onChange(Change change) {
  if (change == Change::Text) setWindowText(windowText());
}

void CommandButtonPeer::onCommand(int code) {
  if (code == BN_CLICKED) owner().raise([this] { button_.userClicked(); });
}

WindowRecipe OptionButtonPeer::recipe() const {
  return {L"BUTTON", BS_AUTORADIOBUTTON | (StartsGroup(option_) ? WS_GROUP : 0UL), 0};
}

void OptionButtonPeer::showValue() {
  send(BM_SETCHECK, option_.value() ? BST_CHECKED : BST_UNCHECKED);
  const LONG_PTR style = GetWindowLongPtrW(window(), GWL_STYLE);
  const LONG_PTR stop = TakesTab(option_) ? WS_TABSTOP : 0;
  SetWindowLongPtrW(window(), GWL_STYLE, (style & ~static_cast<LONG_PTR>(WS_TABSTOP)) | stop);
}

void OptionButtonPeer::onChange(Change change) {
  if (change == Change::Value) showValue();
  if (change == Change::Text) setWindowText(windowText());
}

void OptionButtonPeer::onCommand(int code) {
  if (code == BN_CLICKED) owner().raise([this] { option_.userClicked(); });
}

void CheckBoxPeer::onChange(Change change) {
  if (change == Change::Value) send(BM_SETCHECK, box_.value() == 1 ? BST_CHECKED : BST_UNCHECKED);
  if (change == Change::Text) setWindowText(windowText());
}

void CheckBoxPeer::onCommand(int code) {
  if (code == BN_CLICKED) owner().raise([this] { box_.userClicked(); });
}

std::unique_ptr<ControlPeer> MakePeer(CommandButton& control, PeerOwner& owner) {
  return std::make_unique<CommandButtonPeer>(control, owner);
}

std::unique_ptr<ControlPeer> MakePeer(OptionButton& control, PeerOwner& owner) {
  return std::make_unique<OptionButtonPeer>(control, owner);
}

std::unique_ptr<ControlPeer> MakePeer(CheckBox& control, PeerOwner& owner) {
  return std::make_unique<CheckBoxPeer>(control, owner);
}

}  // namespace forms

// Labels and text boxes as real windows.
#include <algorithm>
#include <string>

#include "forms/peers_win.h"
#include "forms/surface_win.h"
#include "forms/texts.h"
#include "os/utf16_win.h"

namespace forms {

namespace {

class LabelPeer : public ControlPeer {
 public:
  LabelPeer(Label& label, PeerOwner& owner) : ControlPeer(label, owner), label_(label) {}

 protected:
  WindowRecipe recipe() const override;
  std::string windowText() const override { return label_.caption(); }
  void onChange(Change change) override;

 private:
  Label& label_;
};

class TextBoxPeer : public ControlPeer {
 public:
  TextBoxPeer(TextBox& box, PeerOwner& owner) : ControlPeer(box, owner), box_(box) {}
  void onCommand(int code) override;
  HBRUSH onColor(HDC dc, UINT message) override;

 protected:
  WindowRecipe recipe() const override;
  std::string windowText() const override { return box_.text(); }
  void fill() override;
  void onChange(Change change) override;
  base::PixelRect windowPlace() const override;
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  std::string shownText() const;

  TextBox& box_;
  os::OwnedBrush background_;
  COLORREF backgroundColor_ = CLR_INVALID;
};

}  // namespace

WindowRecipe LabelPeer::recipe() const {
  DWORD align = label_.wraps ? SS_LEFT : SS_LEFTNOWORDWRAP;
  if (label_.align == TextAlign::Right) align = SS_RIGHT;
  if (label_.align == TextAlign::Center) align = SS_CENTER;
  if (!label_.hasMnemonic) align |= SS_NOPREFIX;
  return {L"STATIC", WS_GROUP | align, 0};
}

void LabelPeer::onChange(Change change) {
  if (change == Change::Text) setWindowText(label_.caption());
}

WindowRecipe TextBoxPeer::recipe() const {
  DWORD style = WS_TABSTOP | WS_GROUP | ES_AUTOHSCROLL;
  if (box_.locked) style |= ES_READONLY;
  if (box_.digitsOnly) style |= ES_NUMBER;
  return {L"EDIT", style, WS_EX_CLIENTEDGE, true};
}

void TextBoxPeer::fill() {
  if (box_.maxLength > 0) send(EM_SETLIMITTEXT, static_cast<WPARAM>(box_.maxLength));
}

// As high as its line needs, in the middle of its place: text never hangs at the upper edge.
base::PixelRect TextBoxPeer::windowPlace() const {
  base::PixelRect at = control_.pixelRect();
  const int height = std::min(at.height, LineHeight(window(), owner().font()) +
                                             2 * GetSystemMetrics(SM_CYEDGE) + MulDiv(3, owner().dpi(), 96));
  at.top += (at.height - height) / 2;
  at.height = height;
  return at;
}

std::string TextBoxPeer::shownText() const {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window())) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window(), text.data(), static_cast<int>(text.size()))));
  return os::FromWide(text);
}

void TextBoxPeer::onChange(Change change) {
  if (change != Change::Text || shownText() == box_.text()) return;
  setWindowText(box_.text());
  // Whoever is typing goes on at the end.
  const int end = GetWindowTextLengthW(window());
  send(EM_SETSEL, static_cast<WPARAM>(end), end);
}

void TextBoxPeer::onCommand(int code) {
  if (code == EN_CHANGE && !deaf()) owner().raise([this] { box_.userTyped(shownText()); });
  if (code == EN_KILLFOCUS && box_.onLostFocus) owner().raise([this] { box_.onLostFocus(); });
}

std::optional<LRESULT> TextBoxPeer::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!box_.onEnter) return std::nullopt;
  if (message == WM_GETDLGCODE && lParam) {
    const auto* key = reinterpret_cast<const MSG*>(lParam);
    if (key->message == WM_KEYDOWN && key->wParam == VK_RETURN) return DLGC_WANTMESSAGE | DLGC_HASSETSEL;
  }
  if (message == WM_KEYDOWN && wParam == VK_RETURN) {
    owner().raise([this] { box_.onEnter(); });
    return 0;
  }
  // A field of one line would sound the bell.
  if (message == WM_CHAR && wParam == VK_RETURN) return 0;
  return std::nullopt;
}

HBRUSH TextBoxPeer::onColor(HDC dc, UINT) {
  const COLORREF color = ToColorRef(box_.backColor());
  if (color != backgroundColor_) {
    background_.reset(CreateSolidBrush(color));
    backgroundColor_ = color;
  }
  SetTextColor(dc, FieldTextColor(box_.takesInput(), color));
  SetBkColor(dc, color);
  return background_.get();
}

std::unique_ptr<ControlPeer> MakePeer(Label& control, PeerOwner& owner) {
  return std::make_unique<LabelPeer>(control, owner);
}

std::unique_ptr<ControlPeer> MakePeer(TextBox& control, PeerOwner& owner) {
  return std::make_unique<TextBoxPeer>(control, owner);
}

}  // namespace forms

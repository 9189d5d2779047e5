// Combo boxes and drive lists as real drop-down lists.
#include <algorithm>
#include <cwchar>
#include <string>

#include "forms/folder_lists.h"
#include "forms/lists.h"
#include "forms/peers_win.h"
#include "forms/surface_win.h"
#include "os/utf16_win.h"

namespace forms {

namespace {

constexpr int kLinesShown = 12;

// Draws its own line, so that it can show a text that is not in the list, on any colour.
class DropDownPeer : public ControlPeer {
 public:
  DropDownPeer(Control& control, PeerOwner& owner) : ControlPeer(control, owner) {}
  bool onDrawItem(const DRAWITEMSTRUCT& item) override;

 protected:
  WindowRecipe recipe() const override;
  base::PixelRect windowPlace() const override;
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  virtual std::string shownText() const = 0;
  void fillItems(const std::vector<std::string>& items);
  void measure();
  void onPlaced() override { measure(); }
};

class ComboBoxPeer : public DropDownPeer {
 public:
  ComboBoxPeer(ComboBox& combo, PeerOwner& owner) : DropDownPeer(combo, owner), combo_(combo) {}
  void onCommand(int code) override;

 protected:
  void fill() override;
  void onChange(Change change) override;
  std::string shownText() const override { return combo_.text(); }

 private:
  ComboBox& combo_;
};

class DriveListPeer : public DropDownPeer {
 public:
  DriveListPeer(DriveList& list, PeerOwner& owner) : DropDownPeer(list, owner), list_(list) {}
  void onCommand(int code) override;

 protected:
  void fill() override;
  void onChange(Change change) override;
  std::string shownText() const override { return list_.drive(); }

 private:
  DriveList& list_;
};

}  // namespace

WindowRecipe DropDownPeer::recipe() const {
  return {L"COMBOBOX",
          WS_TABSTOP | WS_GROUP | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, 0,
          true};
}

void DropDownPeer::measure() {
  const int line = LineHeight(window(), owner().font());
  send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), line + MulDiv(2, owner().dpi(), 96));
  send(CB_SETITEMHEIGHT, 0, line + MulDiv(2, owner().dpi(), 96));
}

void DropDownPeer::fillItems(const std::vector<std::string>& items) {
  send(CB_RESETCONTENT);
  for (const std::string& item : items) {
    send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(os::ToWide(item).c_str()));
  }
  measure();
}

// The height of a drop-down list is that of its line and its open list together.
base::PixelRect DropDownPeer::windowPlace() const {
  base::PixelRect at = control_.pixelRect();
  const int line = LineHeight(window(), owner().font()) + MulDiv(2, owner().dpi(), 96);
  const int closed = line + 2 * GetSystemMetrics(SM_CYEDGE) + 2;
  at.top += std::max(0, (at.height - closed) / 2);
  at.height = closed + kLinesShown * line;
  return at;
}

bool DropDownPeer::onDrawItem(const DRAWITEMSTRUCT& item) {
  const bool inField = (item.itemState & ODS_COMBOBOXEDIT) != 0;
  ListLine line{.text = {},
                .takesInput = control_.takesInput(),
                .background = inField ? ToColorRef(control_.backColor()) : GetSysColor(COLOR_WINDOW),
                .indent = 0,
                .ellipsis = DT_END_ELLIPSIS};
  if (inField) {
    line.text = os::ToWide(shownText());
  } else if (item.itemID != static_cast<UINT>(-1)) {
    line.text.resize(static_cast<std::size_t>(send(CB_GETLBTEXTLEN, item.itemID)) + 1);
    line.text.resize(static_cast<std::size_t>(
        send(CB_GETLBTEXT, item.itemID, reinterpret_cast<LPARAM>(line.text.data()))));
  }
  DrawListLine(item, line, owner().dpi());
  return true;
}

// Asked for its text, the window gives what it shows, in the list or not.
std::optional<LRESULT> DropDownPeer::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_GETTEXTLENGTH) return static_cast<LRESULT>(os::ToWide(shownText()).size());
  if (message == WM_GETTEXT && wParam > 0) {
    const std::wstring text = os::ToWide(shownText());
    const std::size_t length = std::min(text.size(), static_cast<std::size_t>(wParam) - 1);
    auto* buffer = reinterpret_cast<wchar_t*>(lParam);
    std::wmemcpy(buffer, text.data(), length);
    buffer[length] = L'\0';
    return static_cast<LRESULT>(length);
  }
  return std::nullopt;
}

void ComboBoxPeer::fill() {
  fillItems(combo_.items());
  onChange(Change::Text);
}

void ComboBoxPeer::onChange(Change change) {
  if (change == Change::Items) fill();
  if (change == Change::Text) {
    send(CB_SETCURSEL, static_cast<WPARAM>(combo_.listIndex()));
    InvalidateRect(window(), nullptr, TRUE);
  }
}

void ComboBoxPeer::onCommand(int code) {
  if (code != CBN_SELCHANGE || deaf()) return;
  const auto index = static_cast<int>(send(CB_GETCURSEL));
  if (index >= 0) owner().raise([this, index] { combo_.userSelected(index); });
}

void DriveListPeer::fill() {
  fillItems(list_.drives());
  onChange(Change::Value);
}

void DriveListPeer::onChange(Change change) {
  if (change == Change::Value) send(CB_SETCURSEL, static_cast<WPARAM>(list_.listIndex()));
}

void DriveListPeer::onCommand(int code) {
  if (code != CBN_SELCHANGE || deaf()) return;
  const auto index = static_cast<int>(send(CB_GETCURSEL));
  owner().raise([this, index] { list_.userSelected(index); });
}

std::unique_ptr<ControlPeer> MakePeer(ComboBox& control, PeerOwner& owner) {
  return std::make_unique<ComboBoxPeer>(control, owner);
}

std::unique_ptr<ControlPeer> MakePeer(DriveList& control, PeerOwner& owner) {
  return std::make_unique<DriveListPeer>(control, owner);
}

}  // namespace forms

// A list box of any lines as a real window, with several of them chosen where the model allows it.
//
// The window itself knows one selected line, the one on which the keyboard stands. Which lines are chosen the
// model knows alone, and whoever asks the window gets the model's answer.
#include <windowsx.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "forms/entry_drag.h"
#include "forms/lines_peer_win.h"
#include "forms/lists.h"
#include "forms/peers_win.h"

namespace forms {

namespace {

constexpr int kLineByLine = 256;         // more are put in or taken out by filling the window anew
constexpr std::size_t kMostDrawn = 256;  // lines whose look is remembered
constexpr UINT_PTR kScrollTimer = 0x4C55;
constexpr UINT kScrollMs = 50;
constexpr int kMarkHalf = 1;  // of the mark between two lines, pixels at 96 dots per inch

class ListBoxPeer : public LinesPeer {
 public:
  ListBoxPeer(ListBox& list, PeerOwner& owner) : LinesPeer(list, owner), list_(list) {}
  void onCommand(int code) override;
  bool onDrawItem(const DRAWITEMSTRUCT& item) override;

 protected:
  void fill() override;
  void onChange(Change change) override;
  void onListEdit(const ListEdit& edit) override;
  void styleLine(DRAWITEMSTRUCT& item, ListLine& line) const override;
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void showSelection();
  void editLines(const ListEdit& edit);
  void invalidateLine(int line) const;
  void invalidateChosen();
  void drawMark(const DRAWITEMSTRUCT& item) const;

  std::optional<LRESULT> askedForChoice(UINT message, WPARAM wParam, LPARAM lParam) const;
  std::optional<LRESULT> onMouse(UINT message, WPARAM keys, base::PixelPoint at);
  std::optional<LRESULT> onKey(WPARAM key);
  void press(WPARAM keys, base::PixelPoint at);
  void released();
  void dragTo(base::PixelPoint at);
  void scrollUnderDrag();
  void giveUpDrag();
  void raise(const std::function<void()>& event) const { owner().raise(event); }
  ListSight sight() const;

  ListBox& list_;
  EntryDrag drag_;
  bool extends_ = false;  // the key that was pressed last
  bool walks_ = false;
  std::map<int, bool> drawn_;  // lines as they were drawn last: chosen or not
};

bool IsDown(int key) { return GetKeyState(key) < 0; }

}  // namespace

void ListBoxPeer::fill() {
  drawn_.clear();
  fillLines(list_.items().size(), [this](std::size_t i) -> const std::string& { return list_.items()[i]; });
  showSelection();
}

void ListBoxPeer::showSelection() {
  if (send(LB_GETCURSEL) != list_.listIndex()) send(LB_SETCURSEL, static_cast<WPARAM>(list_.listIndex()));
  if (list_.multiSelect) invalidateChosen();
}

void ListBoxPeer::onChange(Change change) {
  if (change == Change::Value) showSelection();
}

void ListBoxPeer::onListEdit(const ListEdit& edit) {
  const int top = static_cast<int>(send(LB_GETTOPINDEX));
  const bool atEnd = edit.kind == ListEdit::Kind::Inserted && edit.index + edit.count == list_.listCount();
  if (edit.kind == ListEdit::Kind::Reset || (edit.count > kLineByLine && !atEnd)) {
    fill();
  } else {
    editLines(edit);
    drawn_.clear();
    showSelection();
  }
  send(LB_SETTOPINDEX, static_cast<WPARAM>(top));
  if (edit.count > 1) InvalidateRect(window(), nullptr, TRUE);
}

void ListBoxPeer::editLines(const ListEdit& edit) {
  const bool many = edit.count > 1;
  if (many) send(WM_SETREDRAW, FALSE);
  for (int i = edit.index; i < edit.index + edit.count; ++i) {
    const auto at = static_cast<WPARAM>(edit.kind == ListEdit::Kind::Removed ? edit.index : i);
    if (edit.kind != ListEdit::Kind::Inserted) send(LB_DELETESTRING, at);
    if (edit.kind != ListEdit::Kind::Removed) addLine(at, list_.item(i));
  }
  if (many) send(WM_SETREDRAW, TRUE);
}

void ListBoxPeer::invalidateLine(int line) const {
  RECT place{};
  if (line < 0 || send(LB_GETITEMRECT, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(&place)) == LB_ERR)
    return;
  InvalidateRect(window(), &place, FALSE);
}

// Only the lines whose look changes are drawn anew: a held arrow key must not make the list flicker.
void ListBoxPeer::invalidateChosen() {
  for (const auto& [line, chosen] : drawn_) {
    if (list_.isChosen(line) != chosen) invalidateLine(line);
  }
  NotifyWinEvent(EVENT_OBJECT_SELECTIONWITHIN, window(), OBJID_CLIENT, CHILDID_SELF);
}

void ListBoxPeer::styleLine(DRAWITEMSTRUCT& item, ListLine& line) const {
  if (item.itemID == static_cast<UINT>(-1)) return;
  const auto index = static_cast<int>(item.itemID);
  line.faint = list_.isFaint && list_.isFaint(list_.item(index));
  if (!list_.multiSelect) return;
  item.itemState = list_.isChosen(index) ? item.itemState | ODS_SELECTED
                                         : item.itemState & ~static_cast<UINT>(ODS_SELECTED);
}

bool ListBoxPeer::onDrawItem(const DRAWITEMSTRUCT& item) {
  LinesPeer::onDrawItem(item);
  if (!list_.multiSelect || item.itemID == static_cast<UINT>(-1)) return true;
  if (drawn_.size() >= kMostDrawn) drawn_.clear();
  const auto line = static_cast<int>(item.itemID);
  drawn_[line] = list_.isChosen(line);
  drawMark(item);
  return true;
}

// Half of it stands at the end of one line, half at the beginning of the next.
void ListBoxPeer::drawMark(const DRAWITEMSTRUCT& item) const {
  const int line = static_cast<int>(item.itemID);
  const int half = MulDiv(kMarkHalf, owner().dpi(), USER_DEFAULT_SCREEN_DPI);
  RECT mark = item.rcItem;
  if (drag_.gap() == line) {
    mark.bottom = mark.top + half;
  } else if (drag_.gap() == line + 1) {
    mark.top = mark.bottom - half;
  } else {
    return;
  }
  FillRect(item.hDC, &mark, GetSysColorBrush(COLOR_WINDOWTEXT));
}

void ListBoxPeer::onCommand(int code) {
  if (deaf()) return;
  if (code == LBN_SELCHANGE) {
    const auto index = static_cast<int>(send(LB_GETCURSEL));
    raise([this, index] {
      if (extends_) return list_.userExtendedTo(index);
      if (walks_) return list_.userWalkedTo(index);
      list_.userSelected(index);
    });
  }
  if (code == LBN_DBLCLK && list_.onDblClick) raise([this] { list_.onDblClick(); });
}

ListSight ListBoxPeer::sight() const {
  RECT client{};
  GetClientRect(window(), &client);
  return {static_cast<int>(send(LB_GETTOPINDEX)), std::max(1, static_cast<int>(send(LB_GETITEMHEIGHT))),
          static_cast<int>(client.bottom), list_.listCount()};
}

std::optional<LRESULT> ListBoxPeer::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  const base::PixelPoint at{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  if (message == WM_MOUSEMOVE && !drag_.isPressed() && list_.onEntryPointed) {
    raise([this, entry = sight().entryAt(at.y)] { list_.userPointedAt(entry); });
  }
  if (!list_.multiSelect) return std::nullopt;
  switch (message) {
    case LB_GETSEL:
    case LB_GETSELCOUNT:
    case LB_GETSELITEMS:
      return askedForChoice(message, wParam, lParam);
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_MOUSEMOVE:
    case WM_LBUTTONUP:
      return onMouse(message, wParam, at);
    case WM_TIMER:
      if (wParam != kScrollTimer) return std::nullopt;
      scrollUnderDrag();
      return 0;
    case WM_CAPTURECHANGED:
      giveUpDrag();
      return std::nullopt;
    case WM_GETDLGCODE:
      // While something is dragged, Escape is not the dialog's.
      if (drag_.isPressed()) return DLGC_WANTALLKEYS;
      return std::nullopt;
    case WM_KEYDOWN:
      return onKey(wParam);
    case WM_CHAR:
      extends_ = walks_ = false;
      if (wParam < L' ' || IsDown(VK_CONTROL)) return 0;
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> ListBoxPeer::askedForChoice(UINT message, WPARAM wParam, LPARAM lParam) const {
  if (message == LB_GETSEL) return list_.isChosen(static_cast<int>(wParam)) ? 1 : 0;
  const std::vector<int> chosen = list_.chosen();
  if (message == LB_GETSELCOUNT) return static_cast<LRESULT>(chosen.size());
  const std::size_t count = std::min<std::size_t>(wParam, chosen.size());
  std::copy_n(chosen.begin(), count, reinterpret_cast<int*>(lParam));
  return static_cast<LRESULT>(count);
}

std::optional<LRESULT> ListBoxPeer::onMouse(UINT message, WPARAM keys, base::PixelPoint at) {
  const bool withKey = (keys & (MK_SHIFT | MK_CONTROL)) != 0;
  if (message == WM_LBUTTONDOWN || (message == WM_LBUTTONDBLCLK && withKey)) {
    press(keys, at);
    return 0;
  }
  extends_ = walks_ = false;
  if (!drag_.isPressed()) return std::nullopt;
  if (message == WM_MOUSEMOVE) {
    dragTo(at);
  } else if (message == WM_LBUTTONUP) {
    released();
  }
  return 0;
}

void ListBoxPeer::press(WPARAM keys, base::PixelPoint at) {
  SetFocus(window());
  const int entry = sight().entryAt(at.y);
  if (entry < 0) return;
  drag_.press(at);
  SetCapture(window());
  const ListHands hands{.shift = (keys & MK_SHIFT) != 0, .control = (keys & MK_CONTROL) != 0};
  raise([this, entry, hands] { list_.userPressed(entry, hands); });
}

void ListBoxPeer::released() {
  const int marked = drag_.gap();
  const std::optional<int> gap = drag_.release();
  KillTimer(window(), kScrollTimer);
  ReleaseCapture();
  invalidateLine(marked - 1);
  invalidateLine(marked);
  raise([this, gap] {
    if (gap) return list_.userDraggedTo(*gap);
    list_.userReleased();
  });
}

void ListBoxPeer::giveUpDrag() {
  if (!drag_.isPressed()) return;
  const int marked = drag_.gap();
  drag_.release();
  KillTimer(window(), kScrollTimer);
  if (GetCapture() == window()) ReleaseCapture();
  invalidateLine(marked - 1);
  invalidateLine(marked);
}

void ListBoxPeer::dragTo(base::PixelPoint at) {
  const bool began = !drag_.isDragging();
  const int before = drag_.gap();
  drag_.moveTo(at, sight(), {GetSystemMetrics(SM_CXDRAG), GetSystemMetrics(SM_CYDRAG)});
  if (began && drag_.isDragging()) SetTimer(window(), kScrollTimer, kScrollMs, nullptr);
  if (before == drag_.gap()) return;
  for (const int gap : {before, drag_.gap()}) {
    invalidateLine(gap - 1);
    invalidateLine(gap);
  }
}

void ListBoxPeer::scrollUnderDrag() {
  POINT pointer{};
  GetCursorPos(&pointer);
  MapWindowPoints(nullptr, window(), &pointer, 1);
  const ListSight inSight = sight();
  const int step = inSight.scrollStepAt(pointer.y);
  if (step == 0) return;
  send(LB_SETTOPINDEX, static_cast<WPARAM>(std::max(0, inSight.top + step)));
  dragTo({pointer.x, pointer.y});
}

std::optional<LRESULT> ListBoxPeer::onKey(WPARAM key) {
  if (drag_.isPressed()) {
    if (key == VK_ESCAPE) giveUpDrag();
    return 0;
  }
  const bool control = IsDown(VK_CONTROL);
  const bool shift = IsDown(VK_SHIFT);
  extends_ = shift;
  walks_ = control && !shift;
  const auto command = [&]() -> std::function<void()> {
    if (control && key == 'A') return [this] { list_.userChoseAll(); };
    if (control && key == 'Z') return list_.onUndo;
    if (control && key == VK_SPACE && list_.listIndex() >= 0) {
      return [this] { list_.userToggled(list_.listIndex()); };
    }
    if (!control && !shift && key == VK_DELETE) return list_.onDelete;
    if (!control && !shift && key == VK_F2) return list_.onRename;
    return nullptr;
  }();
  if (!command) return std::nullopt;
  raise(command);
  return 0;
}

std::unique_ptr<ControlPeer> MakePeer(ListBox& control, PeerOwner& owner) {
  return std::make_unique<ListBoxPeer>(control, owner);
}

}  // namespace forms

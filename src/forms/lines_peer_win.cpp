#include "forms/lines_peer_win.h"

#include "os/utf16_win.h"

namespace forms {

namespace {

constexpr std::size_t kBytesPerLine = 128;  // room to make beforehand

}  // namespace

WindowRecipe LinesPeer::recipe() const {
  return {L"LISTBOX",
          WS_TABSTOP | WS_GROUP | WS_VSCROLL | LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS |
              LBS_NOINTEGRALHEIGHT,
          WS_EX_CLIENTEDGE, true};
}

void LinesPeer::measureLines() const {
  send(LB_SETITEMHEIGHT, 0, LineHeight(window(), owner().font()) + MulDiv(3, owner().dpi(), 96));
}

void LinesPeer::addLine(WPARAM at, const std::string& text) const {
  send(LB_INSERTSTRING, at, reinterpret_cast<LPARAM>(os::ToWide(text).c_str()));
}

void LinesPeer::beginFilling(std::size_t count) const {
  send(WM_SETREDRAW, FALSE);
  send(LB_RESETCONTENT);
  measureLines();
  send(LB_INITSTORAGE, count, static_cast<LPARAM>(count * kBytesPerLine));
}

void LinesPeer::endFilling() const {
  send(WM_SETREDRAW, TRUE);
  InvalidateRect(window(), nullptr, TRUE);
}

bool LinesPeer::onDrawItem(const DRAWITEMSTRUCT& item) {
  ListLine line{.text = {},
                .takesInput = control_.takesInput(),
                .background = GetSysColor(COLOR_WINDOW),
                .ellipsis = DT_PATH_ELLIPSIS};
  if (item.itemID != static_cast<UINT>(-1)) {
    line.text.resize(static_cast<std::size_t>(send(LB_GETTEXTLEN, item.itemID)) + 1);
    line.text.resize(
        static_cast<std::size_t>(send(LB_GETTEXT, item.itemID, reinterpret_cast<LPARAM>(line.text.data()))));
  }
  DRAWITEMSTRUCT drawn = item;
  styleLine(drawn, line);
  DrawListLine(drawn, line, owner().dpi());
  return true;
}

HBRUSH LinesPeer::onColor(HDC, UINT) { return GetSysColorBrush(COLOR_WINDOW); }

}  // namespace forms

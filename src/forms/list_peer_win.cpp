// List boxes as real windows: of any lines, of files, of folders.
#include <string>

#include "forms/folder_lists.h"
#include "forms/lists.h"
#include "forms/peers_win.h"
#include "forms/surface_win.h"
#include "os/utf16_win.h"

namespace forms {

namespace {

constexpr WPARAM kAtEnd = static_cast<WPARAM>(-1);
constexpr std::size_t kBytesPerLine = 128;  // room to make beforehand

// A line that is too long is cut in the middle of its path, so that the name stays readable.
class LinesPeer : public ControlPeer {
 public:
  LinesPeer(Control& control, PeerOwner& owner) : ControlPeer(control, owner) {}
  bool onDrawItem(const DRAWITEMSTRUCT& item) override;
  HBRUSH onColor(HDC dc, UINT message) override;

 protected:
  WindowRecipe recipe() const override;

  // Pixels by which a line is set in.
  virtual int indent(int) const { return 0; }

  // Puts all lines into the window in one go.
  template <typename TextOf>
  void fillLines(std::size_t count, TextOf textOf);
  void addLine(WPARAM at, const std::string& text);
  void measureLines();
  void onPlaced() override { measureLines(); }
};

class ListBoxPeer : public LinesPeer {
 public:
  ListBoxPeer(ListBox& list, PeerOwner& owner) : LinesPeer(list, owner), list_(list) {}
  void onCommand(int code) override;

 protected:
  void fill() override;
  void onChange(Change change) override;
  void onListEdit(const ListEdit& edit) override;

 private:
  void showSelection();

  ListBox& list_;
};

class FileListPeer : public LinesPeer {
 public:
  FileListPeer(FileList& list, PeerOwner& owner) : LinesPeer(list, owner), list_(list) {}

 protected:
  void fill() override;
  void onChange(Change change) override;

 private:
  FileList& list_;
};

class FolderListPeer : public LinesPeer {
 public:
  FolderListPeer(FolderList& list, PeerOwner& owner) : LinesPeer(list, owner), list_(list) {}
  void onCommand(int code) override;

 protected:
  void fill() override;
  void onChange(Change change) override;
  int indent(int line) const override;
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void openSelected();

  FolderList& list_;
};

}  // namespace

WindowRecipe LinesPeer::recipe() const {
  return {L"LISTBOX",
          WS_TABSTOP | WS_GROUP | WS_VSCROLL | LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS |
              LBS_NOINTEGRALHEIGHT,
          WS_EX_CLIENTEDGE, true};
}

void LinesPeer::measureLines() {
  send(LB_SETITEMHEIGHT, 0, LineHeight(window(), owner().font()) + MulDiv(3, owner().dpi(), 96));
}

void LinesPeer::addLine(WPARAM at, const std::string& text) {
  send(LB_INSERTSTRING, at, reinterpret_cast<LPARAM>(os::ToWide(text).c_str()));
}

template <typename TextOf>
void LinesPeer::fillLines(std::size_t count, TextOf textOf) {
  send(WM_SETREDRAW, FALSE);
  send(LB_RESETCONTENT);
  measureLines();
  send(LB_INITSTORAGE, count, static_cast<LPARAM>(count * kBytesPerLine));
  for (std::size_t i = 0; i < count; ++i) addLine(kAtEnd, textOf(i));
  send(WM_SETREDRAW, TRUE);
  InvalidateRect(window(), nullptr, TRUE);
}

bool LinesPeer::onDrawItem(const DRAWITEMSTRUCT& item) {
  ListLine line{.text = {},
                .takesInput = control_.takesInput(),
                .background = GetSysColor(COLOR_WINDOW),
                .indent = indent(static_cast<int>(item.itemID)),
                .ellipsis = DT_PATH_ELLIPSIS};
  if (item.itemID != static_cast<UINT>(-1)) {
    line.text.resize(static_cast<std::size_t>(send(LB_GETTEXTLEN, item.itemID)) + 1);
    line.text.resize(
        static_cast<std::size_t>(send(LB_GETTEXT, item.itemID, reinterpret_cast<LPARAM>(line.text.data()))));
  }
  DrawListLine(item, line, owner().dpi());
  return true;
}

HBRUSH LinesPeer::onColor(HDC, UINT) { return GetSysColorBrush(COLOR_WINDOW); }

void ListBoxPeer::fill() {
  fillLines(list_.items().size(), [this](std::size_t i) -> const std::string& { return list_.items()[i]; });
  showSelection();
}

void ListBoxPeer::showSelection() {
  if (send(LB_GETCURSEL) != list_.listIndex()) send(LB_SETCURSEL, static_cast<WPARAM>(list_.listIndex()));
}

void ListBoxPeer::onChange(Change change) {
  if (change == Change::Value) showSelection();
}

void ListBoxPeer::onListEdit(const ListEdit& edit) {
  const int top = static_cast<int>(send(LB_GETTOPINDEX));
  const bool many = edit.count > 1;
  if (many) send(WM_SETREDRAW, FALSE);
  for (int i = edit.index; i < edit.index + edit.count && edit.kind != ListEdit::Kind::Reset; ++i) {
    const auto at = static_cast<WPARAM>(edit.kind == ListEdit::Kind::Removed ? edit.index : i);
    if (edit.kind != ListEdit::Kind::Inserted) send(LB_DELETESTRING, at);
    if (edit.kind != ListEdit::Kind::Removed) addLine(at, list_.item(i));
  }
  if (many) send(WM_SETREDRAW, TRUE);
  if (edit.kind == ListEdit::Kind::Reset) {
    fill();
  } else {
    showSelection();
    send(LB_SETTOPINDEX, static_cast<WPARAM>(top));
  }
  if (many) InvalidateRect(window(), nullptr, TRUE);
}

void ListBoxPeer::onCommand(int code) {
  if (deaf()) return;
  if (code == LBN_SELCHANGE) {
    const auto index = static_cast<int>(send(LB_GETCURSEL));
    owner().raise([this, index] { list_.userSelected(index); });
  }
  if (code == LBN_DBLCLK && list_.onDblClick) owner().raise([this] { list_.onDblClick(); });
}

void FileListPeer::fill() {
  fillLines(list_.files().size(), [this](std::size_t i) -> const std::string& { return list_.files()[i]; });
}

void FileListPeer::onChange(Change change) {
  if (change == Change::Items) fill();
}

void FolderListPeer::fill() {
  fillLines(list_.entries().size(),
            [this](std::size_t i) -> const std::string& { return list_.entries()[i].shown; });
  send(LB_SETCURSEL, static_cast<WPARAM>(list_.listIndex()));
}

void FolderListPeer::onChange(Change change) {
  if (change == Change::Items) fill();
}

int FolderListPeer::indent(int line) const {
  const auto& entries = list_.entries();
  if (line < 0 || line >= static_cast<int>(entries.size())) return 0;
  return entries[static_cast<std::size_t>(line)].depth * MulDiv(12, owner().dpi(), 96);
}

void FolderListPeer::openSelected() {
  const auto index = static_cast<int>(send(LB_GETCURSEL));
  owner().raise([this, index] { list_.userOpened(index); });
}

void FolderListPeer::onCommand(int code) {
  if (deaf()) return;
  if (code == LBN_DBLCLK) openSelected();
  if (code == LBN_SELCHANGE) {
    const auto index = static_cast<int>(send(LB_GETCURSEL));
    owner().raise([this, index] { list_.userSelected(index); });
  }
}

// The Enter key opens a folder, as a double click does.
std::optional<LRESULT> FolderListPeer::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_GETDLGCODE && lParam) {
    const auto* key = reinterpret_cast<const MSG*>(lParam);
    if (key->message == WM_KEYDOWN && key->wParam == VK_RETURN) return DLGC_WANTMESSAGE;
  }
  if (message == WM_KEYDOWN && wParam == VK_RETURN) {
    openSelected();
    return 0;
  }
  return std::nullopt;
}

std::unique_ptr<ControlPeer> MakePeer(ListBox& control, PeerOwner& owner) {
  return std::make_unique<ListBoxPeer>(control, owner);
}

std::unique_ptr<ControlPeer> MakePeer(FileList& control, PeerOwner& owner) {
  return std::make_unique<FileListPeer>(control, owner);
}

std::unique_ptr<ControlPeer> MakePeer(FolderList& control, PeerOwner& owner) {
  return std::make_unique<FolderListPeer>(control, owner);
}

}  // namespace forms

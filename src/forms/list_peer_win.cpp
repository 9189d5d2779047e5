// Lists of files and of folders as real windows.
#include <string>

#include "forms/folder_lists.h"
#include "forms/lines_peer_win.h"
#include "forms/peers_win.h"

namespace forms {

namespace {

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
  void styleLine(DRAWITEMSTRUCT& item, ListLine& line) const override;
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void openSelected();

  FolderList& list_;
};

}  // namespace

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

void FolderListPeer::styleLine(DRAWITEMSTRUCT& item, ListLine& line) const {
  const auto& entries = list_.entries();
  if (item.itemID >= entries.size()) return;
  line.indent = entries[item.itemID].depth * MulDiv(12, owner().dpi(), 96);
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

std::unique_ptr<ControlPeer> MakePeer(FileList& control, PeerOwner& owner) {
  return std::make_unique<FileListPeer>(control, owner);
}

std::unique_ptr<ControlPeer> MakePeer(FolderList& control, PeerOwner& owner) {
  return std::make_unique<FolderListPeer>(control, owner);
}

}  // namespace forms

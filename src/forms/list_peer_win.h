// List boxes as real windows: of any lines, of files, of folders.
#pragma once

#include "forms/control_peer_win.h"
#include "forms/folder_lists.h"
#include "forms/lists.h"

namespace forms {

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

}  // namespace forms

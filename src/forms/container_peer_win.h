// Frames, tab controls with their pages, and status bars as real windows.
#pragma once

#include "forms/containers.h"
#include "forms/control_peer_win.h"
#include "forms/texts.h"

namespace forms {

// A group box with a caption in any colour, which the themed one refuses.
class FramePeer : public ControlPeer {
 public:
  FramePeer(Frame& frame, PeerOwner& owner) : ControlPeer(frame, owner), frame_(frame) {}

 protected:
  WindowRecipe recipe() const override;
  std::string windowText() const override { return frame_.caption(); }
  void onChange(Change change) override;
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void paint(HDC dc) const;

  Frame& frame_;
};

class TabControlPeer : public ControlPeer {
 public:
  TabControlPeer(TabControl& tabs, PeerOwner& owner) : ControlPeer(tabs, owner), tabs_(tabs) {}
  LRESULT onNotify(const NMHDR& header) override;

  // Gives the pages the place that the tabs leave.
  void placePages();

 protected:
  WindowRecipe recipe() const override;
  void fill() override;
  void onChange(Change change) override;

 private:
  TabControl& tabs_;
};

class TabPagePeer : public ControlPeer {
 public:
  TabPagePeer(TabPage& page, PeerOwner& owner);

 protected:
  WindowRecipe recipe() const override;
  std::string windowText() const override { return page_.caption(); }

  // Pages are siblings of their tab control, above it.
  base::PixelRect windowPlace() const override;
  std::optional<LRESULT> onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  TabPage& page_;
};

class StatusBarPeer : public ControlPeer {
 public:
  StatusBarPeer(StatusBar& bar, PeerOwner& owner) : ControlPeer(bar, owner), bar_(bar) {}

 protected:
  WindowRecipe recipe() const override;
  void onChange(Change change) override;
  void onPlaced() override { showPanels(); }

 private:
  int widthOf(const std::string& text) const;
  void showPanels();

  StatusBar& bar_;
};

}  // namespace forms

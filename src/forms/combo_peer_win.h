// Combo boxes and drive lists as real drop-down lists.
#pragma once

#include "forms/control_peer_win.h"
#include "forms/folder_lists.h"
#include "forms/lists.h"

namespace forms {

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

}  // namespace forms

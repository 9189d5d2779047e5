// Push buttons, options and check boxes as real buttons.
#pragma once

#include "forms/buttons.h"
#include "forms/control_peer_win.h"

namespace forms {

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

}  // namespace forms

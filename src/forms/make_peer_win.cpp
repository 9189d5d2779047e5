// Which real window stands for which control.
#include "forms/buttons.h"
#include "forms/container_peer_win.h"
#include "forms/folder_lists.h"
#include "forms/lists.h"
#include "forms/live_view.h"
#include "forms/peers_win.h"
#include "forms/picture_peer_win.h"
#include "forms/ranges.h"
#include "forms/texts.h"

namespace forms {

namespace {

template <typename Peer, typename Model>
std::unique_ptr<ControlPeer> Make(Control& control, PeerOwner& owner) {
  return std::make_unique<Peer>(static_cast<Model&>(control), owner);
}

}  // namespace

std::unique_ptr<ControlPeer> MakePeer(Control& control, PeerOwner& owner) {
  switch (control.kind()) {
    case ControlKind::CheckBox:
      return MakePeer(static_cast<CheckBox&>(control), owner);
    case ControlKind::ComboBox:
      return MakePeer(static_cast<ComboBox&>(control), owner);
    case ControlKind::CommandButton:
      return MakePeer(static_cast<CommandButton&>(control), owner);
    case ControlKind::DriveList:
      return MakePeer(static_cast<DriveList&>(control), owner);
    case ControlKind::FileList:
      return MakePeer(static_cast<FileList&>(control), owner);
    case ControlKind::FolderList:
      return MakePeer(static_cast<FolderList&>(control), owner);
    case ControlKind::Frame:
      return Make<FramePeer, Frame>(control, owner);
    case ControlKind::Image:
      return Make<ImagePeer, Image>(control, owner);
    case ControlKind::Label:
      return MakePeer(static_cast<Label&>(control), owner);
    case ControlKind::ListBox:
      return MakePeer(static_cast<ListBox&>(control), owner);
    case ControlKind::LiveView:
      return Make<LiveViewPeer, LiveView>(control, owner);
    case ControlKind::OptionButton:
      return MakePeer(static_cast<OptionButton&>(control), owner);
    case ControlKind::PictureBox:
      return Make<PictureBoxPeer, PictureBox>(control, owner);
    case ControlKind::ScrollBar:
      return MakePeer(static_cast<ScrollBar&>(control), owner);
    case ControlKind::Slider:
      return MakePeer(static_cast<Slider&>(control), owner);
    case ControlKind::StatusBar:
      return Make<StatusBarPeer, StatusBar>(control, owner);
    case ControlKind::TabControl:
      return Make<TabControlPeer, TabControl>(control, owner);
    case ControlKind::TabPage:
      return Make<TabPagePeer, TabPage>(control, owner);
    case ControlKind::TextBox:
      return MakePeer(static_cast<TextBox&>(control), owner);
  }
  return nullptr;
}

}  // namespace forms

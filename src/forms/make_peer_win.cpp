// Which real window stands for which control.
#include "forms/button_peer_win.h"
#include "forms/combo_peer_win.h"
#include "forms/container_peer_win.h"
#include "forms/list_peer_win.h"
#include "forms/picture_peer_win.h"
#include "forms/range_peer_win.h"
#include "forms/text_peer_win.h"

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
      return Make<CheckBoxPeer, CheckBox>(control, owner);
    case ControlKind::ComboBox:
      return Make<ComboBoxPeer, ComboBox>(control, owner);
    case ControlKind::CommandButton:
      return Make<CommandButtonPeer, CommandButton>(control, owner);
    case ControlKind::DriveList:
      return Make<DriveListPeer, DriveList>(control, owner);
    case ControlKind::FileList:
      return Make<FileListPeer, FileList>(control, owner);
    case ControlKind::FolderList:
      return Make<FolderListPeer, FolderList>(control, owner);
    case ControlKind::Frame:
      return Make<FramePeer, Frame>(control, owner);
    case ControlKind::Image:
      return Make<ImagePeer, Image>(control, owner);
    case ControlKind::Label:
      return Make<LabelPeer, Label>(control, owner);
    case ControlKind::ListBox:
      return Make<ListBoxPeer, ListBox>(control, owner);
    case ControlKind::OptionButton:
      return Make<OptionButtonPeer, OptionButton>(control, owner);
    case ControlKind::PictureBox:
      return Make<PictureBoxPeer, PictureBox>(control, owner);
    case ControlKind::ScrollBar:
      return Make<ScrollBarPeer, ScrollBar>(control, owner);
    case ControlKind::Slider:
      return Make<SliderPeer, Slider>(control, owner);
    case ControlKind::StatusBar:
      return Make<StatusBarPeer, StatusBar>(control, owner);
    case ControlKind::TabControl:
      return Make<TabControlPeer, TabControl>(control, owner);
    case ControlKind::TabPage:
      return Make<TabPagePeer, TabPage>(control, owner);
    case ControlKind::TextBox:
      return Make<TextBoxPeer, TextBox>(control, owner);
  }
  return nullptr;
}

}  // namespace forms

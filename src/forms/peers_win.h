// The peers of the controls that stand for themselves, each made by the file that describes it.
#pragma once

#include <memory>

#include "forms/control_peer_win.h"

namespace forms {

class CheckBox;
class ComboBox;
class CommandButton;
class DriveList;
class FileList;
class FolderList;
class Label;
class ListBox;
class OptionButton;
class ScrollBar;
class Slider;
class TextBox;

// Not yet made as windows.
std::unique_ptr<ControlPeer> MakePeer(CheckBox& control, PeerOwner& owner);
std::unique_ptr<ControlPeer> MakePeer(ComboBox& control, PeerOwner& owner);
std::unique_ptr<ControlPeer> MakePeer(CommandButton& control, PeerOwner& owner);
std::unique_ptr<ControlPeer> MakePeer(DriveList& control, PeerOwner& owner);
std::unique_ptr<ControlPeer> MakePeer(FileList& control, PeerOwner& owner);
std::unique_ptr<ControlPeer> MakePeer(FolderList& control, PeerOwner& owner);
std::unique_ptr<ControlPeer> MakePeer(Label& control, PeerOwner& owner);
std::unique_ptr<ControlPeer> MakePeer(ListBox& control, PeerOwner& owner);
std::unique_ptr<ControlPeer> MakePeer(OptionButton& control, PeerOwner& owner);
std::unique_ptr<ControlPeer> MakePeer(ScrollBar& control, PeerOwner& owner);
std::unique_ptr<ControlPeer> MakePeer(Slider& control, PeerOwner& owner);
std::unique_ptr<ControlPeer> MakePeer(TextBox& control, PeerOwner& owner);

}  // namespace forms

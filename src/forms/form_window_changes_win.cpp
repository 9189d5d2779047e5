// What the models of a form change, shown in its window.
#include "forms/form_window_win.h"
#include "forms/lists.h"
#include "forms/picture_peer_win.h"
#include "os/text_renderer_win.h"
#include "os/utf16_win.h"

namespace forms {

void FormWindow::controlChanged(Control& control, Change change) {
  if (!window_) return;
  ControlPeer* peer = peerOf(control);
  if (!peer) {
    if (change == Change::Visible && control.visible()) makeControl(control);
    return;
  }
  if (change == Change::Enabled && !control.enabled()) keepFocusOff(control);
  if (change == Change::ToolTip) return renewToolTip(*peer);
  peer->apply(change);
  if (change != Change::Enabled) return;
  // What stands on a frame looks as the frame allows.
  for (const auto& other : peers_) {
    if (other->control().container() == &control) InvalidateRect(other->window(), nullptr, FALSE);
  }
}

// The keyboard would be lost on a control that takes no input.
void FormWindow::keepFocusOff(const Control& disabled) {
  const ControlPeer* peer = peerOf(disabled);
  const HWND focus = GetFocus();
  if (focus && (focus == peer->window() || IsChild(peer->window(), focus))) {
    SendMessageW(window_, WM_NEXTDLGCTL, 0, FALSE);
  }
}

void FormWindow::controlDrawn(Control& control, std::span<const base::PixelRect> areas) {
  if (auto* peer = dynamic_cast<DrawnPeer*>(peerOf(control))) peer->drawn(areas);
}

void FormWindow::listChanged(ListBox& list, const ListEdit& edit) {
  if (ControlPeer* peer = peerOf(list)) peer->applyList(edit);
}

void FormWindow::controlWantsFocus(Control& control) {
  const ControlPeer* peer = peerOf(control);
  if (window_ && peer) SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(peer->window()), TRUE);
}

void FormWindow::formChanged(Form&, FormChange change) {
  if (!window_) return;
  switch (change) {
    case FormChange::Caption:
      SetWindowTextW(window_, os::ToWide(form_.caption()).c_str());
      break;
    case FormChange::Place:
      placeFromForm();
      break;
    case FormChange::MousePointer:
      SetCursor(LoadCursorW(nullptr, form_.mousePointer() == MousePointer::Hourglass ? IDC_WAIT : IDC_ARROW));
      break;
  }
}

base::PixelSize FormWindow::measureText(const base::Font& font, const std::string& text) {
  return os::TextRendererWin(dpi_).measure(font, text);
}

base::PixelSize FormWindow::innerSize() const {
  RECT client{};
  GetClientRect(window_, &client);
  return {static_cast<int>(client.right), static_cast<int>(client.bottom)};
}

}  // namespace forms

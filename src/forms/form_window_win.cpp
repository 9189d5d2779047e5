// How the window of a form is made, with everything on it.
#include "forms/form_window_win.h"

#include <commctrl.h>

#include <algorithm>

#include "base/twips.h"
#include "forms/buttons.h"
#include "forms/container_peer_win.h"
#include "forms/containers.h"
#include "forms/lists.h"
#include "forms/picture_peer_win.h"
#include "forms/surface_win.h"
#include "forms/window_system_win.h"
#include "os/text_renderer_win.h"
#include "os/utf16_win.h"

namespace forms {

namespace {

constexpr WORD kIconResource = 1;
constexpr int kWidestToolTip = 700;  // pixels at 96 dots per inch

// A dialog without controls of its own; its size and title are set afterwards.
struct EmptyTemplate {
  DLGTEMPLATE head{};
  WORD menu = 0;
  WORD windowClass = 0;
  WORD title = 0;
  WORD padding = 0;
};

}  // namespace

FormWindow::FormWindow(Form& form, WindowSystemWin& windows) : form_(form), windows_(windows) {}

FormWindow::~FormWindow() { close(); }

void FormWindow::make(HWND owner) {
  EmptyTemplate empty;
  empty.head.style = kStyle | DS_3DLOOK;
  CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &empty.head, owner, Procedure,
                             reinterpret_cast<LPARAM>(this));
  if (!window_) return;
  SetWindowTextW(window_, os::ToWide(form_.caption()).c_str());
  const HINSTANCE instance = GetModuleHandleW(nullptr);
  for (const auto& [kind, metric] : {std::pair{ICON_BIG, SM_CXICON}, std::pair{ICON_SMALL, SM_CXSMICON}}) {
    const int side = GetSystemMetrics(metric);
    const HANDLE icon = LoadImageW(instance, MAKEINTRESOURCEW(kIconResource), IMAGE_ICON, side, side,
                                   LR_DEFAULTCOLOR | LR_SHARED);
    if (icon) SendMessageW(window_, WM_SETICON, static_cast<WPARAM>(kind), reinterpret_cast<LPARAM>(icon));
  }
  makeMenu();
  takeDpi(WindowDpi(window_));
  sizeFromForm();
  makeControls();
}

void FormWindow::raise(const std::function<void()>& event) { windows_.raise(event); }

void FormWindow::makeMenu() {
  if (form_.menu.empty()) return;
  menu_ = CreateMenu();
  for (const MenuItem* head : form_.menu) {
    const HMENU popup = CreatePopupMenu();
    for (MenuItem* item : head->children()) {
      const auto id = static_cast<UINT_PTR>(kFirstMenuId) + menuCommands_.size();
      AppendMenuW(popup, MF_STRING, id, os::ToWide(item->caption()).c_str());
      menuCommands_.push_back(item);
    }
    AppendMenuW(menu_, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), os::ToWide(head->caption()).c_str());
  }
  SetMenu(window_, menu_);
}

void FormWindow::makeControls() {
  makeToolTips();
  for (Control* control : form_.controls()) {
    // A control that is never shown needs no window; a page is shown when its tab is chosen.
    if (control->visible() || control->kind() == ControlKind::TabPage) makeControl(*control);
  }
  orderTabs();
  placeTabPages();
}

void FormWindow::makeControl(Control& control) {
  HWND parent = window_;
  if (control.kind() != ControlKind::TabPage && control.container()) {
    if (const ControlPeer* on = peerOf(*control.container())) parent = on->window();
  }
  int id = nextId_++;
  if (const auto* button = dynamic_cast<const CommandButton*>(&control)) {
    if (button->isDefault) id = IDOK;
    if (button->isCancel) id = IDCANCEL;
  }
  std::unique_ptr<ControlPeer> peer = MakePeer(control, *this);
  byControl_[&control] = peer.get();
  peer->make(parent, id);
  byWindow_[peer->window()] = peer.get();
  if (control.kind() == ControlKind::TabControl) takePageColor(peer->window());
  if (id == IDOK) SendMessageW(window_, DM_SETDEFID, IDOK, 0);
  addToolTip(*peer);
  peers_.push_back(std::move(peer));
}

// A tab control's pages lie above it and come first under the tab key; the tabs come last.
void FormWindow::orderTabs() {
  for (const auto& peer : peers_) {
    const ControlKind kind = peer->control().kind();
    if (kind != ControlKind::TabPage && kind != ControlKind::TabControl) continue;
    SetWindowPos(peer->window(), kind == ControlKind::TabPage ? HWND_TOP : HWND_BOTTOM, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
}

void FormWindow::placeTabPages() {
  for (const auto& peer : peers_) {
    if (auto* tabs = dynamic_cast<TabControlPeer*>(peer.get())) tabs->placePages();
  }
}

void FormWindow::makeToolTips() {
  toolTips_ =
      CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0,
                      0, 0, window_, nullptr, GetModuleHandleW(nullptr), nullptr);
  // A text with line breaks is shown on several lines only where a width is set; no word is broken.
  SendMessageW(toolTips_, TTM_SETMAXTIPWIDTH, 0, MulDiv(kWidestToolTip, dpi_, USER_DEFAULT_SCREEN_DPI));
}

namespace {

TTTOOLINFOW ToolOf(const ControlPeer& peer) {
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.uFlags = TTF_IDISHWND;  // fed by filter()
  tool.hwnd = GetParent(peer.window());
  tool.uId = reinterpret_cast<UINT_PTR>(peer.window());
  return tool;
}

}  // namespace

void FormWindow::addToolTip(const ControlPeer& peer) {
  if (peer.control().toolTip().empty()) return;
  std::wstring text = os::ToWide(peer.control().toolTip());
  TTTOOLINFOW tool = ToolOf(peer);
  tool.lpszText = text.data();
  SendMessageW(toolTips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

// As a new one it waits for the pointer's rest again, where a changed one would stand where the old one
// stood.
void FormWindow::renewToolTip(const ControlPeer& peer) {
  TTTOOLINFOW tool = ToolOf(peer);
  SendMessageW(toolTips_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  addToolTip(peer);
}

void FormWindow::present() {
  ShowWindow(window_, SW_SHOW);
  activate();
  if (const HWND first = GetNextDlgTabItem(window_, nullptr, FALSE)) {
    SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
  }
}

void FormWindow::activate() { SetForegroundWindow(window_); }

void FormWindow::close() {
  if (!window_) return;
  DestroyWindow(window_);
  window_ = nullptr;
}

ControlPeer* FormWindow::peerOf(const Control& control) const {
  const auto found = byControl_.find(&control);
  return found == byControl_.end() ? nullptr : found->second;
}

bool FormWindow::onTabPage(const Control& control) const {
  for (const Control* on = &control; on; on = on->container()) {
    if (on->kind() == ControlKind::TabPage) return true;
  }
  return false;
}

void FormWindow::takePageColor(HWND tabs) {
  pageColor_ = TabPageColor(tabs);
  pageBrush_.reset(CreateSolidBrush(pageColor_));
}

COLORREF FormWindow::surfaceColor(const Control& control) const {
  return onTabPage(control) ? pageColor_ : GetSysColor(COLOR_BTNFACE);
}

HBRUSH FormWindow::surfaceBrush(const Control& control) const {
  return onTabPage(control) ? pageBrush_.get() : GetSysColorBrush(COLOR_BTNFACE);
}

}  // namespace forms

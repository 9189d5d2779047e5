// What the user and the system do to the window of a form.
#include "forms/form_window_win.h"

#include <commctrl.h>
#include <windowsx.h>

#include "forms/buttons.h"
#include "forms/containers.h"

namespace forms {

namespace {

constexpr int kEscape = VK_ESCAPE;

HWND SenderOf(UINT message, LPARAM lParam) {
  switch (message) {
    case WM_NOTIFY:
      return reinterpret_cast<const NMHDR*>(lParam)->hwndFrom;
    case WM_DRAWITEM:
      return reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->hwndItem;
    default:
      return reinterpret_cast<HWND>(lParam);
  }
}

}  // namespace

bool FormWindow::filter(MSG& message) {
  if (!window_ || (message.hwnd != window_ && !IsChild(window_, message.hwnd))) return false;
  if (message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST) {
    SendMessageW(toolTips_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&message));
  }
  if (message.message == WM_MOUSEMOVE) reportPointer(message);
  if (message.message == WM_KEYDOWN && switchTab(message)) return true;
  const bool taken = window_ && IsDialogMessageW(window_, &message) != FALSE;
  const bool isKey = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
  if (window_ && isKey) keepFocusInSight();
  return taken;
}

void FormWindow::reportPointer(const MSG& message) {
  POINT at{GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)};
  MapWindowPoints(message.hwnd, window_, &at, 1);
  at.x += across_.offset();
  at.y += down_.offset();
  const auto perPixel = static_cast<float>(twipsPerPixel_);
  const bool leftButton = (message.wParam & MK_LBUTTON) != 0;
  raise([this, at, perPixel, leftButton] {
    form_.userMovedMouse(static_cast<float>(at.x) * perPixel, static_cast<float>(at.y) * perPixel,
                         leftButton);
  });
}

// Ctrl+Tab and Ctrl+Page Down go to the next tab, with Shift or Page Up to the one before.
bool FormWindow::switchTab(const MSG& message) {
  const bool control = GetKeyState(VK_CONTROL) < 0;
  const bool tabKey = message.wParam == VK_TAB;
  if (!control || (!tabKey && message.wParam != VK_NEXT && message.wParam != VK_PRIOR)) return false;
  for (const auto& peer : peers_) {
    if (peer->control().kind() != ControlKind::TabControl) continue;
    auto& tabs = static_cast<TabControl&>(peer->control());
    const bool back = tabKey ? GetKeyState(VK_SHIFT) < 0 : message.wParam == VK_PRIOR;
    const int count = tabs.tabCount();
    SetFocus(peer->window());
    raise([&] { tabs.userSelectedTab((tabs.tab() + (back ? count - 1 : 1)) % count); });
    return true;
  }
  return false;
}

std::optional<LRESULT> FormWindow::routeToChild(UINT message, WPARAM wParam, LPARAM lParam) {
  const auto found = byWindow_.find(SenderOf(message, lParam));
  if (found == byWindow_.end()) return std::nullopt;
  ControlPeer& peer = *found->second;
  switch (message) {
    case WM_COMMAND:
      peer.onCommand(HIWORD(wParam));
      return 0;
    case WM_HSCROLL:
    case WM_VSCROLL:
      peer.onScroll(LOWORD(wParam), HIWORD(wParam));
      return 0;
    case WM_DRAWITEM:
      if (peer.onDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam))) return TRUE;
      return std::nullopt;
    case WM_NOTIFY:
      return peer.onNotify(*reinterpret_cast<const NMHDR*>(lParam));
    default:
      return reinterpret_cast<LRESULT>(peer.onColor(reinterpret_cast<HDC>(wParam), message));
  }
}

INT_PTR CALLBACK FormWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(window, DWLP_USER, lParam);
    reinterpret_cast<FormWindow*>(lParam)->window_ = window;
    return FALSE;
  }
  auto* self = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, DWLP_USER));
  return self ? self->handle(message, wParam, lParam) : FALSE;
}

INT_PTR FormWindow::handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      if (lParam && routeToChild(message, wParam, lParam)) return TRUE;
      if (LOWORD(wParam) >= kFirstMenuId) {
        onMenuCommand(LOWORD(wParam));
      } else {
        onKeyboardCommand(LOWORD(wParam));
      }
      return TRUE;
    case WM_HSCROLL:
    case WM_VSCROLL:
      if (!lParam) {
        onScroll(message == WM_VSCROLL ? SB_VERT : SB_HORZ, LOWORD(wParam));
        return TRUE;
      }
      [[fallthrough]];
    case WM_DRAWITEM:
    case WM_NOTIFY:
      if (const std::optional<LRESULT> answer = routeToChild(message, wParam, lParam)) {
        SetWindowLongPtrW(window_, DWLP_MSGRESULT, *answer);
        return TRUE;
      }
      return FALSE;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
      return static_cast<INT_PTR>(routeToChild(message, wParam, lParam).value_or(0));
    case WM_SETCURSOR:
      if (form_.mousePointer() != MousePointer::Hourglass) return FALSE;
      SetCursor(LoadCursorW(nullptr, IDC_WAIT));
      SetWindowLongPtrW(window_, DWLP_MSGRESULT, TRUE);
      return TRUE;
    case WM_CLOSE:
      raise([this] {
        if (form_.onCloseRequest) form_.onCloseRequest();
      });
      return TRUE;
    case WM_HELP:
      raise([this] {
        if (form_.onHelp) form_.onHelp();
      });
      return TRUE;
    case WM_MOUSEWHEEL:
      onWheel(GET_WHEEL_DELTA_WPARAM(wParam));
      return TRUE;
    default:
      return handleSystemChange(message, wParam);
  }
}

INT_PTR FormWindow::handleSystemChange(UINT message, WPARAM wParam) {
  switch (message) {
    case WM_DPICHANGED:
      relayOut(LOWORD(wParam));
      return TRUE;
    case WM_SETTINGCHANGE:
      if (wParam == SPI_SETNONCLIENTMETRICS || wParam == SPI_SETWORKAREA) relayOut(dpi_);
      return FALSE;
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
      followAppearance();
      return FALSE;
    case WM_SIZE:
      raise([this, wParam] { form_.userMinimized(wParam == SIZE_MINIMIZED); });
      return FALSE;
    case WM_NCDESTROY:
      window_ = nullptr;
      return FALSE;
    default:
      return FALSE;
  }
}

// Enter and Escape press the buttons that are marked for them; a form without one hears of the key itself.
void FormWindow::onKeyboardCommand(int id) {
  for (const auto& peer : peers_) {
    auto* button = dynamic_cast<CommandButton*>(&peer->control());
    if (!button || (id == IDOK ? !button->isDefault : !button->isCancel)) continue;
    raise([button] { button->userClicked(); });
    return;
  }
  if (id == IDCANCEL && form_.onKeyDown) raise([this] { form_.onKeyDown(kEscape); });
}

void FormWindow::onMenuCommand(int id) {
  const auto index = static_cast<std::size_t>(id - kFirstMenuId);
  if (index < menuCommands_.size()) raise([item = menuCommands_[index]] { item->userClicked(); });
}

}  // namespace forms

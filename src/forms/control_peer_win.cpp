#include "forms/control_peer_win.h"

#include <commctrl.h>
#include <shellapi.h>
#include <windowsx.h>

#include <vector>

#include "forms/form.h"
#include "forms/surface_win.h"
#include "os/utf16_win.h"

namespace forms {

namespace {

constexpr UINT_PTR kSubclass = 1;

// Makes a peer deaf for a scope.
class Applying {
 public:
  explicit Applying(int& depth) : depth_(depth) { ++depth_; }
  ~Applying() { --depth_; }
  Applying(const Applying&) = delete;
  Applying& operator=(const Applying&) = delete;

 private:
  int& depth_;
};

}  // namespace

ControlPeer::~ControlPeer() {
  if (window_) RemoveWindowSubclass(window_, Procedure, kSubclass);
}

void ControlPeer::make(HWND parent, int id) {
  const Applying applying(applying_);
  const WindowRecipe made = recipe();
  const base::PixelRect at = control_.pixelRect();
  DWORD style = made.style | WS_CHILD | WS_CLIPSIBLINGS;
  if (control_.visible()) style |= WS_VISIBLE;
  if (!control_.enabled()) style |= WS_DISABLED;
  window_ =
      CreateWindowExW(made.extendedStyle, made.windowClass, os::ToWide(windowText()).c_str(), style, at.left,
                      at.top, at.width, at.height, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                      GetModuleHandleW(nullptr), nullptr);
  if (!window_) return;
  SetWindowSubclass(window_, Procedure, kSubclass, reinterpret_cast<DWORD_PTR>(this));
  send(WM_SETFONT, reinterpret_cast<WPARAM>(owner_.font()), FALSE);
  fill();
  place();
  if (control_.onFilesDropped) DragAcceptFiles(window_, TRUE);
}

void ControlPeer::place() {
  const Applying applying(applying_);
  const base::PixelRect at = windowPlace();
  SetWindowPos(window_, nullptr, at.left, at.top, at.width, at.height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void ControlPeer::setFont(HFONT font) {
  const Applying applying(applying_);
  send(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void ControlPeer::setWindowText(const std::string& text) const {
  SetWindowTextW(window_, os::ToWide(text).c_str());
}

void ControlPeer::apply(Change change) {
  if (!window_) return;
  const Applying applying(applying_);
  switch (change) {
    case Change::Place:
      place();
      break;
    case Change::Visible:
      ShowWindow(window_, control_.visible() ? SW_SHOWNA : SW_HIDE);
      break;
    case Change::Enabled:
      EnableWindow(window_, control_.enabled());
      InvalidateRect(window_, nullptr, FALSE);
      break;
    case Change::Colors:
      InvalidateRect(window_, nullptr, TRUE);
      break;
    default:
      break;
  }
  onChange(change);
}

void ControlPeer::applyList(const ListEdit& edit) {
  if (!window_) return;
  const Applying applying(applying_);
  onListEdit(edit);
}

HBRUSH ControlPeer::onColor(HDC dc, UINT) {
  SetTextColor(dc, ToColorRef(control_.foreColor()));
  SetBkColor(dc, owner_.surfaceColor(control_));
  return owner_.surfaceBrush(control_);
}

std::optional<LRESULT> ControlPeer::mouseMessage(UINT message, LPARAM lParam) {
  const auto perPixel = static_cast<float>(control_.form().twipsPerPixel());
  const MouseEvent at{static_cast<float>(GET_X_LPARAM(lParam)) * perPixel,
                      static_cast<float>(GET_Y_LPARAM(lParam)) * perPixel};
  if (message == WM_LBUTTONDOWN && control_.onMouseDown) {
    owner_.raise([&] { control_.onMouseDown(at); });
  }
  return std::nullopt;
}

void ControlPeer::dropFiles(HDROP drop) {
  std::vector<std::string> paths;
  const UINT count = DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
  for (UINT i = 0; i < count; ++i) {
    std::wstring path(DragQueryFileW(drop, i, nullptr, 0) + 1, L'\0');
    path.resize(DragQueryFileW(drop, i, path.data(), static_cast<UINT>(path.size())));
    paths.push_back(os::FromWide(path));
  }
  DragFinish(drop);
  owner_.raise([&] {
    if (control_.onFilesDropped) control_.onFilesDropped(paths);
  });
}

LRESULT CALLBACK ControlPeer::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                        DWORD_PTR self) {
  auto* peer = reinterpret_cast<ControlPeer*>(self);
  std::optional<LRESULT> answer = peer->onMessage(message, wParam, lParam);
  if (!answer) {
    switch (message) {
      case WM_NCDESTROY:
        RemoveWindowSubclass(window, Procedure, kSubclass);
        peer->window_ = nullptr;
        break;
      case WM_LBUTTONDOWN:
        answer = peer->mouseMessage(message, lParam);
        break;
      case WM_KEYDOWN:
        if (peer->control_.onKeyDown) {
          peer->owner_.raise([&] { peer->control_.onKeyDown(static_cast<int>(wParam)); });
        }
        break;
      case WM_DROPFILES:
        peer->dropFiles(reinterpret_cast<HDROP>(wParam));
        return 0;
      // Controls that stand on this one send to it what concerns their own peers.
      case WM_COMMAND:
      case WM_NOTIFY:
      case WM_HSCROLL:
      case WM_VSCROLL:
      case WM_DRAWITEM:
      case WM_CTLCOLORSTATIC:
      case WM_CTLCOLORBTN:
      case WM_CTLCOLOREDIT:
      case WM_CTLCOLORLISTBOX:
        answer = peer->owner_.routeToChild(message, wParam, lParam);
        break;
      default:
        break;
    }
  }
  return answer ? *answer : DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace forms

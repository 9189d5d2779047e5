#include "forms/control_peer_win.h"

#include <shellapi.h>
#include <windowsx.h>

#include <string_view>
#include <vector>

#include "forms/form.h"
#include "forms/surface_win.h"
#include "os/utf16_win.h"

namespace forms {

namespace {

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
  if (window_) leave();
}

// A list of thousands is filled by thousands of messages, so the way to the peer has to be short: the
// window's own user data, and no list of procedures in between.
void ControlPeer::watch() {
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  original_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
}

void ControlPeer::leave() {
  SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original_));
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  window_ = nullptr;
}

// Where no label in sight says what the control is, one that is hidden does. Of a label's mnemonic a screen
// reader tells the letter, not the mark before it.
void ControlPeer::makeNameBefore(HWND parent) const {
  const std::string& name = control_.accessibleName();
  if (name.empty()) return;
  const std::wstring wide = os::ToWide(name);
  if (const HWND first = GetWindow(parent, GW_CHILD)) {
    const HWND before = GetWindow(first, GW_HWNDLAST);
    std::wstring text(wide.size() + 3, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(before, text.data(), static_cast<int>(text.size()))));
    if ((GetWindowLongPtrW(before, GWL_STYLE) & SS_NOPREFIX) == 0) std::erase(text, L'&');
    wchar_t windowClass[8] = {};
    GetClassNameW(before, windowClass, 8);
    if (text == wide && std::wstring_view(windowClass) == L"Static") return;
  }
  CreateWindowExW(0, L"STATIC", wide.c_str(), WS_CHILD | SS_NOPREFIX, 0, 0, 0, 0, parent, nullptr,
                  GetModuleHandleW(nullptr), nullptr);
}

void ControlPeer::make(HWND parent, int id) {
  const Applying applying(applying_);
  const WindowRecipe made = recipe();
  if (made.namedByTextBefore) makeNameBefore(parent);
  const base::PixelRect at = control_.pixelRect();
  DWORD style = made.style | WS_CHILD | WS_CLIPSIBLINGS;
  if (control_.visible()) style |= WS_VISIBLE;
  if (!control_.enabled()) style |= WS_DISABLED;
  window_ =
      CreateWindowExW(made.extendedStyle, made.windowClass, os::ToWide(windowText()).c_str(), style, at.left,
                      at.top, at.width, at.height, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                      GetModuleHandleW(nullptr), nullptr);
  if (!window_) return;
  watch();
  send(WM_SETFONT, reinterpret_cast<WPARAM>(owner_.font()), FALSE);
  fill();
  place();
  if (control_.onFilesDropped) DragAcceptFiles(window_, TRUE);
}

void ControlPeer::place() {
  const Applying applying(applying_);
  const base::PixelPoint scrolled = owner_.scrolledBy(control_);
  const base::PixelRect at = windowPlace().movedBy(-scrolled.x, -scrolled.y);
  SetWindowPos(window_, nullptr, at.left, at.top, at.width, at.height, SWP_NOZORDER | SWP_NOACTIVATE);
  onPlaced();
}

void ControlPeer::followAppearance() {
  const Applying applying(applying_);
  send(WM_SYSCOLORCHANGE);
  onAppearance();
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

LRESULT CALLBACK ControlPeer::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* peer = reinterpret_cast<ControlPeer*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!peer) return DefWindowProcW(window, message, wParam, lParam);
  const WNDPROC original = peer->original_;
  std::optional<LRESULT> answer = peer->onMessage(message, wParam, lParam);
  if (!answer) {
    switch (message) {
      case WM_NCDESTROY:
        peer->leave();
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
  return answer ? *answer : CallWindowProcW(original, window, message, wParam, lParam);
}

}  // namespace forms

#include "forms/container_peer_win.h"

#include <commctrl.h>
#include <vssym32.h>

#include <algorithm>
#include <vector>

#include "base/contrast.h"
#include "forms/form.h"
#include "forms/surface_win.h"
#include "os/utf16_win.h"

namespace forms {

namespace {

constexpr const wchar_t* kPageClass = L"LumoraPage";

void RegisterPageClass() {
  static const bool registered = [] {
    WNDCLASSEXW description{};
    description.cbSize = sizeof(description);
    description.lpfnWndProc = DefWindowProcW;
    description.hInstance = GetModuleHandleW(nullptr);
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.lpszClassName = kPageClass;
    return RegisterClassExW(&description) != 0;
  }();
  static_cast<void>(registered);
}

void DrawGroupLine(HWND window, HDC dc, RECT area, bool enabled) {
  const Theme theme(window, L"BUTTON");
  if (!theme) {
    DrawEdge(dc, &area, EDGE_ETCHED, BF_RECT);
    return;
  }
  theme.drawBackground(dc, BP_GROUPBOX, enabled ? GBS_NORMAL : GBS_DISABLED, area);
}

}  // namespace

WindowRecipe FramePeer::recipe() const {
  return {L"BUTTON", WS_GROUP | BS_GROUPBOX | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT};
}

void FramePeer::paint(HDC dc) const {
  RECT client{};
  GetClientRect(window(), &client);
  FillRect(dc, &client, owner().surfaceBrush(frame_));
  const os::Selected font(dc, owner().font());
  const std::wstring caption = os::ToWide(frame_.caption());
  SIZE text{};
  GetTextExtentPoint32W(dc, caption.c_str(), static_cast<int>(caption.size()), &text);
  RECT line = client;
  line.top = text.cy / 2;
  DrawGroupLine(window(), dc, line, frame_.takesInput());
  const int gap = MulDiv(3, owner().dpi(), 96);
  const int left = MulDiv(9, owner().dpi(), 96);
  RECT behind{left - gap, 0, left + text.cx + gap, text.cy};
  FillRect(dc, &behind, owner().surfaceBrush(frame_));
  SetBkMode(dc, TRANSPARENT);
  // A colour that stands out on a light page must still do so where the user has chosen a dark one.
  const auto page = static_cast<base::PackedColor>(owner().surfaceColor(frame_));
  const auto ink = static_cast<base::PackedColor>(ToColorRef(frame_.foreColor()));
  SetTextColor(dc, frame_.takesInput() ? static_cast<COLORREF>(base::ReadableOn(ink, page))
                                       : GetSysColor(COLOR_GRAYTEXT));
  TextOutW(dc, left, 0, caption.c_str(), static_cast<int>(caption.size()));
}

void FramePeer::onChange(Change change) {
  if (change == Change::Text) setWindowText(frame_.caption());
  if (change == Change::Text || change == Change::Colors || change == Change::Enabled) {
    InvalidateRect(window(), nullptr, FALSE);
  }
}

std::optional<LRESULT> FramePeer::onMessage(UINT message, WPARAM wParam, LPARAM) {
  switch (message) {
    case WM_PAINT: {
      const os::PaintDc dc(window());
      paint(dc.get());
      return 0;
    }
    case WM_PRINTCLIENT:
      paint(reinterpret_cast<HDC>(wParam));
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_NCHITTEST:
      return HTCLIENT;
    case WM_GETDLGCODE:
      return DLGC_STATIC;
    default:
      return std::nullopt;
  }
}

WindowRecipe TabControlPeer::recipe() const {
  return {WC_TABCONTROLW, WS_TABSTOP | WS_GROUP | TCS_MULTILINE | TCS_TABS, 0};
}

void TabControlPeer::fill() {
  for (int i = 0; i < tabs_.tabCount(); ++i) {
    std::wstring caption = os::ToWide(tabs_.page(i).caption());
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    send(TCM_INSERTITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
  }
  send(TCM_SETCURSEL, static_cast<WPARAM>(tabs_.tab()));
}

void TabControlPeer::placePages() {
  RECT inside{};
  GetClientRect(window(), &inside);
  send(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&inside));
  const auto perPixel = static_cast<float>(tabs_.form().twipsPerPixel());
  for (int i = 0; i < tabs_.tabCount(); ++i) {
    tabs_.page(i).move(static_cast<float>(inside.left) * perPixel, static_cast<float>(inside.top) * perPixel,
                       static_cast<float>(inside.right - inside.left) * perPixel,
                       static_cast<float>(inside.bottom - inside.top) * perPixel);
  }
}

void TabControlPeer::onChange(Change change) {
  if (change == Change::Value && send(TCM_GETCURSEL) != tabs_.tab()) {
    send(TCM_SETCURSEL, static_cast<WPARAM>(tabs_.tab()));
  }
}

LRESULT TabControlPeer::onNotify(const NMHDR& header) {
  if (header.code == TCN_SELCHANGE && !deaf()) {
    const auto index = static_cast<int>(send(TCM_GETCURSEL));
    owner().raise([this, index] { tabs_.userSelectedTab(index); });
  }
  return 0;
}

TabPagePeer::TabPagePeer(TabPage& page, PeerOwner& owner) : ControlPeer(page, owner), page_(page) {
  RegisterPageClass();
}

WindowRecipe TabPagePeer::recipe() const { return {kPageClass, WS_CLIPCHILDREN, WS_EX_CONTROLPARENT}; }

base::PixelRect TabPagePeer::windowPlace() const {
  const base::PixelRect tabs = page_.container()->pixelRect();
  return page_.pixelRect().movedBy(tabs.left, tabs.top);
}

std::optional<LRESULT> TabPagePeer::onMessage(UINT message, WPARAM wParam, LPARAM) {
  if (message != WM_ERASEBKGND && message != WM_PRINTCLIENT) return std::nullopt;
  RECT client{};
  GetClientRect(window(), &client);
  FillRect(reinterpret_cast<HDC>(wParam), &client, owner().surfaceBrush(page_));
  return 1;
}

WindowRecipe StatusBarPeer::recipe() const {
  return {STATUSCLASSNAMEW, CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NODIVIDER, 0};
}

int StatusBarPeer::widthOf(const std::string& text) const {
  const os::WindowDc dc(window());
  const os::Selected font(dc.get(), owner().font());
  const std::wstring wide = os::ToWide(text);
  SIZE size{};
  GetTextExtentPoint32W(dc.get(), wide.c_str(), static_cast<int>(wide.size()), &size);
  return static_cast<int>(size.cx) + MulDiv(10, owner().dpi(), 96);  // its edges, and air on both sides
}

void StatusBarPeer::showPanels() {
  std::vector<std::string> texts;
  for (const StatusPanel& panel : bar_.panels()) {
    if (texts.empty() || !panel.text.empty()) texts.push_back(panel.text);
  }
  RECT client{};
  GetClientRect(window(), &client);
  // The last panel ends where the bar does, the one before where the last begins.
  std::vector<int> ends(texts.size(), -1);
  int end = static_cast<int>(client.right);
  for (std::size_t i = texts.size() - 1; i > 0; --i) {
    end = std::max(0, end - widthOf(texts[i]));
    ends[i - 1] = end;
  }
  send(SB_SETPARTS, ends.size(), reinterpret_cast<LPARAM>(ends.data()));
  for (std::size_t i = 0; i < texts.size(); ++i) {
    send(SB_SETTEXTW, i, reinterpret_cast<LPARAM>(os::ToWide(texts[i]).c_str()));
  }
}

void StatusBarPeer::onChange(Change change) {
  if (change == Change::Text) showPanels();
}

}  // namespace forms

// The real window of one control.
#pragma once

#include <windows.h>

#include <shellapi.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "forms/control.h"
#include "forms/form_host.h"
#include "os/handles_win.h"

namespace forms {

// What a peer may ask of the window in which it stands.
class PeerOwner {
 public:
  virtual ~PeerOwner() = default;

  virtual HFONT font() const = 0;
  virtual int dpi() const = 0;

  // The colour behind a control, and a brush of it that lives as long as the window.
  virtual COLORREF surfaceColor(const Control& control) const = 0;
  virtual HBRUSH surfaceBrush(const Control& control) const = 0;

  // By how much what stands on the form itself is moved up and to the left, because not all of it fits on the
  // screen (pixels).
  virtual base::PixelPoint scrolledBy(const Control& control) const = 0;

  // Runs what the user started; nothing that it throws goes further.
  virtual void raise(const std::function<void()>& event) = 0;

  // Hands a message that children send to their parent to the child's peer.
  virtual std::optional<LRESULT> routeToChild(UINT message, WPARAM wParam, LPARAM lParam) = 0;
};

struct WindowRecipe {
  const wchar_t* windowClass = L"";
  DWORD style = 0;
  DWORD extendedStyle = 0;

  // Screen readers call the window what the text before it says, and not by its own text.
  bool namedByTextBefore = false;
};

// Reports only what the user did: while it applies a change of the model, it is deaf.
class ControlPeer {
 public:
  ControlPeer(Control& control, PeerOwner& owner) : control_(control), owner_(owner) {}
  virtual ~ControlPeer();
  ControlPeer(const ControlPeer&) = delete;
  ControlPeer& operator=(const ControlPeer&) = delete;

  // Makes the window on its parent, with everything that the model holds.
  void make(HWND parent, int id);

  HWND window() const { return window_; }
  Control& control() const { return control_; }
  bool deaf() const { return applying_ > 0; }

  // Shows what the model says changed.
  void apply(Change change);
  void applyList(const ListEdit& edit);

  // Places the window in the control's place; again after the font or the dots per inch changed.
  void place();
  void followAppearance();
  void setFont(HFONT font);

  // Messages that the window sends to its parent: WM_COMMAND's code, scrolling, drawing, colours, WM_NOTIFY.
  virtual void onCommand(int) {}
  virtual void onScroll(int, int) {}
  virtual bool onDrawItem(const DRAWITEMSTRUCT&) { return false; }
  virtual LRESULT onNotify(const NMHDR&) { return 0; }
  virtual HBRUSH onColor(HDC dc, UINT message);

 protected:
  virtual WindowRecipe recipe() const = 0;

  // The text that the window has: what it shows, or what a screen reader calls it.
  virtual std::string windowText() const { return control_.accessibleName(); }

  // Everything beyond text, place and state, when the window has just been made.
  virtual void fill() {}
  virtual void onChange(Change) {}
  virtual void onListEdit(const ListEdit&) {}
  virtual void onPlaced() {}      // with its final size and font
  virtual void onAppearance() {}  // the system's colours are others now

  // Where the window stands inside the control's place (pixels of the parent).
  virtual base::PixelRect windowPlace() const { return control_.pixelRect(); }

  // A message to the window itself, before the window sees it.
  virtual std::optional<LRESULT> onMessage(UINT, WPARAM, LPARAM) { return std::nullopt; }

  LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(window_, message, wParam, lParam);
  }
  void setWindowText(const std::string& text) const;
  PeerOwner& owner() const { return owner_; }

  Control& control_;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void makeNameBefore(HWND parent) const;
  void watch();
  void leave();
  std::optional<LRESULT> mouseMessage(UINT message, LPARAM lParam);
  void dropFiles(HDROP drop);

  PeerOwner& owner_;
  HWND window_ = nullptr;       // goes with its parent
  WNDPROC original_ = nullptr;  // the window's own procedure, behind ours
  int applying_ = 0;
};

// The peer of a control, not yet made.
std::unique_ptr<ControlPeer> MakePeer(Control& control, PeerOwner& owner);

}  // namespace forms

// One form as a real window with real controls.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "forms/control_peer_win.h"
#include "forms/form.h"
#include "forms/form_host.h"
#include "forms/scroll_axis.h"
#include "os/handles_win.h"

namespace forms {

class WindowSystemWin;

// Lives from show to unload.
class FormWindow : public FormHost, private PeerOwner {
 public:
  FormWindow(Form& form, WindowSystemWin& windows);
  ~FormWindow() override;
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  // Makes the window, hidden, with all controls. `owner` is the window above which it stays, or null.
  void make(HWND owner);

  // Shows it and gives the keyboard to its first control.
  void present();
  void activate();
  void close();

  HWND handle() const { return window_; }
  Form& form() const { return form_; }

  // A keyboard or mouse message to the window or to what stands on it; true when nothing is left to do.
  bool filter(MSG& message);

  void controlChanged(Control& control, Change change) override;
  void controlDrawn(Control& control, std::span<const base::PixelRect> areas) override;
  void formChanged(Form& form, FormChange change) override;
  void listChanged(ListBox& list, const ListEdit& edit) override;
  void controlWantsFocus(Control& control) override;
  base::PixelSize measureText(const base::Font& font, const std::string& text) override;
  int twipsPerPixel() const override { return twipsPerPixel_; }
  base::PixelSize innerSize() const override;

 private:
  static constexpr int kFirstMenuId = 0x4000;
  static constexpr DWORD kStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN;

  static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  INT_PTR handle(UINT message, WPARAM wParam, LPARAM lParam);
  INT_PTR handleSystemChange(UINT message, WPARAM wParam);

  HFONT font() const override { return font_.get(); }
  int dpi() const override { return dpi_; }
  COLORREF surfaceColor(const Control& control) const override;
  HBRUSH surfaceBrush(const Control& control) const override;
  base::PixelPoint scrolledBy(const Control& control) const override;
  void raise(const std::function<void()>& event) override;
  std::optional<LRESULT> routeToChild(UINT message, WPARAM wParam, LPARAM lParam) override;

  void takeDpi(int dpi);
  void sizeFromForm();
  void placeFromForm();
  void makeMenu();
  void makeControls();
  void makeControl(Control& control);
  void orderTabs();
  void placeTabPages();
  void makeToolTips();
  void addToolTip(const ControlPeer& peer);
  void renewToolTip(const ControlPeer& peer);
  void relayOut(int dpi);
  void followAppearance();
  void takePageColor(HWND tabs);
  bool fixesClientSize() const { return form_.clientWidth() > 0; }
  base::PixelSize outerSizeFor(base::PixelSize inner);
  void fitScrollBars();
  void showScrollBar(int bar, const ScrollAxis& axis);
  void showScrolled();
  void onScroll(int bar, int code);
  void onWheel(int delta);
  void keepFocusInSight();
  void onKeyboardCommand(int id);
  void onMenuCommand(int id);
  bool switchTab(const MSG& message);
  void reportPointer(const MSG& message);
  void keepFocusOff(const Control& disabled);
  bool onTabPage(const Control& control) const;
  ControlPeer* peerOf(const Control& control) const;

  Form& form_;
  WindowSystemWin& windows_;
  HWND window_ = nullptr;
  int dpi_ = 96;
  int twipsPerPixel_ = 15;
  int nextId_ = 100;
  os::OwnedFont font_;
  os::OwnedBrush pageBrush_;
  COLORREF pageColor_ = 0;
  HWND toolTips_ = nullptr;
  base::PixelSize content_;  // what stands on the form; empty where the window is sized by its outside
  ScrollAxis across_;
  ScrollAxis down_;
  HWND lastFocus_ = nullptr;
  HMENU menu_ = nullptr;  // goes with the window
  std::vector<MenuItem*> menuCommands_;
  std::vector<std::unique_ptr<ControlPeer>> peers_;  // in the order of the form's controls
  std::unordered_map<const Control*, ControlPeer*> byControl_;
  std::unordered_map<HWND, ControlPeer*> byWindow_;
};

}  // namespace forms

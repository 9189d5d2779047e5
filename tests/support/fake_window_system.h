// Shows forms without windows and remembers which.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/form_host.h"
#include "forms/window_system.h"

namespace support {

// Is also the host of the forms that it shows and remembers what they told.
class FakeWindowSystem : public forms::WindowSystem, public forms::FormHost {
 public:
  std::vector<std::string> shown;     // names of the forms, in the order of showing
  std::vector<std::string> unloaded;  // likewise
  std::vector<std::pair<std::string, forms::Change>> changes;
  int listEdits = 0;
  std::string focused;  // the control that was last given the keyboard
  int alone = 0;        // how often something ran beside the forms,
  int aloneEnded = 0;   // and came to its end
  float screenWidth = 1920 * 15.0F;
  float screenHeight = 1080 * 15.0F;
  std::function<void(forms::Form&)> whileModal;  // what the user does while a form is shown modally
  bool leavesModalOpen = false;  // the program ends while a form is shown modally: its window is still there

  // As the window system at its own end, it then writes to the forms whose windows are still there.
  ~FakeWindowSystem() override {
    if (!leavesModalOpen) return;
    for (forms::Form* form : loaded_) form->setHost(nullptr);
  }

  void show(forms::Form& form) override {
    shown.push_back(form.name());
    if (form.host() == this) return;
    form.setHost(this);
    loaded_.push_back(&form);
    if (form.onLoad) form.onLoad();
  }
  void showModal(forms::Form& form) override {
    show(form);
    if (whileModal) whileModal(form);
    if (!leavesModalOpen) unload(form);
  }
  void unload(forms::Form& form) override {
    if (form.host() != this) return;
    form.setHost(nullptr);
    std::erase(loaded_, &form);
    unloaded.push_back(form.name());
    if (form.onUnload) form.onUnload();
  }
  void runAlone(const std::function<void()>& other) override {
    ++alone;
    other();
    ++aloneEnded;
  }
  float screenWidthTwips() const override { return screenWidth; }
  float screenHeightTwips() const override { return screenHeight; }

  void controlChanged(forms::Control& control, forms::Change change) override {
    changes.emplace_back(control.name(), change);
  }
  void controlDrawn(forms::Control& control, std::span<const base::PixelRect>) override {
    changes.emplace_back(control.name(), forms::Change::Picture);
  }
  void listChanged(forms::ListBox&, const forms::ListEdit&) override { ++listEdits; }
  void controlWantsFocus(forms::Control& control) override { focused = control.name(); }
  base::PixelSize measureText(const base::Font&, const std::string& text) override {
    return {static_cast<int>(text.size()) * 6, 13};
  }
  int twipsPerPixel() const override { return 15; }

 private:
  std::vector<forms::Form*> loaded_;
};

}  // namespace support

// A line of panels with texts at the bottom of a form.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/control.h"

namespace forms {

struct StatusPanel {
  std::string text;
  float width = 0;  // twips; 0 = what the others leave
};

class StatusBar : public Control {
 public:
  StatusBar(Form& form, std::string name, std::vector<StatusPanel> panels)
      : Control(form, std::move(name)), panels_(std::move(panels)) {}
  ControlKind kind() const override { return ControlKind::StatusBar; }

  const std::vector<StatusPanel>& panels() const { return panels_; }

  // Panels count from 1.
  const std::string& panelText(int panel) const {
    return panels_.at(static_cast<std::size_t>(panel - 1)).text;
  }
  void setPanelText(int panel, const std::string& text) {
    std::string& shown = panels_.at(static_cast<std::size_t>(panel - 1)).text;
    if (shown == text) return;
    shown = text;
    changed(Change::Text);
  }

 private:
  std::vector<StatusPanel> panels_;
};

}  // namespace forms

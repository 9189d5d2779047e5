// What other controls stand on.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/control.h"

namespace forms {

// A captioned group box. Its text colour is its caption's.
class Frame : public CaptionedControl {
 public:
  Frame(Form& form, std::string name) : CaptionedControl(form, std::move(name)) {}
  ControlKind kind() const override { return ControlKind::Frame; }
};

// What the controls of one tab stand on. Its place is the tab control's, without the tabs.
class TabPage : public Control {
 public:
  TabPage(Form& form, std::string name, std::string caption)
      : Control(form, std::move(name)), caption_(std::move(caption)) {}
  ControlKind kind() const override { return ControlKind::TabPage; }

  const std::string& caption() const { return caption_; }

 private:
  std::string caption_;
};

// Pages one above the other, one of them shown, chosen by their tabs.
class TabControl : public Control {
 public:
  // The pages are made at once; page i is named "<name>(i)". The first is shown.
  TabControl(Form& form, std::string name, const std::vector<std::string>& captions);
  ControlKind kind() const override { return ControlKind::TabControl; }

  int tabCount() const { return static_cast<int>(pages_.size()); }
  TabPage& page(int index) { return *pages_.at(static_cast<std::size_t>(index)); }
  const TabPage& page(int index) const { return *pages_.at(static_cast<std::size_t>(index)); }

  int tab() const { return tab_; }

  // Shows a page and raises the click unless it is shown. An index beyond the tabs throws
  // base::InvalidPropertyValue.
  void setTab(int index);

  void userSelectedTab(int index) { setTab(index); }

 private:
  std::vector<std::unique_ptr<TabPage>> pages_;
  int tab_ = 0;
};

}  // namespace forms

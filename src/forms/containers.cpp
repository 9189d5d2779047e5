#include "forms/containers.h"

#include "base/errors.h"

namespace forms {

TabControl::TabControl(Form& form, std::string name, const std::vector<std::string>& captions)
    : Control(form, std::move(name)) {
  for (const std::string& caption : captions) {
    const std::string pageName = this->name() + "(" + std::to_string(pages_.size()) + ")";
    auto page = std::make_unique<TabPage>(form, pageName, caption);
    page->setContainer(this);
    page->setVisible(pages_.empty());
    pages_.push_back(std::move(page));
  }
}

void TabControl::setTab(int index) {
  if (index < 0 || index >= tabCount()) throw base::InvalidPropertyValue();
  if (tab_ == index) return;
  const int before = tab_;
  tab_ = index;
  page(index).setVisible(true);
  page(before).setVisible(false);
  changed(Change::Value);
  if (onClick) onClick();
}

}  // namespace forms

// The items of a form's menu bar.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace forms {

// An item with children is a menu; one without is a command.
class MenuItem {
 public:
  MenuItem(std::string name, std::string caption) : name_(std::move(name)), caption_(std::move(caption)) {}
  MenuItem(const MenuItem&) = delete;
  MenuItem& operator=(const MenuItem&) = delete;

  const std::string& name() const { return name_; }
  const std::string& caption() const { return caption_; }

  const std::vector<MenuItem*>& children() const { return children_; }
  // Set once while building a form; the children must outlive their parent's use.
  void setChildren(std::vector<MenuItem*> children) { children_ = std::move(children); }

  std::function<void()> onClick;
  void userClicked() {
    if (onClick) onClick();
  }

 private:
  std::string name_;
  std::string caption_;
  std::vector<MenuItem*> children_;
};

}  // namespace forms

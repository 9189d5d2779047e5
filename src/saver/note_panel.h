// Some lines of text on a dark band, laid over the show.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/geometry.h"
#include "forms/form.h"
#include "forms/texts.h"

namespace saver {

// The text, or its beginning with dots behind it when it does not fit.
std::string Shortened(const std::string& text, const std::function<bool(const std::string&)>& fits);

// Every line is a label of its own on the form, all of them of one width. Hidden when made.
class NotePanel {
 public:
  NotePanel(forms::Form& form, const char* name, std::size_t mostLines);

  // For the stage, in whose order they are laid over each other.
  std::vector<forms::Label*> labels() const;

  // Lines that are longer than `widthTwips` are shortened, and none beyond the panel's own are shown. The
  // panel then takes as little room as it can.
  void setLines(const std::vector<std::string>& lines, float widthTwips);

  // In twips; nothing for a panel without lines.
  float width() const { return width_; }
  float height() const;

  void setPlace(float left, float top);
  void setVisible(bool visible);
  bool isVisible() const { return visible_; }

 private:
  forms::Form& form_;
  std::vector<std::unique_ptr<forms::Label>> labels_;
  std::size_t used_ = 0;
  float width_ = 0;
  bool visible_ = false;
};

}  // namespace saver

#include "saver/note_panel.h"

#include <algorithm>

#include "base/color.h"
#include "base/text.h"

namespace saver {

namespace {

constexpr float kSizePoints = 13.5F;
constexpr const char* kFont = "Segoe UI";
constexpr const char* kMargin = "  ";  // at both ends of a line
constexpr const char* kDots = "\xE2\x80\xA6";
constexpr base::PackedColor kBand = base::Rgb(24, 26, 30);
constexpr base::PackedColor kInk = base::Rgb(236, 236, 236);

}  // namespace

std::string Shortened(const std::string& text, const std::function<bool(const std::string&)>& fits) {
  if (fits(text)) return text;
  std::vector<std::size_t> ends{0};  // of each character
  while (ends.back() < text.size())
    ends.push_back(ends.back() + base::Utf8CharacterAt(text, ends.back()).length);
  const auto beginning = [&](std::size_t end) { return text.substr(0, end) + kDots; };
  const auto tooLong =
      std::ranges::partition_point(ends, [&](std::size_t end) { return fits(beginning(end)); });
  return beginning(tooLong == ends.begin() ? 0 : *(tooLong - 1));
}

NotePanel::NotePanel(forms::Form& form, const char* name, std::size_t mostLines) : form_(form) {
  for (std::size_t i = 0; i < mostLines; ++i) {
    auto label = std::make_unique<forms::Label>(form, name + std::to_string(i));
    label->setVisible(false);
    label->setFont({.name = kFont, .sizePoints = kSizePoints});
    label->setBackColor(kBand);
    label->setForeColor(kInk);
    labels_.push_back(std::move(label));
  }
}

std::vector<forms::Label*> NotePanel::labels() const {
  std::vector<forms::Label*> all;
  for (const auto& label : labels_) all.push_back(label.get());
  return all;
}

void NotePanel::setLines(const std::vector<std::string>& lines, float widthTwips) {
  const auto padded = [](const std::string& line) { return kMargin + line + kMargin; };
  const auto perPixel = static_cast<float>(form_.twipsPerPixel());
  const auto fits = [&](const std::string& line) {
    const base::PixelSize size = form_.host()->measureText(labels_.front()->font(), padded(line));
    return static_cast<float>(size.width) * perPixel <= widthTwips;
  };
  used_ = std::min(lines.size(), labels_.size());
  width_ = 0;
  for (std::size_t i = 0; i < used_; ++i) {
    labels_[i]->setCaption(padded(Shortened(lines[i], fits)));
    labels_[i]->sizeToText();
    width_ = std::max(width_, labels_[i]->width());
  }
  for (std::size_t i = 0; i < used_; ++i) labels_[i]->setWidth(width_);
  setVisible(visible_);
}

float NotePanel::height() const {
  return used_ == 0 ? 0 : static_cast<float>(used_) * labels_.front()->height();
}

void NotePanel::setPlace(float left, float top) {
  for (std::size_t i = 0; i < used_; ++i) {
    labels_[i]->setLeft(left);
    labels_[i]->setTop(top + static_cast<float>(i) * labels_[i]->height());
  }
}

void NotePanel::setVisible(bool visible) {
  visible_ = visible;
  for (std::size_t i = 0; i < labels_.size(); ++i) labels_[i]->setVisible(visible && i < used_);
}

}  // namespace saver

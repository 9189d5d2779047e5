#include "saver/caption.h"

#include <algorithm>
#include <vector>

#include "base/errors.h"
#include "base/number_text.h"
#include "base/rounding.h"
#include "forms/form.h"
#include "saver/placement.h"

namespace saver {

namespace {

constexpr float kExtraWidth = 200;  // twips by which the label is wider than its text

// Gives a font property the value that a text stands for; a text that stands for none leaves it as it was.
template <typename Property, typename Convert>
void TakeOver(Property& property, const std::string& text, Convert convert) {
  try {
    property = convert(text);
  } catch (const base::RunTimeError&) {
    return;
  }
}

base::Font FontOf(const settings::SettingsRecord& record, base::Font font) {
  if (!record.newFontName.empty()) font.name = record.newFontName;
  TakeOver(font.sizePoints, record.newFontSize, base::StrictSingle);
  TakeOver(font.bold, record.newFontBold, base::StrictBoolean);
  TakeOver(font.italic, record.newFontItalic, base::StrictBoolean);
  TakeOver(font.underline, record.newFontUnderline, base::StrictBoolean);
  TakeOver(font.strikethrough, record.newFontFontStrikethru, base::StrictBoolean);
  return font;
}

}  // namespace

Caption::Caption(forms::Label& label, const settings::SaverSettings& settings)
    : label_(label), settings_(settings) {}

void Caption::setRoom(const CaptionRoom& room) {
  label_.setLeft(label_.left() + room.left - this->room().left);  // it goes along
  label_.setTop(room.top);
  room_ = room;
}

void Caption::prepare() {
  label_.setFont(FontOf(settings_.record, label_.font()));
  label_.setForeColor(base::StrictInt32(settings_.record.newFontForeColor));
  label_.setTop(room().top);
  const std::size_t total = settings_.imageCaptions.empty() ? 0 : settings_.imageCaptions.size() - 1;
  const std::optional<std::size_t> first = FirstRealCaption(std::span(settings_.imageCaptions).first(total));
  if (first) {
    label_.setCaption(settings_.imageCaptions[*first]);
    bandHeight_ = base::ToInt16(label_.height());
  } else if (mayComeFromTemplate()) {
    bandHeight_ = base::ToInt16(label_.height());  // one line of any text
  } else if (total > 0) {
    bandHeight_ = 0;
    label_.setHeight(0);
  }
}

void Caption::show(const std::string& text) {
  label_.setVisible(false);
  label_.setCaption("");
  label_.setCaption(text);
  label_.sizeToText();
  label_.setWidth(label_.width() + kExtraWidth);
  const bool scrolling = scrolls();
  if (!scrolling) label_.setLeft(room().left + CenteredEdge(room().width, label_.width()));
  label_.setVisible(true);
  if (label_.caption().empty()) label_.setHeight(0);
  if (scrolling) label_.setLeft(room().left + room().width);
}

void Caption::ScrollerTimer_Timer() {
  const double speed = base::StrictDouble(settings_.record.scrollSpeed);
  const CaptionRoom room = this->room();
  label_.setLeft(room.left +
                 ScrolledCaptionLeft(label_.left() - room.left, label_.width(), speed, room.width));
}

void Caption::screenChanged() {
  const CaptionRoom room = this->room();
  label_.setLeft(scrolls() ? std::min(label_.left(), room.left + room.width)
                           : room.left + CenteredEdge(room.width, label_.width()));
}

// The last entry of the list stands for no picture. Pictures of followed folders have no caption of their
// own.
bool Caption::mayComeFromTemplate() const {
  if (settings_.record.captions.empty()) return false;
  const std::vector<std::string>& own = settings_.imageCaptions;
  return !settings_.folders.empty() ||
         (!own.empty() &&
          std::any_of(own.begin(), own.end() - 1, [](const auto& text) { return text.empty(); }));
}

bool Caption::scrolls() const { return base::StrictDouble(settings_.record.scroll) == 0; }

CaptionRoom Caption::room() const { return room_.value_or(CaptionRoom{.width = label_.form().width()}); }

std::optional<std::size_t> FirstRealCaption(std::span<const std::string> captions) {
  const auto found =
      std::ranges::find_if(captions, [](const std::string& text) { return !text.empty() && text != " "; });
  if (found == captions.end()) return std::nullopt;
  return static_cast<std::size_t>(found - captions.begin());
}

float ScrolledCaptionLeft(float left, float labelWidth, double scrollSpeed, float formWidth) {
  const auto scrolled = static_cast<float>(static_cast<double>(left) - scrollSpeed);
  return scrolled + labelWidth < 0 ? formWidth : scrolled;
}

}  // namespace saver

// What stands over the picture: the caption and the clock or countdown.
#include "base/errors.h"
#include "base/number_text.h"
#include "base/rounding.h"
#include "saver/caption.h"
#include "saver/clock_text.h"
#include "saver/form1.h"

namespace saver {

namespace {

constexpr int kOverlayIntervalMs = 100;

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

void Form1::PrepareCaption() {
  Label1.setFont(FontOf(settings_.record, Label1.font()));
  Label1.setForeColor(base::StrictInt32(settings_.record.newFontForeColor));
  const std::size_t total = settings_.imageCaptions.empty() ? 0 : settings_.imageCaptions.size() - 1;
  const std::optional<std::size_t> first = FirstRealCaption(std::span(settings_.imageCaptions).first(total));
  if (first) {
    Label1.setCaption(settings_.imageCaptions[*first]);
    captionHeight_ = base::ToInt16(Label1.height());
  } else if (total > 0) {
    captionHeight_ = 0;
    Label1.setHeight(0);
  }
}

void Form1::ShowCaption() {
  Label1.setVisible(false);
  Label1.setCaption("");
  const auto index = static_cast<std::size_t>(currentImageIndex_);
  const bool known = currentImageIndex_ >= 0 && index < settings_.imageCaptions.size();
  Label1.setCaption(known ? settings_.imageCaptions[index] : std::string());
  Label1.sizeToText();
  Label1.setWidth(Label1.width() + kCaptionExtraWidth);
  const bool scrolls = base::StrictDouble(settings_.record.scroll) == 0;
  if (!scrolls) Label1.setLeft(CenteredCaptionLeft(screenWidth(), Label1.width()));
  Label1.setVisible(true);
  if (Label1.caption().empty()) Label1.setHeight(0);
  if (scrolls) {
    Label1.setLeft(width());
    ScrollerTimer.setInterval(kScrollIntervalMs);
    ScrollerTimer.setEnabled(true);
  }
}

void Form1::ScrollerTimer_Timer() {
  const double speed = base::StrictDouble(settings_.record.scrollSpeed);
  Label1.setLeft(ScrolledCaptionLeft(Label1.left(), Label1.width(), speed, width()));
}

void Form1::PrepareClock() {
  const std::int32_t display = base::StrictInt32(settings_.record.timeDisplay);
  time.setTransparent(true);
  if (display != 1 && display != 2) {
    time.setVisible(false);
    time.setWidth(0);
    time.setHeight(0);
    timeTimer.setEnabled(false);
    return;
  }
  // The place is set once, so it is measured with the widest text that can come.
  time.setCaption(widestTimeText());
  time.setLeft(screenWidth() - time.width());
  time.setTop(screenHeight() - time.height());
  time.setCaption("");
  time.setForeColor(base::StrictInt32(settings_.record.newFontForeColor));
  time.setVisible(true);
  timeTimer.setInterval(kOverlayIntervalMs);
  timeTimer.setEnabled(true);
}

std::string Form1::widestTimeText() const {
  const os::LocalTime now = services_.clock.now();
  const auto widthOf = [this](const std::string& text) {
    return services_.stage.measureText(time.font(), text).width;
  };
  if (base::StrictInt32(settings_.record.timeDisplay) == 1)
    return WidestClockText(services_.dates, now, widthOf);
  try {
    const std::optional<Countdown> present = ReadCountdown(now, countdownTarget());
    return present ? WidestCountdownText(*present, widthOf) : std::string();
  } catch (const base::RunTimeError&) {
    return {};  // the first tick meets the error again, and ends the show
  }
}

base::CalendarDay Form1::countdownTarget() const {
  return base::ParseMonthFirstDate(settings_.countdownTarget);
}

void Form1::timeTimer_Timer() {
  if (base::StrictInt32(settings_.record.timeDisplay) == 1) {
    time.setCaption(os::GeneralDate(services_.dates, services_.clock.now()));
    return;
  }
  const std::optional<Countdown> reading = ReadCountdown(services_.clock.now(), countdownTarget());
  if (!reading) {
    timeTimer.setEnabled(false);
    return;
  }
  countdown_ = *reading;
  time.setCaption(CountdownText(countdown_));
}

}  // namespace saver

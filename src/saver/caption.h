// The caption over the picture: its font, its band at the top of the screen, its place, its scrolling.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "forms/texts.h"
#include "settings/load_settings.h"

namespace saver {

// A part of a form from a left edge on, in twips.
struct CaptionRoom {
  float left = 0;
  float top = 0;
  float width = 0;
};

class Caption {
 public:
  // `label` stands on a form that covers the screen. The settings are read from prepare() on.
  Caption(forms::Label& label, const settings::SaverSettings& settings);

  // The part of the form, in twips, in which the caption stands and scrolls; all of it where no other is set.
  void setRoom(const CaptionRoom& room);

  // Gives the label its font and colour, and measures the band. Throws base::RunTimeError for a colour that
  // is no number.
  void prepare();

  // Shows a text in the middle of the screen, or from beyond its right edge on, by the setting `scroll`.
  void show(const std::string& text);

  // True where captions scroll. Throws base::RunTimeError for a setting that is no number.
  bool scrolls() const;

  // Moves a scrolling caption on.
  void ScrollerTimer_Timer();

  // The form has taken the size of another screen.
  void screenChanged();

  // Twips at the top of the screen that floating pictures keep clear of; 0 when no picture has a caption, and
  // none can get one from a template.
  std::int16_t bandHeight() const { return bandHeight_; }

 private:
  CaptionRoom room() const;
  bool mayComeFromTemplate() const;

  forms::Label& label_;
  const settings::SaverSettings& settings_;
  std::optional<CaptionRoom> room_;
  std::int16_t bandHeight_ = 0;
};

// The caption whose label gives the band its height: the first that is neither empty nor a single blank.
// Without one the band has no height.
std::optional<std::size_t> FirstRealCaption(std::span<const std::string> captions);

// The left edge after one tick of the scroller: `scrollSpeed` twips further left. A caption whose right end
// has left the screen enters again at `formWidth`, beyond the right edge.
float ScrolledCaptionLeft(float left, float labelWidth, double scrollSpeed, float formWidth);

}  // namespace saver

// What stands where on the settings dialog, as tables.
#pragma once

#include <span>
#include <string_view>

namespace dialog {

// Pixels at 96 dots per inch, relative to the container. The dialog converts them to twips.
struct Place {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

constexpr int kTwipsPerTablePixel = 15;
constexpr int kClientWidth = 644;
constexpr int kClientHeight = 530;

struct ControlRow {
  std::string_view name;
  std::string_view container;  // empty = the form itself
  Place place;
  std::string_view caption;  // of a text box: its initial text
  std::string_view toolTip;
  std::string_view accessibleName;  // for a control that shows no text of its own
};

struct RangeRow {
  std::string_view name;
  int min = 0;
  int max = 0;
  int largeChange = 1;
  int tickFrequency = 1;
};

// A combo box with the numbers from first to last, in two digits at least.
struct ComboRow {
  std::string_view name;
  int first = 0;
  int last = 0;
  std::string_view initialText;
};

std::span<const std::string_view> TabCaptions();
std::span<const ControlRow> ControlTable();
std::span<const RangeRow> RangeTable();
std::span<const ComboRow> ComboTable();

}  // namespace dialog

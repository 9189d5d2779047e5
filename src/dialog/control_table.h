// What stands where on the settings dialog, as tables.
#pragma once

#include <span>
#include <string_view>

#include "forms/control.h"
#include "forms/lists.h"
#include "forms/ranges.h"

namespace dialog {

class Form2;

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

// As a row's hint: the pointer over the control takes the last hint away.
inline constexpr char kClearsHint[] = "";

struct ControlRow {
  forms::Control& (*control)(Form2& form);
  forms::Control* (*container)(Form2& form);  // gives null for the form itself
  Place place;
  std::string_view caption;
  std::string_view toolTip;
  std::string_view accessibleName;  // for a control that shows no text of its own
  const char* hint = nullptr;       // what the status bar says of it; null leaves the last hint standing
};

struct RangeRow {
  forms::RangeControl& (*control)(Form2& form);
  int min = 0;
  int max = 0;
  int largeChange = 1;
  int tickFrequency = 1;
};

// A combo box with the numbers from first to last, in two digits at least.
struct ComboRow {
  forms::ComboBox Form2::*control;
  int first = 0;
  int last = 0;
  std::string_view initialText;
};

std::span<const std::string_view> TabCaptions();
std::span<const ControlRow> ControlTable();
std::span<const RangeRow> RangeTable();
std::span<const ComboRow> ComboTable();

}  // namespace dialog

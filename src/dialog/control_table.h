// What stands where on the settings dialog, as tables.
#pragma once

#include <span>
#include <string_view>

#include "dialog/form_rows.h"
#include "forms/lists.h"

namespace dialog {

class Form2;

constexpr int kClientWidth = 644;
constexpr int kClientHeight = 530;

using ControlRow = ControlRowOf<Form2>;
using RangeRow = RangeRowOf<Form2>;

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

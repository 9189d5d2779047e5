// What the status bar says about the control under the pointer.
#pragma once

#include <span>
#include <string_view>

namespace dialog {

struct HintRow {
  std::string_view control;
  std::string_view hint;
};

std::span<const HintRow> HintTable();

// Controls over which the hint is cleared; over all others without a row it is left standing.
std::span<const std::string_view> HintClearingControls();

}  // namespace dialog

// What stands where on the form of more options, as tables; and how it shows each setting.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "dialog/form_rows.h"
#include "dialog/more_options.h"

namespace dialog {

std::span<const std::string_view> MoreTabCaptions();
std::span<const ControlRowOf<MoreOptions>> MoreControlTable();
std::span<const RangeRowOf<MoreOptions>> MoreRangeTable();
std::span<const MoreOptions::Need> MoreNeedTable();

// One row a setting.
struct MoreOptionRow {
  settings::Field field;

  // Shows what the show makes of a text. No event.
  void (*show)(MoreOptions& form, const std::string& text);

  // From now on what the user chooses goes into the form's record.
  void (*connect)(MoreOptions& form);
};

std::span<const MoreOptionRow> MoreOptionTable();

}  // namespace dialog

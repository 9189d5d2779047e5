// What stands where on a form, as rows of tables.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "forms/form.h"
#include "forms/ranges.h"
#include "forms/texts.h"

namespace dialog {

// Pixels at 96 dots per inch, relative to the container. A form converts them to twips.
struct Place {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

constexpr int kTwipsPerTablePixel = 15;

constexpr float Twips(int tablePixels) { return static_cast<float>(tablePixels * kTwipsPerTablePixel); }

// As a row's hint: the pointer over the control takes the last hint away.
inline constexpr char kClearsHint[] = "";

template <typename FormType>
struct ControlRowOf {
  forms::Control& (*control)(FormType& form);
  forms::Control* (*container)(FormType& form);  // gives null for the form itself
  Place place;
  std::string_view caption;
  std::string_view toolTip;
  std::string_view accessibleName;  // for a control that shows no text of its own
  const char* hint = nullptr;       // what the status bar says of it; null leaves the last hint standing
};

template <typename FormType>
struct RangeRowOf {
  forms::RangeControl& (*control)(FormType& form);
  int min = 0;
  int max = 0;
  int largeChange = 1;
  int tickFrequency = 1;
};

template <typename FormType, typename ControlType>
FormType OwnerOf(ControlType FormType::*);

// The form of which something is a member.
template <auto kMember>
using FormOf = decltype(OwnerOf(kMember));

// A control of the form, for a row of a table.
template <auto kMember>
forms::Control& It(FormOf<kMember>& form) {
  return form.*kMember;
}

template <auto kMember>
forms::RangeControl& Range(FormOf<kMember>& form) {
  return form.*kMember;
}

// What a control stands on.
template <auto kMember>
forms::Control* On(FormOf<kMember>& form) {
  return &(form.*kMember);
}

template <typename FormType>
forms::Control* OnForm(FormType&) {
  return nullptr;
}

// Texts of a table as a control takes them.
std::vector<std::string> Texts(std::span<const std::string_view> texts);

// Puts a control to its place, with its texts.
void Arrange(forms::Control& control, forms::Control* container, const Place& place, std::string_view caption,
             std::string_view toolTip, std::string_view accessibleName);

// Gives a slider or a scroll bar its limits and steps.
void ArrangeRange(forms::RangeControl& control, int min, int max, int largeChange, int tickFrequency);

// Puts all controls of a form to their places.
template <typename FormType>
void LayOut(FormType& form, std::span<const ControlRowOf<FormType>> controls,
            std::span<const RangeRowOf<FormType>> ranges) {
  for (const ControlRowOf<FormType>& row : controls) {
    Arrange(row.control(form), row.container(form), row.place, row.caption, row.toolTip, row.accessibleName);
  }
  for (const RangeRowOf<FormType>& row : ranges) {
    ArrangeRange(row.control(form), row.min, row.max, row.largeChange, row.tickFrequency);
  }
}

// From now on the pointer over a control, or over the bare form, shows its hint in the bar's first panel.
template <typename FormType>
void ConnectHints(FormType& form, std::span<const ControlRowOf<FormType>> controls, forms::StatusBar& bar) {
  const auto say = [&bar](const char* hint) {
    return [&bar, hint](const forms::MouseEvent&) { bar.setPanelText(1, hint); };
  };
  for (const ControlRowOf<FormType>& row : controls) {
    if (row.hint) row.control(form).onMouseMove = say(row.hint);
  }
  form.onMouseMove = say(kClearsHint);
}

}  // namespace dialog

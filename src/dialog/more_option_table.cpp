// How the form of more options shows each setting and takes it back.
#include <algorithm>
#include <array>

#include "base/number_text.h"
#include "base/text.h"
#include "dialog/more_table.h"
#include "settings/extra_values.h"

namespace dialog {

namespace {

using M = MoreOptions;
using R = settings::SettingsRecord;
using Text = const std::string&;

// Puts another value into the record.
void Choose(M& form, settings::Field field, std::string text) {
  form.choices.record.*field = std::move(text);
  form.showState();
}

// A check box: "1", or nothing.
template <settings::Field kField, auto kBox>
constexpr MoreOptionRow kFlag{
    kField,
    [](M& form, Text text) { (form.*kBox).setDesignValue(text == "1" ? 1 : 0); },
    [](M& form) {
      (form.*kBox).onClick = [&form] { Choose(form, kField, (form.*kBox).value() == 1 ? "1" : ""); };
    },
};

// The place of a text among a key's values, of which the first is that of its absence and stands for every
// text that is none of them.
std::size_t PlaceOf(std::span<const std::string_view> values, std::string_view text) {
  const auto found = std::ranges::find_if(
      values, [&](std::string_view value) { return base::EqualAsciiBlind(value, text); });
  return found == values.end() ? 0 : static_cast<std::size_t>(found - values.begin());
}

template <const auto& kValues, auto... kOptions>
void ShowChoice(M& form, Text text) {
  const std::size_t chosen = PlaceOf(kValues, text);
  std::size_t number = 0;
  ((number++ == chosen ? (form.*kOptions).setDesignValue(true) : void()), ...);
}

// A click on what is chosen already keeps the text as the file has it.
template <settings::Field kField, const auto& kValues, auto... kOptions>
void ConnectChoice(M& form) {
  std::size_t number = 0;
  (((form.*kOptions).onClick =
        [&form, chosen = number++] {
          if (PlaceOf(kValues, form.choices.record.*kField) == chosen) return;
          Choose(form, kField, std::string(kValues[chosen]));
        }),
   ...);
}

// Options, one for each value of a key.
template <settings::Field kField, const auto& kValues, auto... kOptions>
constexpr MoreOptionRow kChoice{kField, ShowChoice<kValues, kOptions...>,
                                ConnectChoice<kField, kValues, kOptions...>};

constexpr std::array<std::string_view, 5> kScreens = {"", "black", "same", "different", "span"};
constexpr std::array<std::string_view, 3> kFits = {"", "whole", "fill"};
constexpr std::array<std::string_view, 3> kChanges = {"", "crossfade", "direct"};
constexpr std::array<std::string_view, 2> kSurrounds = {"", "blur"};

// At the left end of the slider stands the absence of the key.
int TimePosition(Text text) {
  const int ms = settings::ParseTransitionTime(text).value_or(0);
  return (ms + M::kTimeStepMs / 2) / M::kTimeStepMs;
}

template <auto kSlider>
std::string NumberOrNothing(const M& form, int step) {
  const int value = (form.*kSlider).value() * step;
  return value == 0 ? std::string() : base::NumberText(std::int32_t{value});
}

constexpr MoreOptionRow kRows[] = {
    kChoice<&R::otherScreens, kScreens, &M::screensOne, &M::screensBlack, &M::screensSame,
            &M::screensDifferent, &M::screensSpan>,
    kFlag<&R::matchOrientation, &M::matchOrientation>,
    kFlag<&R::shuffle, &M::shuffle>,
    kFlag<&R::resume, &M::resume>,
    kChoice<&R::fit, kFits, &M::fitAsOnTab, &M::fitWhole, &M::fitFill>,
    {&R::surround,
     [](M& form, Text text) { form.surround.setDesignValue(static_cast<int>(PlaceOf(kSurrounds, text))); },
     [](M& form) {
       form.surround.onClick = [&form] {
         Choose(form, &R::surround,
                std::string(kSurrounds.at(static_cast<std::size_t>(form.surround.value()))));
       };
     }},
    kChoice<&R::change, kChanges, &M::changeAsOnTab, &M::changeCrossfade, &M::changeDirect>,
    {&R::transitionTime, [](M& form, Text text) { form.timeSlider.setDesignValue(TimePosition(text)); },
     [](M& form) {
       form.timeSlider.onChange = [&form] {
         Choose(form, &R::transitionTime, NumberOrNothing<&M::timeSlider>(form, M::kTimeStepMs));
       };
     }},
    {&R::panZoom, [](M& form, Text text) { form.panZoomSlider.setDesignValue(settings::ParsePanZoom(text)); },
     [](M& form) {
       form.panZoomSlider.onChange = [&form] {
         Choose(form, &R::panZoom, NumberOrNothing<&M::panZoomSlider>(form, 1));
       };
     }},
    {&R::captions, [](M& form, Text text) { form.words.setDesignText(text); },
     [](M& form) {
       form.templateCombo.onClick = [&form] { form.templateCombo_Click(); };
       form.words.onChange = [&form] { form.words_Change(); };
     }},
    kFlag<&R::shade, &M::shade>,
    kFlag<&R::keys, &M::keys>,
    kFlag<&R::care, &M::care>,
    {&R::subfolders, [](M& form, Text text) { form.subfolders.setDesignValue(text == "1" ? 1 : 0); },
     [](M& form) { form.subfolders.onClick = [&form] { form.subfolders_Click(); }; }},
};

}  // namespace

std::span<const MoreOptionRow> MoreOptionTable() { return kRows; }

}  // namespace dialog

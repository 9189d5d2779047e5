// Templates of captions that are offered ready-made.
#pragma once

#include <array>
#include <string_view>

namespace dialog {

struct CaptionTemplate {
  std::string_view called;
  std::string_view text;
};

inline constexpr auto kCaptionTemplates = std::to_array<CaptionTemplate>({
    {"No captions by themselves", ""},
    {"Name", "{name}"},
    {"Title and date", "{title}| - {date}|"},
    {"Name and date", "{name}| - {date}|"},
    {"Folder and name", "{folder}: {name}"},
    {"Date and time", "{date}| {time}|"},
    {"Name and camera", "{name}| ({camera})|"},
    {"Number", "{number} of {total}"},
});

// Stands for every template that is none of these.
inline constexpr std::string_view kOwnTemplate = "My own words";

}  // namespace dialog

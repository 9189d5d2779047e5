// What the message boxes of more than one window say.
#pragma once

namespace auxwin {

inline constexpr char kCannotLoadImage[] =
    "Cannot load image file properly.\r\nYou need to reload a new one.";

}  // namespace auxwin

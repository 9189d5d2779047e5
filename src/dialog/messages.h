// What the settings dialog's message boxes say.
#pragma once

namespace dialog {

inline constexpr char kCouldNotLoad[] =
    "Could not load screen saver properly. Please check all background and regular loaded images. If problem "
    "persists, please reinstall screen saver.";
inline constexpr char kCouldNotLoadBackground[] =
    "Could not load Background Image correctly. Please reload a new image.";

}  // namespace dialog

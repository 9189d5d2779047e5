// What the settings dialog says in message boxes and in the second panel of its status bar.
#pragma once

namespace dialog {

// Loading.
inline constexpr char kCouldNotLoad[] =
    "Could not load screen saver properly. Please check all background and regular loaded images. If problem "
    "persists, please reinstall screen saver.";
inline constexpr char kCouldNotLoadBackground[] =
    "Could not load Background Image correctly. Please reload a new image.";

// The picture list. Moving without a selection has the text of removing.
inline constexpr char kNothingSelected[] = "Nothing was selected to remove.";
inline constexpr char kRemoveAllQuestion[] = "Do you really want to remove all loaded images?";
inline constexpr char kMissingImage[] = "\r\nThis image cannot be found.";
inline constexpr char kMissingImages[] = "Images in gray cannot be found.";
inline constexpr char kImageFirst[] = "An image must be loaded first.";

// The background picture.
inline constexpr char kOneBackgroundOnly[] = "You can only display 1 background image.";
inline constexpr char kNoBackgroundToRemove[] = "Nothing to remove.";

// Followed folders.
inline constexpr char kFolderPathTooLong[] =
    "The path of this folder is longer than 254 characters.\r\nMove it to a folder with a shorter path and "
    "add "
    "it again.";

// Saving.
inline constexpr char kNoImages[] =
    "There are no images loaded in the Screen Saver. Load at least one image file to be displayed.";
inline constexpr char kNoBackgroundImage[] =
    "You must enter a background image for the 'Custom background Image' feature or make another background "
    "selection.";
inline constexpr char kInvalidDate[] = "Countdown date is invalid. Please choose a different date.";
inline constexpr char kNotSavedNoImages[] = "Not saved: there are no images.";
inline constexpr char kNotSavedNoBackground[] = "Not saved: no background image is chosen.";
inline constexpr char kNotSavedInvalidDate[] = "Not saved: the countdown date is invalid.";
inline constexpr char kFolderReadOnly[] = "Settings cannot be saved in this folder.";
inline constexpr char kFileReadOnly[] = "Settings cannot be saved: zbfaone.ini is read-only.";
inline constexpr char kMoreThanTheShowCanUse[] = "The show can use 32,767 pictures at most.";

// What failed without a message of its own; the reason follows on the next line.
inline constexpr char kCouldNotBeDone[] = "This could not be done.";
inline constexpr char kNotEnoughMemory[] = "There is not enough memory.";

}  // namespace dialog

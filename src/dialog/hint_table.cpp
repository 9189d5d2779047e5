#include "dialog/hint_table.h"

namespace dialog {

namespace {

// clang-format off
constexpr HintRow kHints[] = {
    {"Cancel",
     "Cancel Settings: Cancel and do not save screen saver settings"},
    {"Ok",
     "Save Settings: Save all screen saver settings"},
    {"middleOption",
     "Caption: Center the caption in the middle of the screen"},
    {"scrollOption",
     "Caption: Scroll the caption across the screen"},
    {"scrollSlider",
     "Scrolling Speed: Speed of caption scrolling across the screen"},
    {"Picture2",
     "Font: Color of caption font"},
    {"p_caption",
     "Caption: Caption to be displayed with image below"},
    {"caption_clear",
     "Caption: Clear the caption to be displayed with image below"},
    {"font",
     "Caption: Change the caption's size, color, and font"},
    {"photo1",
     "Image: Thumbnail size of image that will be displayed in screen saver"},
    {"EnlargeCommand",
     "Image: Actual size of Image that will be displayed in screen saver"},
    {"ImagePosition",
     "Image Postion: Position of image within a group of images to be displayed"},
    {"Text3",
     "Image Total: Total amount of images to be displayed in screen saver"},
    {"add",
     "Add: Load an image to be displayed in screen saver"},
    {"remove",
     "Remove: Remove a selected loaded image from the screen saver"},
    {"RemoveAll",
     "Remove All: Remove all loaded images from the screen saver"},
    {"FolderCommand",
     "Multiple Images: Add several images from a selected folder"},
    {"up",
     "File Up: Move a selected image file up in the group"},
    {"down",
     "File Down: Move a selected image file down in the group"},
    {"List1",
     "Images: Loaded images to be displayed in screen saver"},
    {"Label13",
     "Image Size: Display all loaded images less than a percentage of the screen"},
    {"PercentSlider",
     "Image Size: Display all loaded images less than a percentage of the screen"},
    {"pCenter",
     "Image Movement: Center all loaded images"},
    {"pRandom",
     "Image Movement: Float all loaded images around the screen"},
    {"floatSlider",
     "Image Movement: Float speed of loaded images"},
    {"Frame4",
     "Image transitions: Image effects on loaded images"},
    {"aChange",
     "Change Image: Display next image after a selected amount of time"},
    {"nChange",
     "Change Image: Always display the first image. Never Display the next image"},
    {"Random_select",
     "Change Image: Randomly display all loaded images"},
    {"Text2",
     "Change Image: Display loaded image after (x) amount of seconds"},
    {"backgroundDesktop",
     "Background Selection: Display your desktop as a background"},
    {"backgroundColor",
     "Background Selection: Display a color as a background"},
    {"backgroundCustomImage",
     "Background Selection: Display an image as a background"},
    {"backgroundColorGradient",
     "Background Selection: Display a gradient color as a background"},
    {"frameBackgroundColor",
     "Background Color: Display your favorite color as a background"},
    {"frameCustomImage",
     "Custom Background Image: Display a loaded image as a background"},
    {"frameColorGradient",
     "Gradient Background Color: Display a gradient color as a background"},
    {"Frame5",
     "Mouse Sensitivity: Close screen saver based upon mouse sensitivity"},
    {"Frame2",
     "Countdown: Countdown to a special date in your screen saver"},
};
// clang-format on

// The bare form clears the hint too.
constexpr std::string_view kClearing[] = {"SSTab1", "Frame1", "Frame3", "Frame6", "placement"};

}  // namespace

std::span<const HintRow> HintTable() { return kHints; }
std::span<const std::string_view> HintClearingControls() { return kClearing; }

}  // namespace dialog

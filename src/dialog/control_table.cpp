#include "dialog/control_table.h"

#include "dialog/form2.h"

namespace dialog {

namespace {

using F = Form2;

template <int kTab>
forms::Control* OnTab(Form2& form) {
  return &form.SSTab1.page(kTab);
}

constexpr char kLiveName[] = "Preview of the show";
constexpr char kLiveHint[] = "Preview: The show as these settings make it, in small";

constexpr std::string_view kTabCaptions[] = {
    " Loaded Images ", " Image Properties ",  " Background Color ", " Mouse Sensitivity ",
    " Image Size ",    " Image Transitions ", "  Image Caption  ",  " Countdown to Special Date ",
};

// clang-format off
constexpr ControlRow kControls[] = {
    {It<&F::SSTab1>, OnForm, {12, 12, 620, 436}, "", "", "Settings", kClearsHint},

    {It<&F::Label5_LoadedImages>, OnTab<0>, {16, 12, 300, 16}, "Loaded Image(s)", "", ""},
    {It<&F::List1>, OnTab<0>, {16, 32, 340, 206}, "", "Loaded images", "Loaded images",
     "Images: Loaded images to be displayed in screen saver"},
    {It<&F::up>, OnTab<0>, {362, 32, 30, 30}, "", "Move image up", "Move image up",
     "File Up: Move a selected image file up in the group"},
    {It<&F::down>, OnTab<0>, {362, 66, 30, 30}, "", "Move image down", "Move image down",
     "File Down: Move a selected image file down in the group"},
    {It<&F::ImagePosition>, OnTab<0>, {16, 244, 166, 24}, "", "Position of image", "Position",
     "Image Postion: Position of image within a group of images to be displayed"},
    {It<&F::Text3>, OnTab<0>, {190, 244, 166, 24}, "", "Total of images", "Total",
     "Image Total: Total amount of images to be displayed in screen saver"},
    {It<&F::add>, OnTab<0>, {16, 276, 79, 26}, "&Add...", "Add image", "",
     "Add: Load an image to be displayed in screen saver"},
    {It<&F::remove>, OnTab<0>, {103, 276, 79, 26}, "&Remove", "Remove image", "",
     "Remove: Remove a selected loaded image from the screen saver"},
    {It<&F::RemoveAll>, OnTab<0>, {190, 276, 79, 26}, "Remove All", "Remove all images", "",
     "Remove All: Remove all loaded images from the screen saver"},
    {It<&F::FolderCommand>, OnTab<0>, {277, 276, 79, 26}, "Fol&der...", "Add images from a folder", "",
     "Multiple Images: Add several images from a selected folder"},
    {It<&F::photo1>, OnTab<0>, {404, 32, 192, 206}, "", "Selected image", "Selected image",
     "Image: Thumbnail size of image that will be displayed in screen saver"},
    {It<&F::EnlargeCommand>, OnTab<0>, {404, 244, 192, 26}, "&Enlarge", "View image at its actual size", "",
     "Image: Actual size of Image that will be displayed in screen saver"},
    {It<&F::Label5_ImageCaption>, OnTab<0>, {16, 318, 300, 16}, "Image Caption", "", ""},
    {It<&F::p_caption>, OnTab<0>, {16, 338, 484, 24}, "", "Caption of image", "Image Caption",
     "Caption: Caption to be displayed with image below"},
    {It<&F::caption_clear>, OnTab<0>, {508, 337, 88, 26}, "C&lear", "Clear caption", "",
     "Caption: Clear the caption to be displayed with image below"},

    {It<&F::Frame1>, OnTab<1>, {16, 12, 580, 142}, "Change Image", "", "", kClearsHint},
    {It<&F::aChange>, On<&F::Frame1>, {16, 28, 110, 20}, "&After...", "Change image ", "",
     "Change Image: Display next image after a selected amount of time"},
    {It<&F::Text2>, On<&F::Frame1>, {136, 26, 64, 24}, "", "Time interval (seconds)", "Seconds",
     "Change Image: Display loaded image after (x) amount of seconds"},
    {It<&F::changeVScroll1>, On<&F::Frame1>, {201, 26, 18, 24}, "", "", "Seconds"},
    {It<&F::Label3>, On<&F::Frame1>, {228, 30, 120, 16}, "Seconds", "", ""},
    {It<&F::nChange>, On<&F::Frame1>, {16, 60, 110, 20}, "&Never", "Never change image", "",
     "Change Image: Always display the first image. Never Display the next image"},
    {It<&F::Random_select>, On<&F::Frame1>, {16, 102, 200, 20}, "Random Order", "Display images in random order", "",
     "Change Image: Randomly display all loaded images"},
    {It<&F::placement>, OnTab<1>, {16, 166, 580, 142}, "Image Movement", "", "", kClearsHint},
    {It<&F::pCenter>, On<&F::placement>, {16, 28, 110, 20}, "&Center", "Do not float image", "",
     "Image Movement: Center all loaded images"},
    {It<&F::pRandom>, On<&F::placement>, {16, 60, 110, 20}, "&Float", "Float image", "",
     "Image Movement: Float all loaded images around the screen"},
    {It<&F::Label5_FloatSpeed>, On<&F::placement>, {34, 102, 92, 16}, "Float Speed", "", ""},
    {It<&F::floatSlider>, On<&F::placement>, {182, 94, 300, 34}, "", "", "Float Speed",
     "Image Movement: Float speed of loaded images"},
    {It<&F::Label11>, On<&F::placement>, {136, 102, 42, 16}, "Slow", "", ""},
    {It<&F::Label7>, On<&F::placement>, {486, 102, 60, 16}, "Fast", "", ""},

    {It<&F::backgroundDesktop>, OnTab<2>, {16, 20, 140, 20}, "Desktop ", "Display desktop as background", "",
     "Background Selection: Display your desktop as a background"},
    {It<&F::backgroundColor>, OnTab<2>, {16, 48, 140, 20}, "Solid Color", "Display background color", "",
     "Background Selection: Display a color as a background"},
    {It<&F::backgroundCustomImage>, OnTab<2>, {16, 76, 140, 20}, "Custom  Image", "Display image as background", "",
     "Background Selection: Display an image as a background"},
    {It<&F::backgroundColorGradient>, OnTab<2>, {16, 104, 140, 20}, "Gradient Color", "Display gradient background color", "",
     "Background Selection: Display a gradient color as a background"},
    {It<&F::frameBackgroundColor>, OnTab<2>, {168, 12, 428, 64}, "Solid Color", "", "",
     "Background Color: Display your favorite color as a background"},
    {It<&F::Picture1>, On<&F::frameBackgroundColor>, {16, 25, 64, 24}, "", "Background color", "Background color"},
    {It<&F::backColorClick>, On<&F::frameBackgroundColor>, {92, 24, 120, 26}, "&Select Color...", "Select background color", ""},
    {It<&F::frameCustomImage>, OnTab<2>, {168, 84, 428, 132}, "Custom Image", "", "",
     "Custom Background Image: Display a loaded image as a background"},
    {It<&F::backgroundImageFile>, On<&F::frameCustomImage>, {16, 26, 276, 24}, "", "Background image", "Background image"},
    {It<&F::addBackImg>, On<&F::frameCustomImage>, {16, 58, 88, 26}, "&Load...", "Load background image", ""},
    {It<&F::removeBackImg>, On<&F::frameCustomImage>, {112, 58, 88, 26}, "Remove", "Remove background image", ""},
    {It<&F::CenterOption>, On<&F::frameCustomImage>, {16, 96, 84, 20}, "Center", "Center background image", ""},
    {It<&F::FullScreenOption>, On<&F::frameCustomImage>, {104, 96, 104, 20}, "Full Screen", "Display background image full screen", ""},
    {It<&F::TileOption>, On<&F::frameCustomImage>, {212, 96, 80, 20}, "Tile", "Tile background image", ""},
    {It<&F::Image1>, On<&F::frameCustomImage>, {304, 26, 108, 90}, "", "", "Background image"},
    {It<&F::frameColorGradient>, OnTab<2>, {168, 224, 428, 140}, "Gradient Color", "", "",
     "Gradient Background Color: Display a gradient color as a background"},
    {It<&F::redLabel>, On<&F::frameColorGradient>, {16, 34, 44, 16}, "Red", "", ""},
    {It<&F::redSlider>, On<&F::frameColorGradient>, {60, 26, 196, 34}, "", "Dither red", "Dither red"},
    {It<&F::redPicture>, On<&F::frameColorGradient>, {260, 30, 32, 24}, "", "", "Red"},
    {It<&F::greenLabel>, On<&F::frameColorGradient>, {16, 69, 44, 16}, "Green", "", ""},
    {It<&F::greenSlider>, On<&F::frameColorGradient>, {60, 61, 196, 34}, "", "Dither green", "Dither green"},
    {It<&F::greenPicture>, On<&F::frameColorGradient>, {260, 65, 32, 24}, "", "", "Green"},
    {It<&F::blueLabel>, On<&F::frameColorGradient>, {16, 104, 44, 16}, "Blue", "", ""},
    {It<&F::blueSlider>, On<&F::frameColorGradient>, {60, 96, 196, 34}, "", "Dither blue", "Dither blue"},
    {It<&F::bluePicture>, On<&F::frameColorGradient>, {260, 100, 32, 24}, "", "", "Blue"},
    {It<&F::GradientPicture>, On<&F::frameColorGradient>, {304, 30, 108, 94}, "", "Gradient background color", "Gradient background color"},

    {It<&F::Frame5>, OnTab<3>, {16, 12, 580, 118}, "Mouse Sensitivity", "", "",
     "Mouse Sensitivity: Close screen saver based upon mouse sensitivity"},
    {It<&F::MouseSensitiveSlider>, On<&F::Frame5>, {62, 30, 420, 34}, "", "Mouse sensitivity", "Mouse sensitivity"},
    {It<&F::Label8>, On<&F::Frame5>, {16, 38, 42, 16}, "Slow", "", ""},
    {It<&F::Label9>, On<&F::Frame5>, {486, 38, 60, 16}, "Quick", "", ""},
    {It<&F::defaultMouseSensitivity>, On<&F::Frame5>, {70, 74, 88, 26}, "Default", "Default mouse sensitivity", ""},

    {It<&F::Frame6>, OnTab<4>, {16, 12, 580, 118}, "Image Size", "", "", kClearsHint},
    {It<&F::Label13>, On<&F::Frame6>, {16, 32, 146, 16}, "Display Images less than", "", "",
     "Image Size: Display all loaded images less than a percentage of the screen"},
    {It<&F::percentLabel>, On<&F::Frame6>, {164, 32, 34, 16}, "", "", ""},
    {It<&F::Label12>, On<&F::Frame6>, {200, 32, 160, 16}, "of Monitor Screen", "", ""},
    {It<&F::PercentSlider>, On<&F::Frame6>, {62, 62, 420, 34}, "", "", "Display Images less than",
     "Image Size: Display all loaded images less than a percentage of the screen"},
    {It<&F::Label15>, On<&F::Frame6>, {16, 70, 42, 16}, "Min", "", ""},
    {It<&F::Label14>, On<&F::Frame6>, {486, 70, 60, 16}, "Max", "", ""},

    {It<&F::Frame4>, OnTab<5>, {16, 12, 580, 128}, "Image Transition Effects", "", "",
     "Image transitions: Image effects on loaded images"},
    {It<&F::Standard>, On<&F::Frame4>, {16, 30, 170, 20}, "Standard", "", ""},
    {It<&F::LWipe>, On<&F::Frame4>, {16, 60, 170, 20}, "Left Wipe", "", ""},
    {It<&F::RWipe>, On<&F::Frame4>, {16, 90, 170, 20}, "Right Wipe", "", ""},
    {It<&F::RLWipe>, On<&F::Frame4>, {202, 30, 180, 20}, "Right and Left Wipe", "", ""},
    {It<&F::UDWipe>, On<&F::Frame4>, {202, 60, 180, 20}, "Up and Down Wipe", "", ""},
    {It<&F::CenterWipe>, On<&F::Frame4>, {202, 90, 180, 20}, "Center Wipe", "", ""},
    {It<&F::HorizontalBlinds>, On<&F::Frame4>, {398, 30, 166, 20}, "Horizontal Blinds", "", ""},
    {It<&F::VerticalBlinds>, On<&F::Frame4>, {398, 60, 166, 20}, "Vertical Blinds", "", ""},
    {It<&F::Fade>, On<&F::Frame4>, {398, 90, 166, 20}, "Fade", "", ""},

    {It<&F::Frame3>, OnTab<6>, {16, 12, 580, 100}, "Scrolling Speed", "", "", kClearsHint},
    {It<&F::scrollOption>, On<&F::Frame3>, {16, 28, 110, 20}, "Scrolling ", "Scrolling caption", "",
     "Caption: Scroll the caption across the screen"},
    {It<&F::scrollSlider>, On<&F::Frame3>, {182, 22, 300, 34}, "", "", "Scrolling Speed",
     "Scrolling Speed: Speed of caption scrolling across the screen"},
    {It<&F::scrollSlowLabel>, On<&F::Frame3>, {136, 30, 42, 16}, "Slow", "", ""},
    {It<&F::scrollFastLabel>, On<&F::Frame3>, {486, 30, 60, 16}, "Fast", "", ""},
    {It<&F::middleOption>, On<&F::Frame3>, {16, 60, 110, 20}, "Center", "Center caption", "",
     "Caption: Center the caption in the middle of the screen"},
    {It<&F::Frame7>, OnTab<6>, {16, 124, 580, 68}, "Caption Color", "", ""},
    {It<&F::Picture2>, On<&F::Frame7>, {16, 27, 64, 24}, "", "Font color", "Font color",
     "Font: Color of caption font"},
    {It<&F::fontColorLabel>, On<&F::Frame7>, {92, 31, 90, 16}, "Font Color", "", ""},
    {It<&F::font>, On<&F::Frame7>, {190, 26, 104, 26}, "&Font Style", "Font type, color and size", "",
     "Caption: Change the caption's size, color, and font"},

    {It<&F::Frame2>, OnTab<7>, {16, 12, 580, 180}, "Countdown To Special Date", "", "",
     "Countdown: Countdown to a special date in your screen saver"},
    {It<&F::noneOption>, On<&F::Frame2>, {16, 28, 160, 20}, "None", "Display Nothing", ""},
    {It<&F::timeOption>, On<&F::Frame2>, {16, 56, 160, 20}, "Time and Date", "Current date and time", ""},
    {It<&F::yearOption>, On<&F::Frame2>, {16, 84, 160, 20}, "Countdown", "Year 2000 countdown", ""},
    {It<&F::monthLabel>, On<&F::Frame2>, {34, 114, 84, 16}, "Month", "", ""},
    {It<&F::monthCombo>, On<&F::Frame2>, {34, 134, 84, 24}, "", "", "Month"},
    {It<&F::dayLabel>, On<&F::Frame2>, {130, 114, 84, 16}, "Day", "", ""},
    {It<&F::dayCombo>, On<&F::Frame2>, {130, 134, 84, 24}, "", "", "Day"},
    {It<&F::yearLabel>, On<&F::Frame2>, {226, 114, 84, 16}, "Year", "", ""},
    {It<&F::yearCombo>, On<&F::Frame2>, {226, 134, 84, 24}, "", "", "Year"},

    {It<&F::photo>, OnForm, {0, 0, 10, 10}, "", "", ""},
    {It<&F::photo_caption>, OnForm, {0, 0, 10, 10}, "", "", ""},
    {It<&F::MoreCommand>, OnForm, {12, 460, 88, 26}, "&More...", "More options", "",
     "More Options: Screens, order, look, words, keys and folders of the screen saver"},
    {It<&F::Ok>, OnForm, {448, 460, 88, 26}, "&OK", "Save changes", "",
     "Save Settings: Save all screen saver settings"},
    {It<&F::Cancel>, OnForm, {544, 460, 88, 26}, "&Cancel", "Cancel changes", "",
     "Cancel Settings: Cancel and do not save screen saver settings"},
    {It<&F::TryIt>, OnForm, {108, 460, 88, 26}, "&Try It", "Show the screen saver with these settings", "",
     "Try It: Show the screen saver as it is set now. A key or the mouse ends it"},
    {It<&F::liveProperties>, On<&F::Frame1>, {372, 20, 196, 112}, "", "", kLiveName, kLiveHint},
    {It<&F::liveSensitivity>, OnTab<3>, {113, 146, 386, 218}, "", "", kLiveName,
     "Preview: Move the pointer over it. It ends as the screen saver would"},
    {It<&F::liveSize>, OnTab<4>, {113, 146, 386, 218}, "", "", kLiveName, kLiveHint},
    {It<&F::liveTransitions>, OnTab<5>, {113, 154, 386, 218}, "", "", kLiveName, kLiveHint},
    {It<&F::liveCaption>, OnTab<6>, {148, 200, 316, 178}, "", "", kLiveName, kLiveHint},
    {It<&F::liveCountdown>, OnTab<7>, {148, 200, 316, 178}, "", "", kLiveName, kLiveHint},
    {It<&F::SS_StatusBar>, OnForm, {0, 506, 644, 24}, "", "", "Hint"},
};

constexpr RangeRow kRanges[] = {
    {Range<&F::changeVScroll1>, 3600, 0, 10, 0},  // its top is the greatest: up for more
    {Range<&F::floatSlider>, 0, 5, 5, 1},
    {Range<&F::redSlider>, 0, 255, 1, 20},
    {Range<&F::greenSlider>, 0, 255, 1, 20},
    {Range<&F::blueSlider>, 0, 255, 1, 20},
    {Range<&F::MouseSensitiveSlider>, 1, 30, 5, 1},
    {Range<&F::PercentSlider>, 10, 100, 5, 5},
    {Range<&F::scrollSlider>, 100, 300, 5, 20},
};

constexpr ComboRow kCombos[] = {
    {&F::monthCombo, 1, 12, "Month"},
    {&F::dayCombo, 1, 31, "Day"},
    {&F::yearCombo, 2000, 2040, "Year"},
};
// clang-format on

}  // namespace

std::span<const std::string_view> TabCaptions() { return kTabCaptions; }
std::span<const ControlRow> ControlTable() { return kControls; }
std::span<const RangeRow> RangeTable() { return kRanges; }
std::span<const ComboRow> ComboTable() { return kCombos; }

}  // namespace dialog

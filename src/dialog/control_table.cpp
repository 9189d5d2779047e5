#include "dialog/control_table.h"

namespace dialog {

namespace {

constexpr std::string_view kTabCaptions[] = {
    " Loaded Images ", " Image Properties ",  " Background Color ", " Mouse Sensitivity ",
    " Image Size ",    " Image Transitions ", "  Image Caption  ",  " Countdown to Special Date ",
};

// clang-format off
constexpr ControlRow kControls[] = {
    {"SSTab1", "", {12, 12, 620, 436}, "", "", "Settings"},

    {"Label5(1)", "SSTab1(0)", {16, 12, 300, 16}, "Loaded Image(s)", "", ""},
    {"List1", "SSTab1(0)", {16, 32, 340, 206}, "", "Loaded images", "Loaded images"},
    {"up", "SSTab1(0)", {362, 32, 30, 30}, "", "Move image up", "Move image up"},
    {"down", "SSTab1(0)", {362, 66, 30, 30}, "", "Move image down", "Move image down"},
    {"ImagePosition", "SSTab1(0)", {16, 244, 166, 24}, "", "Position of image", "Position"},
    {"Text3", "SSTab1(0)", {190, 244, 166, 24}, "", "Total of images", "Total"},
    {"add", "SSTab1(0)", {16, 276, 79, 26}, "Add...", "Add image", ""},
    {"remove", "SSTab1(0)", {103, 276, 79, 26}, "Remove", "Remove image", ""},
    {"RemoveAll", "SSTab1(0)", {190, 276, 79, 26}, "Remove All", "Remove all images", ""},
    {"FolderCommand", "SSTab1(0)", {277, 276, 79, 26}, "Folder...", "Add images from a folder", ""},
    {"photo1", "SSTab1(0)", {404, 32, 192, 206}, "", "Selected image", "Selected image"},
    {"EnlargeCommand", "SSTab1(0)", {404, 244, 192, 26}, "Enlarge", "View image at its actual size", ""},
    {"Label5(2)", "SSTab1(0)", {16, 318, 300, 16}, "Image Caption", "", ""},
    {"p_caption", "SSTab1(0)", {16, 338, 484, 24}, "", "Caption of image", "Image Caption"},
    {"caption_clear", "SSTab1(0)", {508, 337, 88, 26}, "Clear", "Clear caption", ""},

    {"Frame1", "SSTab1(1)", {16, 12, 580, 142}, "Change Image", "", ""},
    {"aChange", "Frame1", {16, 28, 110, 20}, "&After...", "Change image ", ""},
    {"Text2", "Frame1", {136, 26, 64, 24}, "", "Time interval (seconds)", "Seconds"},
    {"changeVScroll1", "Frame1", {201, 26, 18, 24}, "", "", "Seconds"},
    {"Label3", "Frame1", {228, 30, 120, 16}, "Seconds", "", ""},
    {"nChange", "Frame1", {16, 60, 110, 20}, "&Never", "Never change image", ""},
    {"Random_select", "Frame1", {16, 102, 200, 20}, "Random Order", "Display images in random order", ""},
    {"placement", "SSTab1(1)", {16, 166, 580, 142}, "Image Movement", "", ""},
    {"pCenter", "placement", {16, 28, 110, 20}, "&Center", "Do not float image", ""},
    {"pRandom", "placement", {16, 60, 110, 20}, "&Float", "Float image", ""},
    {"Label5(0)", "placement", {34, 102, 92, 16}, "Float Speed", "", ""},
    {"Label11", "placement", {136, 102, 42, 16}, "Slow", "", ""},
    {"floatSlider", "placement", {182, 94, 300, 34}, "", "", "Float Speed"},
    {"Label7", "placement", {486, 102, 60, 16}, "Fast", "", ""},

    {"backgroundDesktop", "SSTab1(2)", {16, 20, 140, 20}, "Desktop ", "Display desktop as background", ""},
    {"backgroundColor", "SSTab1(2)", {16, 48, 140, 20}, "Solid Color", "Display background color", ""},
    {"backgroundCustomImage", "SSTab1(2)", {16, 76, 140, 20}, "Custom  Image",
     "Display image as background", ""},
    {"backgroundColorGradient", "SSTab1(2)", {16, 104, 140, 20}, "Gradient Color",
     "Display gradient background color", ""},
    {"frameBackgroundColor", "SSTab1(2)", {168, 12, 428, 64}, "Solid Color", "", ""},
    {"Picture1", "frameBackgroundColor", {16, 25, 64, 24}, "", "Background color", "Background color"},
    {"backColorClick", "frameBackgroundColor", {92, 24, 120, 26}, "&Select Color...",
     "Select background color", ""},
    {"frameCustomImage", "SSTab1(2)", {168, 84, 428, 132}, "Custom Image", "", ""},
    {"backgroundImageFile", "frameCustomImage", {16, 26, 276, 24}, "", "Background image",
     "Background image"},
    {"addBackImg", "frameCustomImage", {16, 58, 88, 26}, "Load...", "Load background image", ""},
    {"removeBackImg", "frameCustomImage", {112, 58, 88, 26}, "Remove", "Remove background image", ""},
    {"CenterOption", "frameCustomImage", {16, 96, 84, 20}, "Center", "Center background image", ""},
    {"FullScreenOption", "frameCustomImage", {104, 96, 104, 20}, "Full Screen",
     "Display background image full screen", ""},
    {"TileOption", "frameCustomImage", {212, 96, 80, 20}, "Tile", "Tile background image", ""},
    {"Image1", "frameCustomImage", {304, 26, 108, 90}, "", "", "Background image"},
    {"frameColorGradient", "SSTab1(2)", {168, 224, 428, 140}, "Gradient Color", "", ""},
    {"redLabel", "frameColorGradient", {16, 34, 44, 16}, "Red", "", ""},
    {"redSlider", "frameColorGradient", {60, 26, 196, 34}, "", "Dither red", "Dither red"},
    {"redPicture", "frameColorGradient", {260, 30, 32, 24}, "", "", "Red"},
    {"greenLabel", "frameColorGradient", {16, 69, 44, 16}, "Green", "", ""},
    {"greenSlider", "frameColorGradient", {60, 61, 196, 34}, "", "Dither green", "Dither green"},
    {"greenPicture", "frameColorGradient", {260, 65, 32, 24}, "", "", "Green"},
    {"blueLabel", "frameColorGradient", {16, 104, 44, 16}, "Blue", "", ""},
    {"blueSlider", "frameColorGradient", {60, 96, 196, 34}, "", "Dither blue", "Dither blue"},
    {"bluePicture", "frameColorGradient", {260, 100, 32, 24}, "", "", "Blue"},
    {"GradientPicture", "frameColorGradient", {304, 30, 108, 94}, "", "Gradient background color",
     "Gradient background color"},

    {"Frame5", "SSTab1(3)", {16, 12, 580, 118}, "Mouse Sensitivity", "", ""},
    {"Label8", "Frame5", {16, 38, 42, 16}, "Slow", "", ""},
    {"MouseSensitiveSlider", "Frame5", {62, 30, 420, 34}, "", "Mouse sensitivity", "Mouse sensitivity"},
    {"Label9", "Frame5", {486, 38, 60, 16}, "Quick", "", ""},
    {"defaultMouseSensitivity", "Frame5", {70, 74, 88, 26}, "Default", "Default mouse sensitivity", ""},

    {"Frame6", "SSTab1(4)", {16, 12, 580, 118}, "Image Size", "", ""},
    {"Label13", "Frame6", {16, 32, 146, 16}, "Display Images less than", "", ""},
    {"percentLabel", "Frame6", {164, 32, 42, 16}, "", "", ""},
    {"Label12", "Frame6", {208, 32, 160, 16}, "of Monitor Screen", "", ""},
    {"Label15", "Frame6", {16, 70, 42, 16}, "Min", "", ""},
    {"PercentSlider", "Frame6", {62, 62, 420, 34}, "", "", "Display Images less than"},
    {"Label14", "Frame6", {486, 70, 60, 16}, "Max", "", ""},

    {"Frame4", "SSTab1(5)", {16, 12, 580, 128}, "Image Transition Effects", "", ""},
    {"Standard", "Frame4", {16, 30, 170, 20}, "Standard", "", ""},
    {"LWipe", "Frame4", {16, 60, 170, 20}, "Left Wipe", "", ""},
    {"RWipe", "Frame4", {16, 90, 170, 20}, "Right Wipe", "", ""},
    {"RLWipe", "Frame4", {202, 30, 180, 20}, "Right and Left Wipe", "", ""},
    {"UDWipe", "Frame4", {202, 60, 180, 20}, "Up and Down Wipe", "", ""},
    {"CenterWipe", "Frame4", {202, 90, 180, 20}, "Center Wipe", "", ""},
    {"HorizontalBlinds", "Frame4", {398, 30, 166, 20}, "Horizontal Blinds", "", ""},
    {"VerticalBlinds", "Frame4", {398, 60, 166, 20}, "Vertical Blinds", "", ""},
    {"Fade", "Frame4", {398, 90, 166, 20}, "Fade", "", ""},

    {"Frame3", "SSTab1(6)", {16, 12, 580, 100}, "Scrolling Speed", "", ""},
    {"scrollOption", "Frame3", {16, 28, 110, 20}, "Scrolling ", "Scrolling caption", ""},
    {"scrollSlowLabel", "Frame3", {136, 30, 42, 16}, "Slow", "", ""},
    {"scrollSlider", "Frame3", {182, 22, 300, 34}, "", "", "Scrolling Speed"},
    {"scrollFastLabel", "Frame3", {486, 30, 60, 16}, "Fast", "", ""},
    {"middleOption", "Frame3", {16, 60, 110, 20}, "Center", "Center caption", ""},
    {"Frame7", "SSTab1(6)", {16, 124, 580, 68}, "Caption Color", "", ""},
    {"Picture2", "Frame7", {16, 27, 64, 24}, "", "Font color", "Font color"},
    {"fontColorLabel", "Frame7", {92, 31, 90, 16}, "Font Color", "", ""},
    {"font", "Frame7", {190, 26, 104, 26}, "&Font Style", "Font type, color and size", ""},

    {"Frame2", "SSTab1(7)", {16, 12, 580, 180}, "Countdown To Special Date", "", ""},
    {"noneOption", "Frame2", {16, 28, 160, 20}, "None", "Display Nothing", ""},
    {"timeOption", "Frame2", {16, 56, 160, 20}, "Time and Date", "Current date and time", ""},
    {"yearOption", "Frame2", {16, 84, 160, 20}, "Countdown", "Year 2000 countdown", ""},
    {"monthLabel", "Frame2", {34, 114, 84, 16}, "Month", "", ""},
    {"monthCombo", "Frame2", {34, 134, 84, 24}, "", "", "Month"},
    {"dayLabel", "Frame2", {130, 114, 84, 16}, "Day", "", ""},
    {"dayCombo", "Frame2", {130, 134, 84, 24}, "", "", "Day"},
    {"yearLabel", "Frame2", {226, 114, 84, 16}, "Year", "", ""},
    {"yearCombo", "Frame2", {226, 134, 84, 24}, "", "", "Year"},

    {"photo", "", {0, 0, 10, 10}, "", "", ""},
    {"photo_caption", "", {0, 0, 10, 10}, "", "", ""},
    {"Ok", "", {448, 460, 88, 26}, "&OK", "Save changes", ""},
    {"Cancel", "", {544, 460, 88, 26}, "&Cancel", "Cancel changes", ""},
    {"SS_StatusBar", "", {0, 506, 644, 24}, "", "", "Hint"},
};

constexpr RangeRow kRanges[] = {
    {"changeVScroll1", 3600, 0, 10, 0},  // its top is the greatest: up for more
    {"floatSlider", 0, 5, 5, 1},
    {"redSlider", 0, 255, 1, 20},
    {"greenSlider", 0, 255, 1, 20},
    {"blueSlider", 0, 255, 1, 20},
    {"MouseSensitiveSlider", 1, 30, 5, 1},
    {"PercentSlider", 10, 100, 5, 5},
    {"scrollSlider", 100, 300, 5, 20},
};

constexpr ComboRow kCombos[] = {
    {"monthCombo", 1, 12, "Month"},
    {"dayCombo", 1, 31, "Day"},
    {"yearCombo", 2000, 2040, "Year"},
};
// clang-format on

}  // namespace

std::span<const std::string_view> TabCaptions() { return kTabCaptions; }
std::span<const ControlRow> ControlTable() { return kControls; }
std::span<const RangeRow> RangeTable() { return kRanges; }
std::span<const ComboRow> ComboTable() { return kCombos; }

}  // namespace dialog

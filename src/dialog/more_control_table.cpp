// Places, texts and hints of the form of more options.
#include "base/number_text.h"
#include "dialog/more_table.h"
#include "library/followed_folders.h"
#include "settings/extra_values.h"

namespace dialog {

namespace {

using M = MoreOptions;

template <int Tab>
forms::Control* OnTab(M& form) {
  return &form.tabs.page(Tab);
}

constexpr std::string_view kTabCaptions[] = {" Screens ", " Order ", " Look ", " Words and Keys ",
                                             " Folders "};

// clang-format off
constexpr ControlRowOf<M> kControls[] = {
    {It<&M::tabs>, OnForm, {12, 12, 620, 436}, "", "", "More options", kClearsHint},

    {It<&M::screensFrame>, OnTab<0>, {16, 12, 580, 214}, "Further Screens", "", "", kClearsHint},
    {It<&M::screensOne>, On<&M::screensFrame>, {16, 28, 420, 20}, "On&ly the main screen has a show", "Leave the other screens as they are", "",
     "Screens: The show is on the main screen, the others stay as they are"},
    {It<&M::screensBlack>, On<&M::screensFrame>, {16, 56, 420, 20}, "&Black", "Cover the other screens", "",
     "Screens: The show is on the main screen, the others are black"},
    {It<&M::screensSame>, On<&M::screensFrame>, {16, 84, 420, 20}, "&Same image on every screen", "Same image everywhere", "",
     "Screens: Every screen shows the same image, in a size that suits it"},
    {It<&M::screensDifferent>, On<&M::screensFrame>, {16, 112, 420, 20}, "&Different image on each screen", "Another image on each screen", "",
     "Screens: Every screen shows an image of its own, and all change together"},
    {It<&M::screensSpan>, On<&M::screensFrame>, {16, 140, 420, 20}, "One image &across all screens", "One image over all screens", "",
     "Screens: All screens together are one large screen"},
    {It<&M::matchOrientation>, On<&M::screensFrame>, {34, 176, 420, 20}, "Hi&gh screens take high images, wide screens wide ones", "Match the shape of the screen", "",
     "Screens: A screen takes the next image of its shape; no image is left out for good"},

    {It<&M::orderFrame>, OnTab<1>, {16, 12, 580, 96}, "Order of Images", "", "", kClearsHint},
    {It<&M::shuffle>, On<&M::orderFrame>, {16, 28, 420, 20}, "&No repeats", "Each image comes once before any comes again", "",
     "Order: In random order each image comes once before any comes again"},
    {It<&M::resume>, On<&M::orderFrame>, {16, 60, 420, 20}, "&Go on where the last show ended", "Go on with the next image", "",
     "Order: A show begins with the image after the last one of the show before"},

    {It<&M::classic>, OnTab<2>, {16, 12, 88, 26}, "C&lassic", "Look as on the tabs", "",
     "Look: Images in their size on the background, with the transitions of the tab"},
    {It<&M::today>, OnTab<2>, {112, 12, 88, 26}, "&Today", "Whole images that fade and glide", "",
     "Look: Whole images on a soft surround that fade into each other and glide slowly"},
    {It<&M::sizeFrame>, OnTab<2>, {16, 46, 248, 124}, "Size of Centered Images", "", "", kClearsHint},
    {It<&M::fitAsOnTab>, On<&M::sizeFrame>, {16, 24, 216, 20}, "As on the tab &Image Size", "Small images stay small", "",
     "Size: Large images are made smaller, small ones stay small"},
    {It<&M::fitWhole>, On<&M::sizeFrame>, {16, 48, 216, 20}, "&Whole images", "As large as possible", "",
     "Size: Images are as large as their share of the screen allows, at most twice their size"},
    {It<&M::fitFill>, On<&M::sizeFrame>, {16, 72, 216, 20}, "&Fill the screen", "Cover the screen", "",
     "Size: Images cover the screen, unless more than two fifths would be cut away"},
    {It<&M::surround>, On<&M::sizeFrame>, {16, 98, 216, 20}, "&Soft surround", "The image itself around the image", "",
     "Surround: Around an image the same image fills the screen, dark and out of focus"},
    {It<&M::changeFrame>, OnTab<2>, {16, 178, 248, 104}, "Change of Images", "", "", kClearsHint},
    {It<&M::changeAsOnTab>, On<&M::changeFrame>, {16, 24, 216, 20}, "As on the tab Image T&ransitions", "By way of the background", "",
     "Change: The old image goes, and after a moment the new one comes"},
    {It<&M::changeCrossfade>, On<&M::changeFrame>, {16, 48, 216, 20}, "Crossf&ade", "Fade into the next image", "",
     "Change: An image fades into the next"},
    {It<&M::changeDirect>, On<&M::changeFrame>, {16, 72, 216, 20}, "Transition from ima&ge to image", "Without a way over the background", "",
     "Change: A transition of the tab runs from the one image to the other"},
    {It<&M::motionFrame>, OnTab<2>, {16, 290, 580, 102}, "Time and Motion", "", "", kClearsHint},
    {It<&M::timeLabel>, On<&M::motionFrame>, {16, 30, 130, 16}, "Ti&me of a change", "", ""},
    {It<&M::timeSlider>, On<&M::motionFrame>, {150, 22, 310, 34}, "", "Time of a change", "Time of a change",
     "Time: How long a change takes; at the left end as long as it needs"},
    {It<&M::timeText>, On<&M::motionFrame>, {468, 30, 100, 16}, "", "", ""},
    {It<&M::panZoomLabel>, On<&M::motionFrame>, {16, 68, 130, 16}, "&Pan and zoom", "", ""},
    {It<&M::panZoomSlider>, On<&M::motionFrame>, {150, 60, 310, 34}, "", "Pan and zoom", "Pan and zoom",
     "Pan and zoom: By how much images grow while they glide slowly"},
    {It<&M::panZoomText>, On<&M::motionFrame>, {468, 68, 100, 16}, "", "", ""},
    {It<&M::liveLook>, OnTab<2>, {276, 46, 320, 180}, "", "The show as it is chosen", "Preview of the show",
     "Preview: The show as these choices make it, in small"},

    {It<&M::captionsFrame>, OnTab<3>, {16, 12, 580, 220}, "Captions by Themselves", "", "", kClearsHint},
    {It<&M::templateLabel>, On<&M::captionsFrame>, {16, 32, 110, 16}, "&Template", "", ""},
    {It<&M::templateCombo>, On<&M::captionsFrame>, {136, 28, 300, 24}, "", "Ready-made captions", "Template",
     "Captions: What stands under images without a caption of their own"},
    {It<&M::wordsLabel>, On<&M::captionsFrame>, {16, 66, 110, 16}, "&Words", "", ""},
    {It<&M::words>, On<&M::captionsFrame>, {136, 62, 428, 24}, "", "Words of the caption", "Words",
     "Captions: Your own words, with {name}, {date} and others in their places"},
    {It<&M::exampleLabel>, On<&M::captionsFrame>, {16, 100, 110, 16}, "Example", "", ""},
    {It<&M::example>, On<&M::captionsFrame>, {136, 100, 428, 34}, "", "", "",
     "Captions: How the caption of an image looks"},
    {It<&M::fieldsLabel>, On<&M::captionsFrame>, {136, 142, 428, 66},
     "{name} {file} {folder} {date} {time} {camera} {title} {number} {total} stand for what is known of the image. "
     "What lies between two bars, as in {title}| - {date}|, is left out when nothing is known for it.", "", ""},
    {It<&M::showFrame>, OnTab<3>, {16, 244, 580, 124}, "In the Show", "", "", kClearsHint},
    {It<&M::shade>, On<&M::showFrame>, {16, 28, 420, 20}, "&Shadow behind captions and clock", "Readable on bright images", "",
     "Shadow: Captions and clock can be read on bright images"},
    {It<&M::keys>, On<&M::showFrame>, {16, 58, 420, 20}, "&Keys step through the show", "Keys do not end the show", "",
     "Keys: Arrow keys, space and others lead through the show; F1 in the show tells which"},
    {It<&M::care>, On<&M::showFrame>, {16, 88, 420, 20}, "&Protect the screen from burning in", "Nothing bright stays in one place", "",
     "Care: Captions, clock and images move by a few dots every minute"},

    {It<&M::foldersFrame>, OnTab<4>, {16, 12, 580, 236}, "Followed Folders", "", "", kClearsHint},
    {It<&M::foldersLabel>, On<&M::foldersFrame>, {16, 26, 440, 16}, "&Folders whose images come and go by themselves", "", ""},
    {It<&M::folderList>, On<&M::foldersFrame>, {16, 46, 446, 148}, "", "Followed folders", "Folders whose images come and go by themselves",
     "Folders: Their images come behind those of the list, as they are in the folder"},
    {It<&M::addFolder>, On<&M::foldersFrame>, {474, 46, 90, 26}, "&Add...", "Add a folder", "",
     "Add: Let the show follow one more folder"},
    {It<&M::removeFolder>, On<&M::foldersFrame>, {474, 80, 90, 26}, "&Remove", "Remove the selected folder", "",
     "Remove: Do not follow the selected folder any more; its images stay on the disk"},
    {It<&M::subfolders>, On<&M::foldersFrame>, {16, 204, 420, 20}, "&Include subfolders", "Follow what lies below too", "",
     "Folders: What lies in the folders of a folder counts too"},
    {It<&M::hiddenFrame>, OnTab<4>, {16, 260, 580, 68}, "Hidden Images", "", "", kClearsHint},
    {It<&M::hiddenText>, On<&M::hiddenFrame>, {16, 32, 300, 16}, "", "", ""},
    {It<&M::showAgain>, On<&M::hiddenFrame>, {474, 27, 90, 26}, "&Show Again", "Bring all hidden images back", "",
     "Hidden images: Bring back all images that were put away in the show"},

    {It<&M::Ok>, OnForm, {448, 460, 88, 26}, "&OK", "Take over these choices", "",
     "OK: Take over these choices; the settings are saved with OK there"},
    {It<&M::Cancel>, OnForm, {544, 460, 88, 26}, "&Cancel", "Leave the choices as they were", "",
     "Cancel: Leave the choices as they were"},
    {It<&M::hints>, OnForm, {0, 506, 644, 24}, "", "", "Hint"},
};

constexpr RangeRowOf<M> kRanges[] = {
    {Range<&M::timeSlider>, 0, settings::kLongestTransitionMs / M::kTimeStepMs, 5, 5},
    {Range<&M::panZoomSlider>, 0, settings::kMostPanZoomPercent, 5, 5},
};
// clang-format on

bool IsRandom(const M& form) { return base::LeadingNumber(form.choices.record.randomPick) == 1; }

const char* NeedsCentredImages(const M& form) {
  if (form.choices.record.picRandom == "cent") return nullptr;
  return "Needs centered images: see Image Movement on the tab Image Properties";
}

const char* NeedsRoomToGlide(const M& form) {
  if (const char* const obstacle = NeedsCentredImages(form)) return obstacle;
  if (!form.fitAsOnTab.value() || form.surround.value() == 1) return nullptr;
  return "Pan and zoom: Needs whole images, images that fill the screen, or the soft surround";
}

constexpr M::Need kNeeds[] = {
    {It<&M::matchOrientation>,
     [](const M& form) -> const char* {
       return form.screensDifferent.value() ? nullptr : "Screens: Needs a different image on each screen";
     }},
    {It<&M::shuffle>,
     [](const M& form) -> const char* {
       return IsRandom(form) ? nullptr : "Order: Needs Random Order on the tab Image Properties";
     }},
    {It<&M::resume>,
     [](const M& form) -> const char* {
       if (!IsRandom(form) || form.shuffle.value() == 1) return nullptr;
       return "Order: Random order without No repeats begins anywhere";
     }},
    {It<&M::fitAsOnTab>, NeedsCentredImages},
    {It<&M::fitWhole>, NeedsCentredImages},
    {It<&M::fitFill>, NeedsCentredImages},
    {It<&M::surround>, NeedsCentredImages},
    {It<&M::panZoomLabel>, NeedsRoomToGlide},
    {It<&M::panZoomSlider>, NeedsRoomToGlide},
    {It<&M::panZoomText>, NeedsRoomToGlide},
    {It<&M::addFolder>,
     [](const M& form) -> const char* {
       return form.choices.folders.size() < library::FollowedFolders::kMostFolders
                  ? nullptr
                  : "Add: The show follows 64 folders at most";
     }},
    {It<&M::removeFolder>,
     [](const M& form) -> const char* {
       return form.folderList.listIndex() >= 0 ? nullptr : "Remove: Select a folder first";
     }},
    {It<&M::subfolders>,
     [](const M& form) -> const char* {
       return form.choices.folders.empty() ? "Folders: Needs a folder that is followed" : nullptr;
     }},
    {It<&M::showAgain>,
     [](const M& form) -> const char* {
       return form.hiddenPictures() > 0 ? nullptr : "Hidden images: No image is hidden";
     }},
};

}  // namespace

std::span<const std::string_view> MoreTabCaptions() { return kTabCaptions; }
std::span<const ControlRowOf<MoreOptions>> MoreControlTable() { return kControls; }
std::span<const RangeRowOf<MoreOptions>> MoreRangeTable() { return kRanges; }
std::span<const MoreOptions::Need> MoreNeedTable() { return kNeeds; }

}  // namespace dialog

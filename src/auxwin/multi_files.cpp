#include "auxwin/multi_files.h"

#include <cstddef>
#include <limits>
#include <utility>

#include "auxwin/layout_pixels.h"
#include "base/number_text.h"
#include "os/paths.h"

namespace auxwin {

namespace {

constexpr int kProgressMs = 200;
constexpr std::size_t kPathsAtATime = 250;  // between two looks at the events

std::string Counted(int count, const std::string& one, const std::string& many) {
  return base::NumberText(std::int32_t{count}) + (count == 1 ? one : many);
}

std::string FoundSoFar(int pictures, int folders) {
  return "Looking for images: " + Counted(pictures, " image in ", " images in ") +
         Counted(folders, " folder", " folders") + " so far";
}

std::string AddedSoFar(std::size_t added, std::size_t all) {
  return "Adding: " + base::NumberText(static_cast<std::int32_t>(added)) + " of " +
         Counted(static_cast<int>(all), " image", " images");
}

}  // namespace

// The controls of an import that is under way: only Cancel takes input.
class MultiFiles::Import {
 public:
  explicit Import(MultiFiles& form) : form_(form) {
    form_.importing_ = true;
    form_.cancelled_ = false;
    enable(false);
  }
  ~Import() {
    form_.importing_ = false;
    form_.lblProgress.setCaption({});
    enable(true);
  }
  Import(const Import&) = delete;
  Import& operator=(const Import&) = delete;

 private:
  void enable(bool enabled) {
    form_.fraFileControls.setEnabled(enabled);
    form_.chkSubfolders.setEnabled(enabled && form_.services_.folders);
    form_.Command1.setEnabled(enabled);
  }

  MultiFiles& form_;
};

MultiFiles::MultiFiles(PictureTarget target, const ImportServices& services, const std::string& patterns)
    : Form("MultiFiles"),
      drvDrives(*this, "drvDrives", services.disk),
      dirDirectories(*this, "dirDirectories", services.disk),
      filFilenames(*this, "filFilenames", services.disk),
      target_(std::move(target)),
      services_(services),
      progress_(services.loop, kProgressMs) {
  layOut();
  filFilenames.setPattern(patterns);
  onLoad = [this] { Form_Load(); };
  drvDrives.onChange = [this] { drvDrives_Change(); };
  dirDirectories.onChange = [this] { dirDirectories_Change(); };
  dirDirectories.onClick = [this] { dirDirectories_Click(); };
  Command1.onClick = [this] { Command1_Click(); };
  cmdQuit.onClick = [this] { cmdQuit_Click(); };
}

void MultiFiles::layOut() {
  setCaption("Add Images From a Folder");
  setClientSize(500 * kTwips, 390 * kTwips);
  fraFileControls.setCaption("Folder");
  Place(fraFileControls, 12, 12, 476, 312);
  for (forms::Control* list :
       {static_cast<forms::Control*>(&drvDrives), static_cast<forms::Control*>(&dirDirectories),
        static_cast<forms::Control*>(&filFilenames)}) {
    list->setContainer(&fraFileControls);
    list->setBackColor(base::kWindowBackground);
  }
  Place(drvDrives, 16, 26, 216, 24);
  Place(dirDirectories, 16, 58, 216, 238);
  Place(filFilenames, 244, 26, 216, 270);
  drvDrives.setAccessibleName("Drive");
  dirDirectories.setAccessibleName("Folder");
  filFilenames.setAccessibleName("Images in the folder");
  Place(chkSubfolders, 14, 337, 216, 20);
  chkSubfolders.setCaption("Include &subfolders");
  chkSubfolders.setToolTip("Add the images of all folders in the folder too");
  chkSubfolders.setEnabled(services_.folders != nullptr);
  Place(Command1, 250, 334, 132, 26);
  Command1.setCaption("&Add All Images");
  Command1.setToolTip("Add all images of the folder");
  Command1.isDefault = true;
  Place(cmdQuit, 390, 334, 98, 26);
  cmdQuit.setCaption("&Cancel");
  cmdQuit.setToolTip("Close without adding images");
  cmdQuit.isCancel = true;
  Place(lblProgress, 14, 368, 474, 16);
}

void MultiFiles::Form_Load() {
  centerOn(services_.windows.screenWidthTwips(), services_.windows.screenHeightTwips());
}

void MultiFiles::drvDrives_Change() { dirDirectories.setPath(drvDrives.drive()); }

void MultiFiles::dirDirectories_Change() { filFilenames.setPath(dirDirectories.path()); }

// What is listed is what would be added, so the list follows the folder that is selected, opened or not.
void MultiFiles::dirDirectories_Click() { filFilenames.setPath(dirDirectories.selectedPath()); }

void MultiFiles::Command1_Click() {
  if (importing_) return;
  std::optional<Pictures> pictures;
  std::optional<std::vector<std::string>> paths;
  {
    const Import import(*this);
    pictures = chkSubfolders.value() == 1 ? searched() : listed();
    if (pictures) paths = storable(*pictures);
  }
  if (host() == nullptr || services_.loop.isQuitting()) return;
  if (!pictures || !paths) {
    lblProgress.setCaption(cancelled_ ? "Cancelled: no images were added." : "The folder cannot be read.");
    return;
  }
  addedFolder_ = pictures->folder;
  const auto leftOut = static_cast<int>(pictures->names.size() - paths->size());
  add(std::move(*paths), leftOut);
  tellPassedOver(pictures->foldersPassedOver);
  services_.windows.unload(*this);
}

// Nothing more of the import is wanted.
bool MultiFiles::isOver() const { return cancelled_ || host() == nullptr || services_.loop.isQuitting(); }

std::optional<MultiFiles::Pictures> MultiFiles::listed() const {
  return Pictures{.folder = filFilenames.path(), .names = filFilenames.files()};
}

// Lets events run until all folders have been read; nothing when the import is over before, or the folder
// cannot be read.
std::optional<MultiFiles::Pictures> MultiFiles::searched() {
  const std::string folder = filFilenames.path();
  TreeSearch search(services_.folders, services_.makeWorker,
                    {.folder = folder, .names = library::PictureNames::ofPatterns(filFilenames.pattern())});
  progress_.onTimer = [this, &search] {
    if (!isOver()) lblProgress.setCaption(FoundSoFar(search.picturesFound(), search.foldersRead()));
  };
  progress_.setEnabled(true);
  while (!search.isDone() && !isOver()) services_.loop.waitUntil(std::numeric_limits<std::int64_t>::max());
  progress_.setEnabled(false);
  progress_.onTimer = nullptr;
  if (isOver() || search.isAway()) return std::nullopt;
  return Pictures{folder, search.takePictures(), search.foldersPassedOver()};
}

// The paths as they can be kept. Events run now and then, since the short form of a long path is the disk's
// to say; nothing when the import is over before the end.
std::optional<std::vector<std::string>> MultiFiles::storable(const Pictures& pictures) {
  std::vector<std::string> paths;
  paths.reserve(pictures.names.size());
  for (std::size_t i = 0; i < pictures.names.size(); ++i) {
    if (std::optional<std::string> path = target_.storable(os::JoinPath(pictures.folder, pictures.names[i])))
      paths.push_back(std::move(*path));
    if ((i + 1) % kPathsAtATime != 0) continue;
    lblProgress.setCaption(AddedSoFar(i + 1, pictures.names.size()));
    services_.loop.runPending();
    if (isOver()) return std::nullopt;
  }
  return paths;
}

// Thousands of files come in one step each, so that the lists are shown anew once.
void MultiFiles::add(std::vector<std::string> paths, int leftOut) {
  target_.captions.addItems(std::vector<std::string>(paths.size()));
  target_.paths.addItems(std::move(paths));
  const int count = target_.paths.listCount();
  // Bare digits: the words before the total come back with the dialog's own next change.
  target_.total.setText(base::NumberText(std::int32_t{count}));
  target_.paths.setListIndex(count - 1);
  target_.advice.consider(count, services_.dialogs);
  target_.tellLeftOut(leftOut);
}

void MultiFiles::tellPassedOver(int folders) const {
  if (folders == 0) return;
  services_.dialogs.messageBox(Counted(folders, " folder could not be read. The images in it were not added.",
                                       " folders could not be read. The images in them were not added."),
                               forms::kExclamation);
}

void MultiFiles::cmdQuit_Click() {
  if (importing_) {
    cancelled_ = true;
  } else {
    services_.windows.unload(*this);
  }
}

}  // namespace auxwin

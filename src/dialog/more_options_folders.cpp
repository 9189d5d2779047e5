// The tab "Folders" of the form of more options.
#include <algorithm>
#include <utility>

#include "base/number_text.h"
#include "base/text.h"
#include "dialog/messages.h"
#include "dialog/more_options.h"
#include "dialog/picture_paths.h"

namespace dialog {

namespace {

std::string WithoutBackslash(std::string path) {
  if (path.ends_with('\\')) path.pop_back();
  return path;
}

bool IsSameFolder(const std::string& a, const std::string& b) {
  return base::EqualAsciiBlind(WithoutBackslash(a), WithoutBackslash(b));
}

std::string HiddenInWords(int hidden, bool comesBack) {
  if (hidden == 0) return "No images are hidden.";
  const std::string count = base::NumberText(std::int32_t{hidden});
  if (comesBack) return count + (hidden == 1 ? " image comes" : " images come") + " back when you save.";
  return count + (hidden == 1 ? " image is hidden." : " images are hidden.");
}

}  // namespace

void MoreOptions::countFolders() {
  counts_.count(choices.folders, choices.record.subfolders == "1");
  showFolders();
}

void MoreOptions::showFolders() {
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < choices.folders.size(); ++i) {
    const std::string counted = counts_.wordsFor(i);
    lines.push_back(choices.folders[i] + (counted.empty() ? "" : "  (" + counted + ")"));
  }
  if (lines.size() == folderList.items().size()) {
    for (std::size_t i = 0; i < lines.size(); ++i) folderList.setItem(static_cast<int>(i), lines[i]);
  } else {
    folderList.setItems(std::move(lines));
  }
  hiddenText.setCaption(HiddenInWords(hidden_, choices.showsHiddenAgain));
}

void MoreOptions::addFolder_Click() {
  const std::string start =
      choices.folders.empty() ? services_.files.picturesFolder() : choices.folders.back();
  const std::optional<std::string> asked =
      services_.dialogs.chooseFolder({.title = "Select a folder to follow", .start = start});
  if (!asked) return;
  const std::optional<std::string> folder = PicturePaths(services_).storable(*asked);
  if (!folder) {
    services_.dialogs.messageBox(kFolderPathTooLong, forms::kExclamation);
    return;
  }
  const auto same = [&](const std::string& other) { return IsSameFolder(other, *folder); };
  auto at = std::ranges::find_if(choices.folders, same);
  if (at == choices.folders.end()) at = choices.folders.insert(at, *folder);
  const auto index = static_cast<int>(at - choices.folders.begin());
  countFolders();
  folderList.setListIndex(index);
  showState();
}

// The one that moves up into the place of the one that was removed is selected, so that several can be
// removed in a row.
void MoreOptions::removeFolder_Click() {
  const int index = folderList.listIndex();
  if (index < 0) return;
  choices.folders.erase(choices.folders.begin() + index);
  countFolders();
  folderList.setListIndex(std::min(index, folderList.listCount() - 1));
  showState();
}

void MoreOptions::subfolders_Click() {
  choices.record.subfolders = subfolders.value() == 1 ? "1" : "";
  countFolders();
  showState();
}

void MoreOptions::showAgain_Click() {
  choices.showsHiddenAgain = true;
  showFolders();
  showState();
}

}  // namespace dialog

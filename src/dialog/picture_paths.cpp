#include "dialog/picture_paths.h"

#include <utility>

#include "base/number_text.h"
#include "settings/settings_file.h"

namespace dialog {

namespace {

constexpr char kFilter[] =
    "Image files (*.gif;*.jpg;*.bmp)|*.gif;*.jpg;*.bmp|CompuServe Files (*.gif)|*.gif|"
    "Jpeg Files (*.jpg)|*.jpg|Jif files (*.jif)|*.jif|Windows Bitmap Files (*.bmp)|*.bmp|"
    "Windows DIB files (*.dib)|*.dib";

forms::OpenFileRequest RequestFor(std::string filter) {
  return {std::move(filter), "Select a file to open", forms::kFileMustExist | forms::kHideReadOnly};
}

}  // namespace

std::optional<std::string> PicturePaths::ask() const {
  const std::optional<std::string> chosen = services_.dialogs.openFile(RequestFor(kFilter));
  if (!chosen) return std::nullopt;
  std::optional<std::string> path = storable(*chosen);
  if (!path) tellLeftOut(1);
  return path;
}

// The system gives them in the order in which they were marked, or in none.
std::vector<std::string> PicturePaths::askForSeveral(const std::string& patterns) const {
  std::vector<std::string> chosen =
      services_.dialogs.openFiles(RequestFor(std::string(kFilter) + "|All pictures|" + patterns));
  services_.files.sortNames(chosen);
  return chosen;
}

std::optional<std::string> PicturePaths::storable(const std::string& path) const {
  if (settings::FitsSettings(path, services_.ansi)) return path;
  std::string shorter = services_.files.shortPath(path);
  if (settings::FitsSettings(shorter, services_.ansi)) return shorter;
  return std::nullopt;
}

void PicturePaths::tellLeftOut(int count) const {
  if (count == 0) return;
  const std::string limit =
      base::NumberText(static_cast<std::int32_t>(settings::kLongestValue)) + " characters";
  const std::string text = count == 1
                               ? "1 image was left out because its path is longer than " + limit +
                                     ".\r\nMove it to a folder with a shorter path and add it again."
                               : base::NumberText(std::int32_t{count}) +
                                     " images were left out because their paths are longer than " + limit +
                                     ".\r\nMove them to a folder with a shorter path and add them again.";
  services_.dialogs.messageBox(text, forms::kExclamation);
}

}  // namespace dialog

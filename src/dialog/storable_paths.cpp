#include "dialog/storable_paths.h"

#include "base/number_text.h"
#include "settings/read_ini_value.h"
#include "settings/stored_length.h"

namespace dialog {

std::optional<std::string> StorablePaths::storable(const std::string& path) const {
  if (settings::FitsSettings(path, services_.ansi)) return path;
  std::string shorter = services_.files.shortPath(path);
  if (settings::FitsSettings(shorter, services_.ansi)) return shorter;
  return std::nullopt;
}

void StorablePaths::tellLeftOut(int count) const {
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

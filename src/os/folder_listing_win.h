// Listing the system's folders, and its order of names.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "os/folder_reader.h"

namespace os {

// The entries that are neither hidden nor the system's own, in the folder's own order; nothing when the
// folder cannot be read. On any thread.
std::optional<std::vector<FolderEntry>> ListFolder(const std::string& folder);

// Puts names into the order of the system's own file windows: as people sort, 2 before 10, accents beside
// their letters. On any thread.
void SortAsShown(std::vector<std::string>& names);

}  // namespace os

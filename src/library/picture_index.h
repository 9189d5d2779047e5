// The pictures of followed folders as they were listed last, so that a show can begin before they are listed
// anew.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "library/sealed.h"

namespace library {

inline constexpr SealKind kPictureIndexKind{'I', 1};
inline constexpr const char* kPictureIndexName = "lumora.index";

struct FolderListing {
  std::string folder;  // as the settings name it
  bool subfolders = false;
  std::vector<std::string> pictures;  // paths below the folder, in order

  bool operator==(const FolderListing&) const = default;
};

// A path that begins like the one before it is written from where they differ.
std::string PayloadOf(const std::vector<FolderListing>& listings);

// Nothing for a payload that no show wrote.
std::optional<std::vector<FolderListing>> PictureIndexOf(std::string_view payload);

}  // namespace library

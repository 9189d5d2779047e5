// The pictures of a folder, listed folder by folder.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "library/day_choice.h"
#include "library/picture_names.h"
#include "os/folder_reader.h"

namespace library {

struct WalkRules {
  bool subfolders = false;
  PictureNames names;
  DayChoice choice{0};
  std::size_t most = 32767;  // pictures; of more the day's choice is kept
};

// A folder's pictures come in the order of their names, then those of each of its folders. A link is followed
// where it leads out of what is listed anyway, so neither a circle nor a second way brings a picture twice.
// Folders that cannot be read are passed over, except the first.
class FolderWalk {
 public:
  // `folder` with or without a backslash at the end. `reader` must outlive the walk.
  FolderWalk(os::FolderReader& reader, const std::string& folder, WalkRules rules);

  // Reads one folder. False when there is no more to read.
  bool step();

  // The first folder could not be read: it is away.
  bool isAway() const { return away_; }

  // The folder with a backslash at its end, and the paths below it, so far.
  const std::string& root() const { return root_; }
  const std::vector<std::string>& pictures() const { return pictures_; }
  std::vector<std::string> takePictures() { return std::move(pictures_); }

  // Folders that were read, and those that could not be and were passed over, so far.
  int foldersRead() const { return foldersRead_; }
  int foldersPassedOver() const { return foldersPassedOver_; }

 private:
  void read(const std::string& below);
  void take(const std::string& below, std::vector<std::string> names);
  void queue(const std::string& below, std::vector<std::string> names, const std::vector<std::string>& links);
  bool leadsElsewhere(const std::string& folder);

  os::FolderReader& reader_;
  std::string root_;
  WalkRules rules_;
  std::vector<std::string> pending_;  // folders below the root, each with its backslash; the next one last
  std::vector<std::string> trees_;  // final paths of the root and of the links followed, once there is a link
  std::vector<std::string> pictures_;
  int foldersRead_ = 0;
  int foldersPassedOver_ = 0;
  bool away_ = false;
};

}  // namespace library

// How many pictures lie in each of some folders.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "auxwin/tree_search.h"
#include "library/picture_names.h"
#include "os/folder_reader.h"
#include "os/worker.h"

namespace dialog {

// Counts beside the dialog, each folder by itself, since one that does not answer may hold up nobody else.
class FolderCounts {
 public:
  // Without `folders` nothing is counted. `changed` is told of each folder that has been counted.
  FolderCounts(std::shared_ptr<os::FolderReader> folders, os::MakeWorker makeWorker,
               std::function<void()> changed);

  // What a show of these folders would find. One that was counted in the same way is not counted again.
  void count(const std::vector<std::string>& folders, bool subfolders);

  // What is known of the folder at an index, in words; empty where nobody counts.
  std::string wordsFor(std::size_t index) const;

 private:
  struct Folder {
    std::string path;
    bool subfolders = false;
    std::unique_ptr<auxwin::TreeSearch> search;
  };

  std::shared_ptr<os::FolderReader> folders_;
  os::MakeWorker makeWorker_;
  std::function<void()> changed_;
  std::optional<library::PictureNames> names_;
  std::vector<Folder> counted_;
};

}  // namespace dialog

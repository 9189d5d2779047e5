// The pictures of a folder, or of a whole folder tree, looked for beside the dialog.
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "library/picture_names.h"
#include "os/folder_reader.h"
#include "os/worker.h"

namespace auxwin {

// Reads folder after folder on a thread of its own, since a disk or a share may take its time. Its end stops
// the search after the folder that is being read, and waits for nothing.
class TreeSearch {
 public:
  struct Request {
    std::string folder;
    library::PictureNames names;
    bool subfolders = true;                    // else the folder's own pictures alone
    std::function<void()> whenDone = nullptr;  // on the user-interface thread
  };

  // Begins at once. `folders` is shared with the thread, which may come back from the system late.
  TreeSearch(const std::shared_ptr<os::FolderReader>& folders, const os::MakeWorker& makeWorker,
             Request request);
  ~TreeSearch();
  TreeSearch(const TreeSearch&) = delete;
  TreeSearch& operator=(const TreeSearch&) = delete;

  // How far it has come.
  int picturesFound() const;
  int foldersRead() const;

  // It has come to its end: what follows can be asked.
  bool isDone() const;

  // The folder itself could not be read.
  bool isAway() const;

  // Folders below it that could not be read; their pictures are missing.
  int foldersPassedOver() const;

  // Paths below the folder: its own pictures in the order of their names, then those of each of its folders.
  // Throws what the search ended by, such as lack of memory. To be asked once.
  std::vector<std::string> takePictures();

 private:
  struct Search;

  static void run(Search& search) noexcept;

  std::shared_ptr<Search> search_;  // shared with the thread
  std::unique_ptr<os::Worker> worker_;
};

}  // namespace auxwin

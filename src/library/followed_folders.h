// The pictures of followed folders, listed beside the show.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "os/clock.h"
#include "os/files.h"
#include "os/folder_reader.h"

namespace library {

struct FollowRequest {
  std::vector<std::string> folders;  // in the order in which their pictures come
  bool subfolders = false;
  std::vector<std::string> listed;        // pictures that the show has anyway: they do not come again
  std::size_t most = 32767;               // pictures of the folders together
  std::vector<std::string> indexFolders;  // where the index of the last listing may lie
  std::function<void()> makeIndexFolder;  // makes the last of them; on any thread
};

class Following;

// Brings the pictures of followed folders.
class PictureFollower {
 public:
  virtual ~PictureFollower() = default;

  // Whole paths, when they are others than at the last call; else nothing. Never waits.
  virtual std::optional<std::vector<std::string>> news() = 0;
};

// A thread for each folder asks the file system, since a disk that starts up or a share that does not answer
// holds up whoever asks. The show never waits: it takes a new list when there is one. While a folder has not
// answered there is no picture of it in the list, so that nobody tries to open one.
class FollowedFolders : public PictureFollower {
 public:
  static constexpr std::size_t kMostFolders = 64;      // those behind are not followed
  static constexpr int kListAgainMs = 10 * 60 * 1000;  // though no change was told of
  static constexpr int kLookAgainMs = 30 * 1000;       // for a folder that is away

  // Shared with the threads: one that hangs in the system is not waited for, and may come back late.
  struct Services {
    std::shared_ptr<os::Files> files;
    std::shared_ptr<os::FolderReader> reader;
    std::shared_ptr<const os::Clock> clock;
    std::function<void()> enterThread = nullptr;  // first thing on each thread: to give way to the show
  };

  FollowedFolders(Services services, FollowRequest request);
  ~FollowedFolders() override;
  FollowedFolders(const FollowedFolders&) = delete;
  FollowedFolders& operator=(const FollowedFolders&) = delete;

  std::optional<std::vector<std::string>> news() override;

 private:
  std::shared_ptr<Following> following_;
};

}  // namespace library

// What the threads that follow folders share.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "library/followed_folders.h"
#include "library/kept_file.h"
#include "library/picture_index.h"

namespace library {

class Following {
 public:
  Following(FollowedFolders::Services services, FollowRequest request);

  std::size_t folderCount() const { return request_.folders.size(); }

  // Follows one folder until stop(): the body of its thread. Never throws.
  void follow(std::size_t number) noexcept;

  // The threads end as soon as they come back from the system. Waits for them a moment, not for ever.
  void stop();

  std::optional<std::vector<std::string>> news();

  void threadBegins();
  void threadEnds();

 private:
  struct Folder {
    std::string root;                   // with its backslash, once the folder has answered
    std::vector<std::string> pictures;  // that the show may have
    FolderListing known;                // the last whole listing, of this show or of an earlier one
    std::shared_ptr<os::FolderWatch> watch;
  };

  void followFolder(std::size_t number);
  bool list(std::size_t number);
  void publish(std::size_t number, const std::string& root, std::vector<std::string> pictures);
  void combine();
  void readIndexOnce();
  void keep(std::size_t number, const std::vector<std::string>& pictures);
  std::vector<std::string> knownPictures(std::size_t number);
  bool startWatch(std::size_t number);
  void waitForChange(os::FolderWatch& watch, bool isThere);
  bool isStopping();
  std::uint64_t today() const;

  FollowedFolders::Services services_;
  FollowRequest request_;

  std::mutex mutex_;  // for all below it, up to the index
  std::condition_variable threadEnded_;
  int threads_ = 0;
  bool stopping_ = false;
  std::vector<Folder> folders_;
  std::optional<std::vector<std::string>> list_;  // that nobody has asked for yet
  std::uint64_t combinedOn_ = 0;                  // the day whose choice the list is, if it is a choice

  std::mutex indexMutex_;  // for the file; taken before mutex_ where both are
  KeptFile index_;
  bool indexRead_ = false;
};

}  // namespace library

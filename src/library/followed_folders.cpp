#include "library/followed_folders.h"

#include <system_error>
#include <thread>
#include <utility>

#include "library/following.h"

namespace library {

FollowedFolders::FollowedFolders(Services services, FollowRequest request)
    : following_(std::make_shared<Following>(std::move(services), std::move(request))) {
  for (std::size_t i = 0; i < following_->folderCount(); ++i) {
    following_->threadBegins();
    try {
      std::thread([following = following_, i] {
        following->follow(i);
        following->threadEnds();
      }).detach();
    } catch (const std::system_error&) {
      following_->threadEnds();  // the system has no thread left: this folder is not followed
    }
  }
}

FollowedFolders::~FollowedFolders() { following_->stop(); }

std::optional<std::vector<std::string>> FollowedFolders::news() { return following_->news(); }

}  // namespace library

// Which picture comes next, where the settings ask for more than the order of the list or a draw.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "library/followed_folders.h"
#include "library/kept_file.h"
#include "library/show_state.h"
#include "os/files.h"
#include "settings/load_settings.h"

namespace saver {

// What the show needs for pictures beyond those of its list. Without `follow` no folder is followed.
struct LibraryServices {
  std::function<std::unique_ptr<library::PictureFollower>(library::FollowRequest)> follow;
  std::string userFolder;  // for what the show remembers, where the program's folder cannot be written
  std::function<void()> makeUserFolder;  // where it is missing; on any thread
};

// [extras] shuffle deals the pictures like cards where they come in random order; [extras] resume goes on
// behind the picture that the last show showed last; the folders of [folders] are followed; with [extras]
// keys pictures can be hidden for good. With none of these it does nothing, and the documented rules stand.
class PictureOrder {
 public:
  using DrawSeed = std::function<std::uint64_t()>;

  // `settings` are those of the show: pictures of followed folders are put behind their list.
  PictureOrder(settings::SaverSettings& settings, os::Files& files, const std::string& programFolder,
               LibraryServices services);

  // Once the settings have been loaded.
  void begin();

  bool followsFolders() const { return follower_ != nullptr; }
  bool remembers() const { return resumes_; }

  // Takes over what has changed in the followed folders. True when the list is another one now; the show then
  // asks for its next picture again.
  bool takeNews();

  // A followed folder may still bring the first picture.
  bool waitsForPictures() const { return followsFolders() && settings_.lastImageIndex < 0; }

  // The index of the picture that the show begins with, or goes on with; nothing where the documented rules
  // decide.
  std::optional<std::int16_t> first(const DrawSeed& drawSeed);
  std::optional<std::int16_t> next(const DrawSeed& drawSeed);

  // The picture to be dealt after the one at the index, which lies in the list; nothing without a deck.
  std::optional<std::int16_t> nextBehind(std::int16_t index, const DrawSeed& drawSeed);

  // After a change of the list: the next picture in the list's own order.
  std::int16_t nextInList() const;

  // The picture at the index comes to the screen.
  void shown(std::int16_t index);

  // A picture of the list leaves it, wherever the list has it, in this show and in all to come. The show then
  // asks for its next picture again. False when only this show will know, as nothing could be written.
  bool hide(const std::string& path);

  // Remembers for the next show. Never throws; what cannot be written is forgotten.
  void save() noexcept;

  // The same from any thread, when the show has crashed. Waits for nobody: when the show got no further than
  // the middle of remembering, what it remembered before stands.
  void saveAfterCrash() noexcept;

 private:
  bool isDeck() const;
  std::vector<std::string>& paths() { return settings_.imageFiles; }
  std::size_t count() const { return static_cast<std::size_t>(settings_.lastImageIndex + 1); }
  std::optional<std::int16_t> deal(const library::DeckPosition& behind, const DrawSeed& drawSeed);
  void readState();
  bool hasPosition() const { return resumes_ && !state_.position.lastPath.empty(); }
  bool write(const library::ShowState& state) noexcept;
  void leaveOutHidden();
  void putBehindOwn(std::vector<std::string> followed);

  settings::SaverSettings& settings_;
  LibraryServices services_;
  std::vector<std::string> stateFolders_;
  library::KeptFile stateFile_;
  std::unique_ptr<library::PictureFollower> follower_;
  library::ShowState state_;
  library::ShowState earlier_;  // as a show before left it, where this one does not go on from there
  std::mutex stateMutex_;       // for a crash on another thread, which looks at the state
  std::unordered_set<std::uint64_t> hidden_;  // hashes of the paths that are not to be shown
  std::uint64_t dealtRound_ = 0;              // of the picture that was dealt last
  std::size_t ownCount_ = 0;                  // pictures of the settings' list
  bool resumes_ = false;
};

}  // namespace saver

#include "library/following.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <unordered_set>
#include <utility>

#include "base/calendar.h"
#include "base/text.h"
#include "library/folder_walk.h"
#include "library/path_hash.h"

namespace library {

namespace {

constexpr int kCalmMs = 1000;         // without a change: then whoever copies pictures in has come to an end
constexpr int kMostCalmWaits = 20;    // one who never comes to an end is not waited for
constexpr std::uint64_t kAnyDay = 0;  // there was room for all
constexpr std::chrono::milliseconds kWaitForThreads{300};

}  // namespace

Following::Following(FollowedFolders::Services services, FollowRequest request)
    : services_(std::move(services)),
      request_(std::move(request)),
      index_(*services_.files, request_.indexFolders, kPictureIndexName, kPictureIndexKind,
             request_.makeIndexFolder) {
  if (request_.folders.size() > FollowedFolders::kMostFolders)
    request_.folders.resize(FollowedFolders::kMostFolders);
  folders_.resize(request_.folders.size());
  for (std::size_t i = 0; i < folders_.size(); ++i)
    folders_[i].known = {.folder = request_.folders[i], .subfolders = request_.subfolders, .pictures = {}};
}

void Following::follow(std::size_t number) noexcept {
  try {
    if (services_.enterThread) services_.enterThread();
    followFolder(number);
  } catch (const std::exception&) {
    // Without memory the folder's list stays as it is.
  }
}

void Following::followFolder(std::size_t number) {
  readIndexOnce();
  // The watch is there before the folder is read, so that no change falls between the two.
  while (startWatch(number)) {
    const bool isThere = list(number);
    if (isStopping()) return;
    waitForChange(*folders_[number].watch, isThere);
  }
}

// Lists the folder anew. What is known is shown meanwhile, from the moment on at which the folder answers;
// where nothing is known, what has been found so far.
bool Following::list(std::size_t number) {
  FolderWalk walk(*services_.reader, request_.folders[number],
                  {.subfolders = request_.subfolders,
                   .names = PictureNames(services_.reader->pictureEndings()),
                   .choice = DayChoice(today()),
                   .most = request_.most});
  bool more = walk.step();
  if (walk.isAway()) {
    publish(number, walk.root(), {});
    return false;
  }
  std::vector<std::string> known = knownPictures(number);
  const bool growing = known.empty();
  if (more && !growing) publish(number, walk.root(), std::move(known));
  std::size_t published = 0;
  for (; more; more = walk.step()) {
    if (isStopping()) return true;
    if (!growing || walk.pictures().size() <= 2 * published) continue;
    published = walk.pictures().size();
    publish(number, walk.root(), walk.pictures());
  }
  publish(number, walk.root(), walk.pictures());
  keep(number, walk.pictures());
  return true;
}

void Following::publish(std::size_t number, const std::string& root, std::vector<std::string> pictures) {
  const std::lock_guard lock(mutex_);
  Folder& folder = folders_[number];
  const bool same = !folder.root.empty() && folder.pictures == pictures &&
                    (combinedOn_ == kAnyDay || combinedOn_ == today());
  folder.root = root;
  if (same) return;
  folder.pictures = std::move(pictures);
  folder.pictures.shrink_to_fit();
  combine();
}

// All folders' pictures in one list, each picture once; of too many, the day's choice.
void Following::combine() {
  std::unordered_set<std::uint64_t> seen;
  for (const std::string& path : request_.listed) seen.insert(PathHash(path));
  std::vector<std::pair<const Folder*, const std::string*>> found;
  for (const Folder& folder : folders_) {
    const std::uint64_t rootHash = PathHash(folder.root);
    for (const std::string& picture : folder.pictures) {
      if (seen.insert(PathHash(picture, rootHash)).second) found.emplace_back(&folder, &picture);
    }
  }
  const bool chosenFrom = found.size() > request_.most;
  combinedOn_ = chosenFrom ? today() : kAnyDay;
  const DayChoice choice(combinedOn_);
  const auto numberOf = [&](const auto& entry) { return choice.numberOf(entry.first->root, *entry.second); };
  if (chosenFrom) {
    std::vector<std::uint64_t> numbers(found.size());
    std::transform(found.begin(), found.end(), numbers.begin(), numberOf);
    const std::uint64_t limit = DayChoice::limitFor(std::move(numbers), request_.most);
    std::erase_if(found, [&](const auto& entry) { return numberOf(entry) > limit; });
    if (found.size() > request_.most) found.resize(request_.most);
  }
  std::vector<std::string> whole;
  whole.reserve(found.size());
  for (const auto& [folder, picture] : found) whole.push_back(folder->root + *picture);
  list_ = std::move(whole);
}

std::optional<std::vector<std::string>> Following::news() {
  const std::unique_lock lock(mutex_, std::try_to_lock);
  if (!lock) return std::nullopt;
  return std::exchange(list_, std::nullopt);
}

void Following::readIndexOnce() {
  const std::lock_guard indexLock(indexMutex_);
  if (std::exchange(indexRead_, true)) return;
  const std::optional<std::string> payload = index_.load();
  auto listings = payload ? PictureIndexOf(*payload) : std::nullopt;
  if (!listings) return;
  const std::lock_guard lock(mutex_);
  for (Folder& folder : folders_) {
    for (FolderListing& listing : *listings) {
      if (listing.subfolders != folder.known.subfolders ||
          !base::EqualAsciiBlind(listing.folder, folder.known.folder))
        continue;
      folder.known.pictures = std::move(listing.pictures);
      break;
    }
  }
}

void Following::keep(std::size_t number, const std::vector<std::string>& pictures) {
  const std::lock_guard indexLock(indexMutex_);
  std::string payload;
  {
    const std::lock_guard lock(mutex_);
    std::vector<std::string>& known = folders_[number].known.pictures;
    if (known == pictures) return;
    known = pictures;
    std::vector<FolderListing> listings;
    for (const Folder& folder : folders_) listings.push_back(folder.known);
    payload = PayloadOf(listings);
  }
  index_.save(payload);
}

std::vector<std::string> Following::knownPictures(std::size_t number) {
  const std::lock_guard lock(mutex_);
  return folders_[number].known.pictures;
}

bool Following::startWatch(std::size_t number) {
  std::shared_ptr<os::FolderWatch> watch =
      services_.reader->watch(request_.folders[number], request_.subfolders);
  const std::lock_guard lock(mutex_);
  folders_[number].watch = std::move(watch);
  return !stopping_;
}

void Following::waitForChange(os::FolderWatch& watch, bool isThere) {
  if (!watch.waitForChange(isThere ? FollowedFolders::kListAgainMs : FollowedFolders::kLookAgainMs)) return;
  for (int wait = 0; wait < kMostCalmWaits && watch.waitForChange(kCalmMs); ++wait) {
  }
}

void Following::stop() {
  std::unique_lock lock(mutex_);
  stopping_ = true;
  for (const Folder& folder : folders_) {
    if (folder.watch) folder.watch->interrupt();
  }
  threadEnded_.wait_for(lock, kWaitForThreads, [this] { return threads_ == 0; });
}

bool Following::isStopping() {
  const std::lock_guard lock(mutex_);
  return stopping_;
}

void Following::threadBegins() {
  const std::lock_guard lock(mutex_);
  ++threads_;
}

void Following::threadEnds() {
  const std::lock_guard lock(mutex_);
  --threads_;
  threadEnded_.notify_all();
}

std::uint64_t Following::today() const {
  const os::LocalTime now = services_.clock->now();
  return static_cast<std::uint64_t>(base::DayNumber({now.year, now.month, now.day}));
}

}  // namespace library

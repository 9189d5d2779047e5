#include "saver/picture_order.h"

#include <algorithm>
#include <exception>
#include <limits>
#include <utility>

#include "base/number_text.h"
#include "library/deck.h"
#include "library/path_hash.h"

namespace saver {

namespace {

constexpr std::size_t kMostPictures = std::numeric_limits<std::int16_t>::max();

}  // namespace

PictureOrder::PictureOrder(settings::SaverSettings& settings, os::Files& files,
                           const std::string& programFolder, LibraryServices services)
    : settings_(settings),
      services_(std::move(services)),
      stateFolders_({programFolder, services_.userFolder}),
      stateFile_(files, stateFolders_, library::kShowStateName, library::kShowStateKind,
                 services_.makeUserFolder) {}

void PictureOrder::begin() {
  const settings::SettingsRecord& record = settings_.record;
  resumes_ = record.resume == "1";
  const bool hides = record.keys == "1";
  const bool follows = !settings_.folders.empty() && services_.follow != nullptr;
  if (!resumes_ && !follows && !hides && !isDeck()) return;
  readState();
  leaveOutHidden();
  ownCount_ = count();
  if (!follows) return;
  follower_ = services_.follow({.folders = settings_.folders,
                                .subfolders = record.subfolders == "1",
                                .listed = {paths().begin(), paths().begin() + settings_.lastImageIndex + 1},
                                .most = kMostPictures - ownCount_,
                                .indexFolders = stateFolders_,
                                .makeIndexFolder = services_.makeUserFolder});
}

void PictureOrder::readState() {
  state_ = library::LoadShowState(stateFile_);
  for (const std::string& path : state_.hidden) hidden_.insert(library::PathHash(path));
  if (resumes_) return;
  earlier_ = state_;
  state_.position = {};
}

// The list's order is the settings' business, so a hidden picture leaves it with its caption.
void PictureOrder::leaveOutHidden() {
  if (hidden_.empty()) return;
  std::vector<std::string>& captions = settings_.imageCaptions;
  for (std::size_t i = count(); i-- > 0;) {
    if (!hidden_.contains(library::PathHash(paths()[i]))) continue;
    paths().erase(paths().begin() + static_cast<std::ptrdiff_t>(i));
    captions.erase(captions.begin() + static_cast<std::ptrdiff_t>(i));
    --settings_.lastImageIndex;
    if (i < ownCount_) --ownCount_;
  }
}

bool PictureOrder::hide(const std::string& path) {
  const std::uint64_t hash = library::PathHash(path);
  hidden_.insert(hash);
  const std::lock_guard lock(stateMutex_);
  const std::size_t last = std::min<std::size_t>(state_.lastIndex, count());
  const auto isHidden = [hash](const std::string& other) { return library::PathHash(other) == hash; };
  state_.lastIndex -= static_cast<std::uint32_t>(
      std::count_if(paths().begin(), paths().begin() + static_cast<std::ptrdiff_t>(last), isHidden));
  leaveOutHidden();
  state_.hidden.push_back(path);
  earlier_.hidden.push_back(path);
  return write(resumes_ ? state_ : earlier_);
}

bool PictureOrder::isDeck() const {
  return settings_.record.shuffle == "1" && base::LeadingNumber(settings_.record.randomPick) == 1;
}

bool PictureOrder::takeNews() {
  if (!follower_) return false;
  auto followed = follower_->news();
  if (!followed) return false;
  putBehindOwn(std::move(*followed));
  return true;
}

// The last entry of both lists stays empty. A frame may be due, so no path is copied.
void PictureOrder::putBehindOwn(std::vector<std::string> followed) {
  paths().resize(ownCount_);
  paths().reserve(ownCount_ + followed.size() + 1);
  for (std::string& path : followed) {
    if (hidden_.empty() || !hidden_.contains(library::PathHash(path))) paths().push_back(std::move(path));
  }
  settings_.lastImageIndex = static_cast<std::int16_t>(paths().size() - 1);
  paths().emplace_back();
  settings_.imageCaptions.resize(ownCount_);
  settings_.imageCaptions.resize(paths().size());
}

std::optional<std::int16_t> PictureOrder::first(const DrawSeed& drawSeed) {
  if (isDeck()) return next(drawSeed);
  if (!resumes_ || base::LeadingNumber(settings_.record.randomPick) == 1) return std::nullopt;
  return nextInList();
}

std::optional<std::int16_t> PictureOrder::next(const DrawSeed& drawSeed) {
  return deal(state_.position, drawSeed);
}

std::optional<std::int16_t> PictureOrder::nextBehind(std::int16_t index, const DrawSeed& drawSeed) {
  return deal({.roundSeed = dealtRound_, .lastPath = paths()[static_cast<std::size_t>(index)]}, drawSeed);
}

std::optional<std::int16_t> PictureOrder::deal(const library::DeckPosition& behind,
                                               const DrawSeed& drawSeed) {
  if (!isDeck()) return std::nullopt;
  const auto dealt = library::DealNext({paths().data(), count()}, behind, drawSeed);
  if (!dealt) return std::nullopt;
  dealtRound_ = dealt->roundSeed;
  return static_cast<std::int16_t>(dealt->index);
}

std::int16_t PictureOrder::nextInList() const {
  return static_cast<std::int16_t>(library::IndexToGoOnWith(settings_.imageFiles, count(), state_));
}

void PictureOrder::shown(std::int16_t index) {
  if (index < 0 || index > settings_.lastImageIndex) return;
  const std::lock_guard lock(stateMutex_);
  state_.position = {.roundSeed = dealtRound_, .lastPath = paths()[static_cast<std::size_t>(index)]};
  state_.lastIndex = static_cast<std::uint32_t>(index);
}

void PictureOrder::save() noexcept {
  const std::lock_guard lock(stateMutex_);
  if (hasPosition()) write(state_);
}

void PictureOrder::saveAfterCrash() noexcept {
  const std::unique_lock lock(stateMutex_, std::try_to_lock);
  if (lock && hasPosition()) write(state_);
}

bool PictureOrder::write(const library::ShowState& state) noexcept {
  try {
    return stateFile_.save(library::PayloadOf(state));
  } catch (const std::exception&) {
    return false;  // without memory the next show begins where the one before began
  }
}

}  // namespace saver

#include "dialog/picture_presence.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <utility>

namespace dialog {

namespace {

// The drive or share of a path; empty where it names none.
std::string RootOf(const std::string& path) {
  if (path.starts_with("\\\\")) {
    const std::size_t server = path.find('\\', 2);
    return path.substr(0, server == std::string::npos ? server : path.find('\\', server + 1));
  }
  return path.size() > 1 && path[1] == ':' ? path.substr(0, 2) : std::string();
}

// Where it cannot be found out, a picture counts as there.
bool IsThere(os::FolderReader& folders, const std::string& path) noexcept {
  try {
    return folders.hasFile(path);
  } catch (const std::exception&) {
    return true;
  }
}

}  // namespace

// Shared with the thread, which may outlive whoever asked.
struct PicturePresence::Search {
  std::vector<std::string> paths;
  std::vector<char> isThere;
};

PicturePresence::PicturePresence(os::EventLoop& loop, std::shared_ptr<os::FolderReader> folders,
                                 os::MakeWorker makeWorker)
    : folders_(std::move(folders)), makeWorker_(std::move(makeWorker)), fresh_(loop, kFreshMs) {
  fresh_.onTimer = [this] {
    fresh_.setEnabled(false);
    for (auto& [path, isFresh] : asked_) isFresh = false;
  };
}

bool PicturePresence::isMissing(const std::string& path) {
  if (path.empty() || !folders_ || !makeWorker_) return false;
  const auto found = asked_.find(path);
  if (found == asked_.end() || !found->second) ask(path);
  return missing_.contains(path);
}

void PicturePresence::ask(const std::string& path) {
  if (asked_.size() >= kMostAnswers) {
    std::erase_if(asked_, [](const auto& asked) { return !asked.second; });
  }
  std::vector<std::string>& waiting = waiting_[RootOf(path)];
  waiting.push_back(path);
  asked_[path] = true;
  if (waiting.size() > kMostWaiting) {
    forget(waiting.front());
    waiting.erase(waiting.begin());
  }
  beginSearches();
}

// It is asked about anew when it comes into sight again.
void PicturePresence::forget(const std::string& path) {
  const auto found = asked_.find(path);
  if (found != asked_.end()) found->second = false;
}

void PicturePresence::beginSearches() {
  for (auto at = waiting_.begin(); at != waiting_.end();) {
    Searcher* const searcher = idleSearcherFor(at->first);
    if (searcher) {
      searcher->root = at->first;
      begin(*searcher, at->second);
    }
    at = at->second.empty() ? waiting_.erase(at) : std::next(at);
  }
}

PicturePresence::Searcher* PicturePresence::idleSearcherFor(const std::string& root) {
  const auto looksThere = [&](const auto& searcher) { return searcher->busy && searcher->root == root; };
  if (std::ranges::any_of(searchers_, looksThere)) return nullptr;
  const auto idle = std::ranges::find(searchers_, false, [](const auto& searcher) { return searcher->busy; });
  if (idle != searchers_.end()) return idle->get();
  if (searchers_.size() >= kMostThreads) return nullptr;
  return searchers_.emplace_back(std::make_unique<Searcher>(Searcher{.worker = makeWorker_()})).get();
}

// What came into sight last is looked for first.
void PicturePresence::begin(Searcher& searcher, std::vector<std::string>& waiting) {
  const auto search = std::make_shared<Search>();
  const auto count = static_cast<std::ptrdiff_t>(std::min(waiting.size(), kMostAtATime));
  std::move(waiting.end() - count, waiting.end(), std::back_inserter(search->paths));
  waiting.erase(waiting.end() - count, waiting.end());
  searcher.busy = true;
  searcher.worker->run(
      [search, folders = folders_] {
        for (const std::string& path : search->paths) search->isThere.push_back(IsThere(*folders, path));
      },
      [this, &searcher, search] { answered(searcher, *search); });
}

void PicturePresence::answered(Searcher& searcher, const Search& search) {
  searcher.busy = false;
  bool news = false;
  for (std::size_t i = 0; i < search.paths.size(); ++i) {
    const std::string& path = search.paths[i];
    news |= search.isThere[i] ? missing_.erase(path) > 0 : missing_.insert(path).second;
  }
  if (!fresh_.enabled()) fresh_.setEnabled(true);
  beginSearches();
  if (news && onNews) onNews();
}

}  // namespace dialog

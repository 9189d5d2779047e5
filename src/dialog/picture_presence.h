// Which of the pictures that the dialog lists are there, asked beside it.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "forms/timer.h"
#include "os/event_loop.h"
#include "os/folder_reader.h"
#include "os/worker.h"

namespace dialog {

// Everything of it runs on the user-interface thread but the looking itself, for which nothing ever waits.
// What lies on one drive or share is looked for by one thread at a time, so that a share that does not answer
// holds up its own pictures and no others.
class PicturePresence {
 public:
  static constexpr int kFreshMs = 5'000;             // after which an answer is looked for anew when asked
  static constexpr std::size_t kMostThreads = 4;     // so many drives and shares at a time
  static constexpr std::size_t kMostAtATime = 32;    // paths that a thread looks for in one go
  static constexpr std::size_t kMostWaiting = 256;   // paths of one drive; the oldest are forgotten
  static constexpr std::size_t kMostAnswers = 8192;  // that are remembered

  // Without `folders` or `makeWorker` every picture counts as there.
  PicturePresence(os::EventLoop& loop, std::shared_ptr<os::FolderReader> folders, os::MakeWorker makeWorker);
  PicturePresence(const PicturePresence&) = delete;
  PicturePresence& operator=(const PicturePresence&) = delete;

  // True when the file was looked for and not found; false while nobody knows. Has it looked for when that
  // was not done lately. No path is never missing.
  bool isMissing(const std::string& path);

  // The paths that were not found when they were last looked for.
  const std::set<std::string>& missing() const { return missing_; }

  // What is missing has changed.
  std::function<void()> onNews;

 private:
  struct Searcher {
    std::unique_ptr<os::Worker> worker;
    std::string root = {};  // of what is looked for; while `busy`
    bool busy = false;
  };
  struct Search;

  void ask(const std::string& path);
  void forget(const std::string& path);
  void beginSearches();
  Searcher* idleSearcherFor(const std::string& root);
  void begin(Searcher& searcher, std::vector<std::string>& waiting);
  void answered(Searcher& searcher, const Search& search);

  std::shared_ptr<os::FolderReader> folders_;
  os::MakeWorker makeWorker_;
  std::unordered_map<std::string, bool> asked_;  // paths; true while the answer is fresh, or on its way
  std::set<std::string> missing_;
  std::map<std::string, std::vector<std::string>> waiting_;  // paths by their drives, the newest last
  std::vector<std::unique_ptr<Searcher>> searchers_;
  forms::Timer fresh_;
};

}  // namespace dialog

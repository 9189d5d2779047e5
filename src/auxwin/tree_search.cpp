#include "auxwin/tree_search.h"

#include <atomic>
#include <limits>
#include <utility>

#include "library/folder_walk.h"

namespace auxwin {

namespace {

// A list holds no more; whoever has more pictures is not helped by a choice of them that they did not make.
constexpr std::size_t kMostPictures = std::numeric_limits<std::int32_t>::max();

}  // namespace

struct TreeSearch::Search {
  std::shared_ptr<os::FolderReader> folders;
  library::FolderWalk walk;  // the thread's alone until `done`
  std::exception_ptr failure;
  std::atomic<int> picturesFound = 0;
  std::atomic<int> foldersRead = 0;
  std::atomic<bool> stopped = false;
  bool done = false;  // the user-interface thread's alone
};

TreeSearch::TreeSearch(const std::shared_ptr<os::FolderReader>& folders, const os::MakeWorker& makeWorker,
                       Request request)
    : search_(new Search{.folders = folders,
                         .walk = library::FolderWalk(*folders, request.folder,
                                                     {.subfolders = request.subfolders,
                                                      .names = std::move(request.names),
                                                      .choice = library::DayChoice(0),
                                                      .most = kMostPictures}),
                         .failure = nullptr}),
      worker_(makeWorker()) {
  worker_->run([search = search_] { run(*search); },
               [search = search_, whenDone = std::move(request.whenDone)] {
                 search->done = true;
                 if (whenDone) whenDone();
               });
}

TreeSearch::~TreeSearch() { search_->stopped = true; }

void TreeSearch::run(Search& search) noexcept {
  try {
    for (bool more = true; more && !search.stopped;) {
      more = search.walk.step();
      search.picturesFound = static_cast<int>(search.walk.pictures().size());
      search.foldersRead = search.walk.foldersRead();
    }
  } catch (...) {
    search.failure = std::current_exception();
  }
}

int TreeSearch::picturesFound() const { return search_->picturesFound; }
int TreeSearch::foldersRead() const { return search_->foldersRead; }
bool TreeSearch::isDone() const { return search_->done; }
bool TreeSearch::isAway() const { return search_->walk.isAway(); }
int TreeSearch::foldersPassedOver() const { return search_->walk.foldersPassedOver(); }

std::vector<std::string> TreeSearch::takePictures() {
  if (search_->failure) std::rethrow_exception(search_->failure);
  return search_->walk.takePictures();
}

}  // namespace auxwin

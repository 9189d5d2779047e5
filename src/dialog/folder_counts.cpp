#include "dialog/folder_counts.h"

#include <algorithm>
#include <utility>

#include "base/number_text.h"

namespace dialog {

FolderCounts::FolderCounts(std::shared_ptr<os::FolderReader> folders, os::MakeWorker makeWorker,
                           std::function<void()> changed)
    : folders_(std::move(folders)), makeWorker_(std::move(makeWorker)), changed_(std::move(changed)) {}

void FolderCounts::count(const std::vector<std::string>& folders, bool subfolders) {
  if (!folders_ || !makeWorker_) return;
  if (!names_) names_.emplace(folders_->pictureEndings());
  std::vector<Folder> before = std::exchange(counted_, {});
  for (const std::string& path : folders) {
    const auto known = std::ranges::find_if(before, [&](const Folder& folder) {
      return folder.search && folder.path == path && folder.subfolders == subfolders;
    });
    if (known != before.end()) {
      counted_.push_back(std::move(*known));
      continue;
    }
    auto search = std::make_unique<auxwin::TreeSearch>(
        folders_, makeWorker_,
        auxwin::TreeSearch::Request{
            .folder = path, .names = *names_, .subfolders = subfolders, .whenDone = changed_});
    counted_.push_back({path, subfolders, std::move(search)});
  }
}

std::string FolderCounts::wordsFor(std::size_t index) const {
  if (index >= counted_.size()) return {};
  const auxwin::TreeSearch& search = *counted_[index].search;
  if (!search.isDone()) return "counting...";
  if (search.isAway()) return "not there now";
  const int pictures = search.picturesFound();
  return base::NumberText(std::int32_t{pictures}) + (pictures == 1 ? " image" : " images");
}

}  // namespace dialog

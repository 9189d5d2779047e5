#include "library/folder_walk.h"

#include <algorithm>
#include <utility>

#include "base/natural_order.h"
#include "base/text.h"

namespace library {

namespace {

std::string WithBackslash(std::string folder) {
  if (!folder.ends_with('\\')) folder += '\\';
  return folder;
}

// Whether a folder lies in another or is the other, each with its backslash.
bool IsIn(std::string_view folder, std::string_view outer) {
  return base::EqualAsciiBlind(folder.substr(0, outer.size()), outer);
}

// Pictures as cameras number them, in the order in which most file systems name them.
bool IsSortedAnyway(const std::vector<std::string>& names) {
  const auto isNotBefore = [](const std::string& a, const std::string& b) {
    return !base::IsNumberedBefore(a, b);
  };
  return std::adjacent_find(names.begin(), names.end(), isNotBefore) == names.end();
}

}  // namespace

FolderWalk::FolderWalk(os::FolderReader& reader, const std::string& folder, WalkRules rules)
    : reader_(reader), root_(WithBackslash(folder)), rules_(std::move(rules)), pending_({std::string()}) {}

bool FolderWalk::step() {
  if (pending_.empty()) return false;
  const std::string below = std::move(pending_.back());
  pending_.pop_back();
  read(below);
  if (pending_.empty()) rules_.choice.cut(pictures_, root_, rules_.most);
  return !pending_.empty();
}

void FolderWalk::read(const std::string& below) {
  auto entries = reader_.read(root_ + below);
  if (!entries) {
    if (below.empty()) away_ = true;
    ++foldersPassedOver_;
    return;
  }
  ++foldersRead_;
  std::vector<std::string> files;
  std::vector<std::string> folders;
  std::vector<std::string> links;
  for (os::FolderEntry& entry : *entries) {
    if (!entry.isFolder) {
      if (rules_.names.contains(entry.name)) files.push_back(std::move(entry.name));
    } else if (rules_.subfolders) {
      if (entry.isLink) links.push_back(entry.name);
      folders.push_back(std::move(entry.name));
    }
  }
  take(below, std::move(files));
  queue(below, std::move(folders), links);
}

void FolderWalk::take(const std::string& below, std::vector<std::string> names) {
  if (!IsSortedAnyway(names)) reader_.sortNames(names);
  for (const std::string& name : names) pictures_.push_back(below + name);
  // Not at each folder, so that the cutting is no work to speak of.
  if (pictures_.size() > 2 * rules_.most) rules_.choice.cut(pictures_, root_, rules_.most);
}

void FolderWalk::queue(const std::string& below, std::vector<std::string> names,
                       const std::vector<std::string>& links) {
  reader_.sortNames(names);
  for (auto name = names.rbegin(); name != names.rend(); ++name) {
    const std::string folder = below + *name + '\\';
    const bool isLink = std::find(links.begin(), links.end(), *name) != links.end();
    if (!isLink || leadsElsewhere(folder)) pending_.push_back(folder);
  }
}

bool FolderWalk::leadsElsewhere(const std::string& folder) {
  if (trees_.empty()) trees_.push_back(WithBackslash(reader_.finalPath(root_).value_or(root_)));
  const auto target = reader_.finalPath(root_ + folder);
  if (!target) return false;
  std::string tree = WithBackslash(*target);
  const auto isListedAnyway = [&](const std::string& known) { return IsIn(tree, known); };
  if (std::any_of(trees_.begin(), trees_.end(), isListedAnyway)) return false;
  if (IsIn(trees_.front(), tree)) return false;  // leads back to where the root lies
  trees_.push_back(std::move(tree));
  return true;
}

}  // namespace library

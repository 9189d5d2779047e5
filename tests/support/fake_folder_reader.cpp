#include "support/fake_folder_reader.h"

#include <algorithm>

#include "base/natural_order.h"

namespace support {

namespace {

std::string Bare(std::string folder) {
  if (folder.ends_with('\\')) folder.pop_back();
  return folder;
}

}  // namespace

class FakeFolderReader::Watch : public os::FolderWatch {
 public:
  explicit Watch(FakeFolderReader& reader) : reader_(reader), changesSeen_(reader.changes_) {}

  bool waitForChange(int atMostMs) override {
    std::unique_lock lock(reader_.mutex_);
    reader_.waits_.push_back(atMostMs);
    const int passingsSeen = reader_.passings_;
    reader_.changed_.notify_all();
    // A wait for calm is over at once: here nothing happens that a test does not do.
    if (atMostMs > 10'000) {
      reader_.changed_.wait(lock, [&] {
        return interrupted_ || reader_.changes_ != changesSeen_ || reader_.passings_ != passingsSeen;
      });
    }
    if (interrupted_ || reader_.changes_ == changesSeen_) return false;
    changesSeen_ = reader_.changes_;
    return true;
  }

  void interrupt() override {
    const std::lock_guard lock(reader_.mutex_);
    interrupted_ = true;
    reader_.changed_.notify_all();
  }

 private:
  FakeFolderReader& reader_;
  int changesSeen_;
  bool interrupted_ = false;
};

void FakeFolderReader::addFolder(const std::string& path) {
  const std::lock_guard lock(mutex_);
  std::string folder = Bare(path);
  if (!folders_.try_emplace(folder).second) return;
  for (std::size_t at = folder.rfind('\\'); at != std::string::npos; at = folder.rfind('\\')) {
    const std::string name = folder.substr(at + 1);
    folder.resize(at);
    folders_[folder].try_emplace(name, os::FolderEntry{.name = name, .isFolder = true});
  }
}

void FakeFolderReader::addFile(const std::string& path) {
  const std::size_t at = path.rfind('\\');
  addFolder(path.substr(0, at));
  const std::lock_guard lock(mutex_);
  const std::string name = path.substr(at + 1);
  folders_[path.substr(0, at)][name] = {.name = name};
}

void FakeFolderReader::addLink(const std::string& path, const std::string& target) {
  addFolder(path);
  const std::lock_guard lock(mutex_);
  const std::size_t at = path.rfind('\\');
  folders_[path.substr(0, at)][path.substr(at + 1)].isLink = true;
  links_[path] = Bare(target);
}

void FakeFolderReader::removeFile(const std::string& path) {
  const std::lock_guard lock(mutex_);
  const std::size_t at = path.rfind('\\');
  folders_[path.substr(0, at)].erase(path.substr(at + 1));
}

void FakeFolderReader::setAway(const std::string& folder, bool away) {
  const std::lock_guard lock(mutex_);
  if (away) {
    away_.insert(folder);
  } else {
    away_.erase(folder);
  }
}

void FakeFolderReader::hold(const std::string& folder, bool held) {
  const std::lock_guard lock(mutex_);
  if (held) {
    held_.insert(folder);
  } else {
    held_.erase(folder);
  }
  changed_.notify_all();
}

void FakeFolderReader::tellOfChange() {
  const std::lock_guard lock(mutex_);
  ++changes_;
  changed_.notify_all();
}

void FakeFolderReader::letTimePass() {
  const std::lock_guard lock(mutex_);
  ++passings_;
  changed_.notify_all();
}

int FakeFolderReader::reads() const {
  const std::lock_guard lock(mutex_);
  return reads_;
}

std::vector<int> FakeFolderReader::waits() const {
  const std::lock_guard lock(mutex_);
  return waits_;
}

std::string FakeFolderReader::resolved(std::string folder) const {
  for (std::size_t at = folder.find('\\'); at != std::string::npos; at = folder.find('\\', at + 1)) {
    const std::size_t end = folder.find('\\', at + 1);
    const auto link = links_.find(folder.substr(0, end));
    if (link == links_.end()) continue;
    folder = link->second + (end == std::string::npos ? std::string() : folder.substr(end));
    at = 0;
  }
  return folder;
}

std::optional<std::vector<os::FolderEntry>> FakeFolderReader::read(const std::string& folder) {
  std::unique_lock lock(mutex_);
  ++reads_;
  const std::string path = resolved(Bare(folder));
  changed_.wait(lock, [&] { return !held_.contains(path); });
  const auto found = folders_.find(path);
  if (found == folders_.end() || away_.contains(path)) return std::nullopt;
  std::vector<os::FolderEntry> entries;
  for (const auto& [name, entry] : found->second) entries.push_back(entry);
  return entries;
}

bool FakeFolderReader::hasFile(const std::string& path) {
  const std::lock_guard lock(mutex_);
  const std::size_t at = path.rfind('\\');
  if (at == std::string::npos) return false;
  const auto folder = folders_.find(path.substr(0, at));
  if (folder == folders_.end() || away_.contains(folder->first)) return false;
  const auto file = folder->second.find(path.substr(at + 1));
  return file != folder->second.end() && !file->second.isFolder;
}

std::optional<std::string> FakeFolderReader::finalPath(const std::string& folder) {
  const std::lock_guard lock(mutex_);
  const std::string path = resolved(Bare(folder));
  return folders_.contains(path) ? std::optional(path) : std::nullopt;
}

void FakeFolderReader::sortNames(std::vector<std::string>& names) {
  std::sort(names.begin(), names.end(),
            [](const std::string& a, const std::string& b) { return base::CompareNaturally(a, b) < 0; });
}

std::unique_ptr<os::FolderWatch> FakeFolderReader::watch(const std::string&, bool) {
  const std::lock_guard lock(mutex_);
  return std::make_unique<Watch>(*this);
}

}  // namespace support

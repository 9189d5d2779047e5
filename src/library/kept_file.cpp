#include "library/kept_file.h"

#include <algorithm>
#include <utility>

#include "os/paths.h"

namespace library {

KeptFile::KeptFile(os::Files& files, const std::vector<std::string>& folders, const std::string& name,
                   SealKind kind, std::function<void()> makeFolder)
    : files_(files), kind_(kind), makeFolder_(std::move(makeFolder)) {
  for (const std::string& folder : folders) {
    if (folder.empty()) continue;
    paths_.push_back(os::JoinPath(folder, name));
  }
}

std::optional<std::string> KeptFile::load() {
  std::optional<std::string> newest;
  std::uint64_t newestSerial = 0;
  for (const std::string& path : paths_) {
    const std::optional<std::string> bytes = files_.read(path);
    if (!bytes) continue;
    const std::optional<Unsealed> found = Unseal(kind_, *bytes);
    if (!found || (newest && found->serial <= newestSerial)) continue;
    newest = std::string(found->payload);
    newestSerial = found->serial;
  }
  newestSerial_ = std::max(newestSerial_.value_or(0), newestSerial);
  return newest;
}

bool KeptFile::save(std::string_view payload) {
  if (!newestSerial_) load();
  const std::string bytes = Seal(kind_, ++*newestSerial_, payload);
  if (write(bytes)) return true;
  if (!makeFolder_) return false;
  makeFolder_();
  return write(bytes);
}

bool KeptFile::write(std::string_view bytes) {
  return std::any_of(paths_.begin(), paths_.end(),
                     [&](const std::string& path) { return files_.replace(path, bytes); });
}

}  // namespace library

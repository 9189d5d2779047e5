#include "support/fake_files.h"

#include <algorithm>

#include "base/natural_order.h"

namespace support {

std::optional<std::string> FakeFiles::read(const std::string& path) {
  reads.push_back(path);
  const auto found = content.find(path);
  if (found == content.end() || locked.contains(path)) return std::nullopt;
  return found->second;
}

std::optional<std::string> FakeFiles::readHead(const std::string& path, std::size_t limit) {
  limits.push_back(limit);
  std::optional<std::string> whole = read(path);
  if (whole) whole->resize(std::min(whole->size(), limit));
  return whole;
}

bool FakeFiles::replace(const std::string& path, std::string_view text) {
  if (onReplace) onReplace();
  writes.push_back(path);
  if (!writable || locked.contains(path)) return false;
  std::erase_if(content, [&](const auto& file) { return file.first.starts_with(path + ".new-"); });
  content[path] = std::string(text);
  return true;
}

bool FakeFiles::exists(const std::string& path) {
  lookups.push_back(path);
  return content.contains(path);
}

std::optional<os::LocalTime> FakeFiles::changedAt(const std::string& path) {
  dated.push_back(path);
  if (!content.contains(path)) return std::nullopt;
  const auto found = changed.find(path);
  return found == changed.end() ? os::LocalTime() : found->second;
}

bool FakeFiles::canWriteIn(const std::string&) { return writable; }

std::vector<std::string> FakeFiles::foldersIn(const std::string& folder) {
  const auto found = folders.find(folder);
  return found == folders.end() ? std::vector<std::string>() : found->second;
}

std::vector<std::string> FakeFiles::filesIn(const std::string& folder) {
  if (const auto found = listed.find(folder); found != listed.end()) return found->second;
  std::vector<std::string> names;
  const std::string prefix = folder.ends_with('\\') ? folder : folder + '\\';
  for (const auto& [path, text] : content) {
    if (path.starts_with(prefix) && path.find('\\', prefix.size()) == std::string::npos) {
      names.push_back(path.substr(prefix.size()));
    }
  }
  return names;
}

void FakeFiles::sortNames(std::vector<std::string>& names) {
  std::ranges::sort(names, [](const auto& a, const auto& b) { return base::CompareNaturally(a, b) < 0; });
}

std::string FakeFiles::shortPath(const std::string& path) {
  const auto found = shortPaths.find(path);
  return found == shortPaths.end() ? path : found->second;
}

}  // namespace support

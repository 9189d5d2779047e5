#include "support/fake_files.h"

namespace support {

std::optional<std::string> FakeFiles::read(const std::string& path) {
  reads.push_back(path);
  const auto found = content.find(path);
  if (found == content.end() || locked.contains(path)) return std::nullopt;
  return found->second;
}

bool FakeFiles::replace(const std::string& path, std::string_view text) {
  writes.push_back(path);
  if (!writable || locked.contains(path)) return false;
  content[path] = std::string(text);
  return true;
}

bool FakeFiles::exists(const std::string& path) { return content.contains(path); }

bool FakeFiles::copy(const std::string& from, const std::string& to) {
  const std::optional<std::string> text = read(from);
  return text && replace(to, *text);
}

bool FakeFiles::canWriteIn(const std::string&) { return writable; }

std::vector<std::string> FakeFiles::filesIn(const std::string& folder) {
  std::vector<std::string> names;
  const std::string prefix = folder.ends_with('\\') ? folder : folder + '\\';
  for (const auto& [path, text] : content) {
    if (path.starts_with(prefix) && path.find('\\', prefix.size()) == std::string::npos) {
      names.push_back(path.substr(prefix.size()));
    }
  }
  return names;
}

std::string FakeFiles::shortPath(const std::string& path) {
  const auto found = shortPaths.find(path);
  return found == shortPaths.end() ? path : found->second;
}

}  // namespace support

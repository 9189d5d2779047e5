#include "os/program.h"

namespace os {

std::string FolderOf(const std::string& path) {
  const std::size_t last = path.find_last_of("\\/");
  if (last == std::string::npos) return {};
  const bool isRoot = last == 0 || path[last - 1] == ':';
  return path.substr(0, isRoot ? last + 1 : last);
}

}  // namespace os

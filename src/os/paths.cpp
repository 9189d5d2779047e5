#include "os/paths.h"

namespace os {

namespace {

constexpr std::string_view kSlashes = "\\/";

}  // namespace

std::string FolderOf(const std::string& path) {
  const std::size_t last = path.find_last_of(kSlashes);
  if (last == std::string::npos) return {};
  const bool isRoot = last == 0 || path[last - 1] == ':';
  return path.substr(0, isRoot ? last + 1 : last);
}

std::string NameOf(const std::string& path) {
  const bool namesDrive = path.size() > 1 && path[1] == ':';
  if (namesDrive && path.find_last_not_of(kSlashes) == 1) return path;
  const std::size_t last = path.find_last_of(kSlashes);
  if (last != std::string::npos) return path.substr(last + 1);
  return namesDrive ? path.substr(2) : path;
}

std::string JoinPath(const std::string& folder, std::string_view name) {
  std::string path = folder;
  if (!path.ends_with('\\')) path += '\\';
  path += name;
  return path;
}

std::wstring LongPath(std::wstring_view absolutePath) {
  std::wstring path(absolutePath);
  if (path.starts_with(L"\\\\?\\") || path.starts_with(L"\\\\.\\")) return path;
  if (path.starts_with(L"\\\\")) return L"\\\\?\\UNC" + path.substr(1);
  return L"\\\\?\\" + path;
}

std::wstring PlainPath(std::wstring_view path) {
  constexpr std::wstring_view kShare = L"\\\\?\\UNC\\";
  constexpr std::wstring_view kDrive = L"\\\\?\\";
  if (path.starts_with(kShare)) return L"\\\\" + std::wstring(path.substr(kShare.size()));
  const bool isDrive =
      path.starts_with(kDrive) && path.size() > kDrive.size() + 1 && path[kDrive.size() + 1] == L':';
  return std::wstring(isDrive ? path.substr(kDrive.size()) : path);
}

}  // namespace os

// Paths as text. Folders are separated by backslashes, in what people wrote by hand by slashes too.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace os {

// The folder part of a path, without a backslash at its end unless it is a drive's root ("C:\"); empty for a
// bare name.
std::string FolderOf(const std::string& path);

// The last part of a path: a file's or a folder's own name. A drive and its root ("C:\") are their own names.
std::string NameOf(const std::string& path);

// The path of a name in a folder, which may end in a backslash or not.
std::string JoinPath(const std::string& folder, std::string_view name);

// Above this many characters a path needs the form of LongPath(): a folder's limit, which leaves room for an
// 8.3 name in the 260 characters of a path with its end mark (platform documentation, "Maximum Path Length").
constexpr std::size_t kLongestPlainPath = 247;

// The form of an absolute path that the system takes at any length: "\\?\C:\..." or "\\?\UNC\server\...". A
// path that has a form of its own ("\\?\", "\\.\") stays as it is.
std::wstring LongPath(std::wstring_view absolutePath);

// The path of a drive or a share as people write it, without the form of LongPath(); others stay as they are.
std::wstring PlainPath(std::wstring_view path);

}  // namespace os

// Opening files at UTF-8 paths of any length.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>
#include <utility>

namespace os {

// The path for the system's W functions; `extra` characters can be added to it.
std::wstring WidePath(const std::string& path, std::size_t extra = 0);

// True when there is a file at a path.
bool IsFile(const std::string& path);

// The path from the root on; the path itself when the system knows no other.
std::wstring FullPath(const std::wstring& path);

// An open file, closed at the end of its owner.
class FileHandle {
 public:
  explicit FileHandle(HANDLE handle) : handle_(handle) {}
  FileHandle(FileHandle&& other) noexcept : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}
  FileHandle& operator=(FileHandle&&) = delete;
  ~FileHandle() {
    if (isOpen()) CloseHandle(handle_);
  }

  bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return handle_; }

 private:
  HANDLE handle_;
};

// A file opened for reading from its beginning on, which everyone else may go on reading, writing, renaming
// and deleting. Not open for what is no file on a disk: a folder, a device name, a pipe.
FileHandle OpenForReading(const std::string& path);

}  // namespace os

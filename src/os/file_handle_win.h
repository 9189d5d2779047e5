// An open file, closed at the end of its owner.
#pragma once

#include <windows.h>

#include <utility>

namespace os {

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

}  // namespace os

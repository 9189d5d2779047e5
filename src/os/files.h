// Files and folders by their UTF-8 paths.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "os/clock.h"

namespace os {

class Files {
 public:
  virtual ~Files() = default;

  // The whole file, or nothing when it cannot be read.
  virtual std::optional<std::string> read(const std::string& path) = 0;

  // The first `limit` bytes of the file, all of it when it is shorter. Nothing when it cannot be read, and
  // for everything that is not a file: a folder, a device, a pipe.
  virtual std::optional<std::string> readHead(const std::string& path, std::size_t limit) = 0;

  // Puts `content` in the file's place in one step: it is written beside it, flushed, and renamed over it, so
  // that at every instant the file is the old one or the new one, whole. False when it did not succeed; the
  // old file then stands as it was and nothing is left beside it.
  virtual bool replace(const std::string& path, std::string_view content) = 0;

  virtual bool exists(const std::string& path) = 0;

  // When the file at a path was written last; nothing when there is none.
  virtual std::optional<LocalTime> changedAt(const std::string& path) = 0;

  // True when a file can be made in the folder.
  virtual bool canWriteIn(const std::string& folder) = 0;

  // Names (not paths) of a folder's visible folders and files, in the folder's own order; empty when it
  // cannot be read.
  virtual std::vector<std::string> foldersIn(const std::string& folder) = 0;
  virtual std::vector<std::string> filesIn(const std::string& folder) = 0;

  // The roots of the drives ("C:\"), in their own order.
  virtual std::vector<std::string> drives() = 0;

  // The folder in which the program works: a file name without a folder means a file that lies there.
  virtual std::string currentFolder() = 0;

  // False when there is no such folder; the program then goes on working where it did.
  virtual bool enterFolder(const std::string& folder) = 0;

  // Where the user keeps pictures; empty when the system names no folder.
  virtual std::string picturesFolder() = 0;

  // Puts names into the order in which the system shows them: as people sort, 2 before 10, accents beside
  // their letters.
  virtual void sortNames(std::vector<std::string>& names) = 0;

  // The short (8.3) form of a path where the file system has one, else the path itself.
  virtual std::string shortPath(const std::string& path) = 0;
};

}  // namespace os

// What lies in a folder, for those who list whole trees. May be asked on any thread.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace os {

struct FolderEntry {
  std::string name;
  bool isFolder = false;
  bool isLink = false;  // a junction or symbolic link: what lies in it may lie elsewhere too

  bool operator==(const FolderEntry&) const = default;
};

// Tells of changes in a folder from the moment on at which it was made.
class FolderWatch {
 public:
  virtual ~FolderWatch() = default;

  // Waits until a file or folder has come, gone or got another name, at most so long. False when the time has
  // passed, or at once after an interruption.
  virtual bool waitForChange(int atMostMs) = 0;

  // Ends the wait, now and in future. From any thread.
  virtual void interrupt() = 0;
};

class FolderReader {
 public:
  virtual ~FolderReader() = default;

  // The entries that are neither hidden nor the system's own, in the folder's own order; nothing when the
  // folder cannot be read.
  virtual std::optional<std::vector<FolderEntry>> read(const std::string& folder) = 0;

  // True when there is a file at a path, hidden or not.
  virtual bool hasFile(const std::string& path) = 0;

  // The folder's path behind all links; nothing when it cannot be found out.
  virtual std::optional<std::string> finalPath(const std::string& folder) = 0;

  // Sorts names as the system shows them to people.
  virtual void sortNames(std::vector<std::string>& names) = 0;

  // Endings of the files that the system's picture decoders read, such as ".png".
  virtual std::vector<std::string> pictureEndings() = 0;

  // Never null: where the file system tells of no changes, the wait takes its whole time.
  virtual std::unique_ptr<FolderWatch> watch(const std::string& folder, bool subfolders) = 0;
};

}  // namespace os

// A disk in memory that remembers what was asked of it.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "os/files.h"

namespace support {

// Paths are compared letter for letter, with backslashes between folders.
class FakeFiles : public os::Files {
 public:
  std::optional<std::string> read(const std::string& path) override;
  std::optional<std::string> readHead(const std::string& path, std::size_t limit) override;
  bool replace(const std::string& path, std::string_view content) override;
  bool exists(const std::string& path) override;
  std::optional<os::LocalTime> changedAt(const std::string& path) override;
  bool canWriteIn(const std::string& folder) override;
  std::vector<std::string> foldersIn(const std::string& folder) override;
  std::vector<std::string> filesIn(const std::string& folder) override;
  std::vector<std::string> drives() override { return roots; }
  std::string currentFolder() override { return current; }
  bool enterFolder(const std::string& folder) override {
    if (folder.empty() || gone.contains(folder)) return false;
    current = folder;
    return true;
  }
  std::string picturesFolder() override { return pictures; }
  void sortNames(std::vector<std::string>& names) override;
  std::string shortPath(const std::string& path) override;

  std::map<std::string, std::string> content;               // by path
  std::map<std::string, os::LocalTime> changed;             // by path; another file was changed in 2000
  std::map<std::string, std::vector<std::string>> folders;  // names in a folder, by its path
  std::map<std::string, std::vector<std::string>> listed;  // files of a folder in place of those in `content`
  std::vector<std::string> roots = {"C:\\"};
  std::string current = "C:\\";
  std::set<std::string> gone;     // folders that cannot be entered
  std::string pictures = "C:\\";  // the user's folder of pictures; empty: the system names none

  bool writable = true;          // false: every write fails
  std::set<std::string> locked;  // paths that cannot be read or replaced
  std::map<std::string, std::string> shortPaths;
  std::function<void()> onReplace;   // before a file is replaced
  std::vector<std::string> reads;    // paths in the order of reading
  std::vector<std::size_t> limits;   // of the heads, in the order of reading
  std::vector<std::string> writes;   // paths in the order of writing
  std::vector<std::string> lookups;  // paths whose existence was asked, in that order
  std::vector<std::string> dated;    // paths of which was asked when they were changed, in that order
};

}  // namespace support

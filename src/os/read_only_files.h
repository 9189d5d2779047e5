// Files of which none can be written.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "os/files.h"

namespace os {

// One file is read from memory, whatever lies at its path; all others are those of the machine.
class ReadOnlyFiles final : public Files {
 public:
  // `files` outlives this.
  ReadOnlyFiles(Files& files, std::string path, std::string content)
      : files_(files), path_(std::move(path)), content_(std::move(content)) {}

  std::optional<std::string> read(const std::string& path) override {
    return path == path_ ? content_ : files_.read(path);
  }
  std::optional<std::string> readHead(const std::string& path, std::size_t limit) override {
    return path == path_ ? content_.substr(0, limit) : files_.readHead(path, limit);
  }
  bool replace(const std::string&, std::string_view) override { return false; }
  bool exists(const std::string& path) override { return path == path_ || files_.exists(path); }
  std::optional<LocalTime> changedAt(const std::string& path) override { return files_.changedAt(path); }
  bool canWriteIn(const std::string&) override { return false; }
  std::vector<std::string> foldersIn(const std::string& folder) override { return files_.foldersIn(folder); }
  std::vector<std::string> filesIn(const std::string& folder) override { return files_.filesIn(folder); }
  std::vector<std::string> drives() override { return files_.drives(); }
  std::string currentFolder() override { return files_.currentFolder(); }
  bool enterFolder(const std::string& folder) override { return files_.enterFolder(folder); }
  std::string picturesFolder() override { return files_.picturesFolder(); }
  void sortNames(std::vector<std::string>& names) override { files_.sortNames(names); }
  std::string shortPath(const std::string& path) override { return files_.shortPath(path); }

 private:
  Files& files_;
  std::string path_;
  std::string content_;
};

}  // namespace os

// Files of which chosen calls fail, each in a way of its own; the others work.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "os/files.h"

namespace support {

enum class Fault {
  NoRoom,        // nothing can be written
  NoPermission,  // nothing can be read or written; what is there is seen
  InUse,         // the same, by another process
  Vanished,      // the folder is not there at this moment: nothing is seen
};

constexpr Fault kAllFaults[] = {Fault::NoRoom, Fault::NoPermission, Fault::InUse, Fault::Vanished};

class FaultyFiles : public os::Files {
 public:
  explicit FaultyFiles(os::Files& files) : files_(files) {}

  // By the number of the call, counted from 1.
  std::map<int, Fault> faults;
  int calls = 0;

  std::optional<std::string> read(const std::string& path) override {
    const Fault* fault = next();
    return fault && *fault != Fault::NoRoom ? std::nullopt : files_.read(path);
  }
  std::optional<std::string> readHead(const std::string& path, std::size_t limit) override {
    return files_.readHead(path, limit);
  }
  bool replace(const std::string& path, std::string_view content) override {
    return !next() && files_.replace(path, content);
  }
  bool exists(const std::string& path) override {
    const Fault* fault = next();
    return !(fault && *fault == Fault::Vanished) && files_.exists(path);
  }
  std::optional<os::LocalTime> changedAt(const std::string& path) override { return files_.changedAt(path); }
  bool canWriteIn(const std::string& folder) override { return !next() && files_.canWriteIn(folder); }
  std::vector<std::string> filesIn(const std::string& folder) override { return files_.filesIn(folder); }
  std::vector<std::string> foldersIn(const std::string& folder) override { return files_.foldersIn(folder); }
  std::vector<std::string> drives() override { return files_.drives(); }
  std::string currentFolder() override { return files_.currentFolder(); }
  bool enterFolder(const std::string& folder) override { return files_.enterFolder(folder); }
  std::string picturesFolder() override { return files_.picturesFolder(); }
  void sortNames(std::vector<std::string>& names) override { files_.sortNames(names); }
  std::string shortPath(const std::string& path) override { return files_.shortPath(path); }

 private:
  // The fault of this call, or null.
  const Fault* next() {
    const auto found = faults.find(++calls);
    return found == faults.end() ? nullptr : &found->second;
  }

  os::Files& files_;
};

}  // namespace support

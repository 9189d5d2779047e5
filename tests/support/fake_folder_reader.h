// Folders in memory that can be asked on any thread, with links, faults and changes.
#pragma once

#include <condition_variable>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

#include "os/folder_reader.h"

namespace support {

class FakeFolderReader : public os::FolderReader {
 public:
  // "C:\\a\\b.jpg"; the folders above it are made as needed.
  void addFile(const std::string& path);
  void addFolder(const std::string& path);
  void addLink(const std::string& path, const std::string& target);
  void removeFile(const std::string& path);

  // What the folder answers from now on: nothing at all, or no answer until it is let go.
  void setAway(const std::string& folder, bool away);
  void hold(const std::string& folder, bool held);

  // Ends the waits of the folder's watches as a change does.
  void tellOfChange();

  // Lets the time of all waits pass once.
  void letTimePass();

  int reads() const;
  std::vector<int> waits() const;  // how long the watches were to wait, in order

  std::optional<std::vector<os::FolderEntry>> read(const std::string& folder) override;
  bool hasFile(const std::string& path) override;
  std::optional<std::string> finalPath(const std::string& folder) override;
  void sortNames(std::vector<std::string>& names) override;
  std::vector<std::string> pictureEndings() override { return endings; }
  std::unique_ptr<os::FolderWatch> watch(const std::string& folder, bool subfolders) override;

  std::vector<std::string> endings = {".png"};

 private:
  class Watch;

  // Behind all links on the way.
  std::string resolved(std::string folder) const;

  mutable std::mutex mutex_;
  std::condition_variable changed_;
  std::map<std::string, std::map<std::string, os::FolderEntry>> folders_;  // by path without last backslash
  std::map<std::string, std::string> links_;
  std::set<std::string> away_;
  std::set<std::string> held_;
  int changes_ = 0;
  int passings_ = 0;
  int reads_ = 0;
  std::vector<int> waits_;
};

}  // namespace support

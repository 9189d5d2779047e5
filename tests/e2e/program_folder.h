// A program folder of a test's own, with its own settings and pictures.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "base/color.h"
#include "base/geometry.h"

namespace e2e {

// Where the built program folder is; set by main from the command line (Windows path, no last backslash).
extern std::wstring builtFolder;

// Made in the temporary folder with a copy of Lumora.scr; removed at the end. `name` may hold any letters.
class ProgramFolder {
 public:
  explicit ProgramFolder(const std::wstring& name = L"show");
  ~ProgramFolder();
  ProgramFolder(const ProgramFolder&) = delete;
  ProgramFolder& operator=(const ProgramFolder&) = delete;

  const std::wstring& path() const { return path_; }
  std::wstring program() const { return path_ + L"\\Lumora.scr"; }
  std::wstring settingsFile() const { return path_ + L"\\zbfaone.ini"; }

  // Settings by "section/key"; a key that is not set keeps the tests' plain defaults: black, centred, no
  // effects, no clock, no captions, one second a picture.
  void set(const std::string& sectionAndKey, const std::string& value) { settings_[sectionAndKey] = value; }

  // Adds a picture of one colour to the list, with a caption.
  void addPicture(base::PixelSize size, base::PackedColor color, const std::string& caption = "");

  // Adds a file to the list that may be a picture or not.
  void addPath(const std::string& path, const std::string& caption = "") {
    pictures_.emplace_back(path, caption);
  }

  // Writes a file into the folder and gives its path.
  std::string writeFile(const std::string& name, const std::string& bytes) const;

  // Writes a bitmap file of one colour into the folder and gives its path.
  std::string writeBitmap(const std::string& name, base::PixelSize size, base::PackedColor color) const;

  // Writes zbfaone.ini as it has been set.
  void writeSettings() const;

  std::string readSettingsFile() const;

 private:
  std::wstring path_;
  std::map<std::string, std::string> settings_;
  std::vector<std::pair<std::string, std::string>> pictures_;
};

}  // namespace e2e

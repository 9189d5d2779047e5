#include "e2e/program_folder.h"

#include <windows.h>

#include <fstream>
#include <sstream>
#include <vector>

#include "os/utf16_win.h"
#include "support/plain_show.h"
#include "support/temporary_folder_win.h"

namespace e2e {

std::wstring builtFolder;

namespace {

void RemoveTree(const std::wstring& folder) {
  WIN32_FIND_DATAW entry{};
  const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &entry);
  if (search != INVALID_HANDLE_VALUE) {
    do {
      const std::wstring name = entry.cFileName;
      if (name == L"." || name == L"..") continue;
      const std::wstring path = folder + L"\\" + name;
      if (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
        RemoveTree(path);
      } else {
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileW(path.c_str());
      }
    } while (FindNextFileW(search, &entry));
    FindClose(search);
  }
  RemoveDirectoryW(folder.c_str());
}

}  // namespace

ProgramFolder::ProgramFolder(const std::wstring& name) : settings_(support::PlainShow()) {
  settings_["font/newFontSize"] = "20";  // large enough to be found on the screen
  wchar_t temp[MAX_PATH];
  GetTempPathW(MAX_PATH, temp);
  static int serial = 0;
  path_ = std::wstring(temp) + L"lumora-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
          std::to_wstring(++serial) + L"-" + name;
  CreateDirectoryW(path_.c_str(), nullptr);
  CopyFileW((builtFolder + L"\\Lumora.scr").c_str(), program().c_str(), FALSE);
}

ProgramFolder::~ProgramFolder() { RemoveTree(path_); }

void ProgramFolder::addPicture(base::PixelSize size, base::PackedColor color, const std::string& caption) {
  pictures_.emplace_back(writeBitmap("picture" + std::to_string(pictures_.size()) + ".bmp", size, color),
                         caption);
}

std::string ProgramFolder::writeBitmap(const std::string& name, base::PixelSize size,
                                       base::PackedColor color) const {
  const int stride = (size.width * 3 + 3) / 4 * 4;
  std::string bytes(54 + static_cast<std::size_t>(stride) * static_cast<std::size_t>(size.height), '\0');
  const auto put = [&](std::size_t at, unsigned value, int count) {
    for (int i = 0; i < count; ++i)
      bytes[at + static_cast<std::size_t>(i)] = static_cast<char>(value >> 8 * i & 0xFF);
  };
  bytes[0] = 'B';
  bytes[1] = 'M';
  put(2, static_cast<unsigned>(bytes.size()), 4);
  put(10, 54, 4);
  put(14, 40, 4);
  put(18, static_cast<unsigned>(size.width), 4);
  put(22, static_cast<unsigned>(size.height), 4);
  put(26, 1, 2);
  put(28, 24, 2);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const auto at = 54 + static_cast<std::size_t>(y) * static_cast<std::size_t>(stride) +
                      static_cast<std::size_t>(x) * 3;
      bytes[at] = static_cast<char>(base::BlueOf(color));
      bytes[at + 1] = static_cast<char>(base::GreenOf(color));
      bytes[at + 2] = static_cast<char>(base::RedOf(color));
    }
  }
  return writeFile(name, bytes);
}

std::string ProgramFolder::writeFile(const std::string& name, const std::string& bytes) const {
  std::string path = os::FromWide(path_) + "\\" + name;
  support::WriteFileAt(path, bytes);
  return path;
}

void ProgramFolder::writeSettings() const {
  support::Settings settings = settings_;
  settings.try_emplace("total/total", std::to_string(pictures_.size()));
  for (std::size_t i = 0; i < pictures_.size(); ++i) {
    settings["images/" + std::to_string(i)] = pictures_[i].first;
    settings["caption/" + std::to_string(i)] = pictures_[i].second;
  }
  support::WriteFileAt(os::FromWide(settingsFile()), support::IniText(settings));
}

std::string ProgramFolder::readSettingsFile() const {
  const HANDLE file = CreateFileW(settingsFile().c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                  nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return {};
  std::string text(static_cast<std::size_t>(GetFileSize(file, nullptr)), '\0');
  DWORD got = 0;
  ReadFile(file, text.data(), static_cast<DWORD>(text.size()), &got, nullptr);
  CloseHandle(file);
  text.resize(got);
  return text;
}

}  // namespace e2e

// Loading and saving of long picture lists, beside one call of the profile functions for each key.
#include <windows.h>

#include <string>
#include <vector>

#include "bench/bench_table.h"
#include "bench/rows.h"
#include "os/ansi_code_page_win.h"
#include "os/files_win.h"
#include "os/utf16_win.h"
#include "settings/load_settings.h"
#include "settings/settings_file.h"
#include "support/temporary_folder_win.h"

namespace bench {

namespace {

struct Lists {
  std::vector<std::string> paths;
  std::vector<std::string> captions;
};

Lists ListsOf(int count) {
  Lists lists;
  for (int i = 0; i < count; ++i) {
    lists.paths.push_back("C:\\Pictures\\Holidays by the sea\\picture " + std::to_string(i) + ".jpg");
    lists.captions.push_back("Caption of picture " + std::to_string(i));
  }
  return lists;
}

// A program folder with a settings file of so many pictures.
class Folder {
 public:
  explicit Folder(int count) : lists_(ListsOf(count)) { save(); }

  const std::string& path() const { return folder_.path(); }
  std::string file() const { return os::FromWide(os::ToWide(settings::IniPath(path()))); }

  void load() {
    settings::SaverSettings loaded;
    settings::LoadSettings(loaded, settings::OpenSettings(files_, ansi_, path()));
  }

  void save() {
    settings::IniDocument document = settings::OpenSettings(files_, ansi_, path());
    settings::WriteSettings(document, {}, lists_.paths, lists_.captions);
    files_.replace(settings::IniPath(path()), document.serialise());
  }

  // The documented reads, one call a key.
  void loadKeyByKey() const {
    char value[255];
    for (const char* section : {"images", "caption"}) {
      for (std::size_t i = 0; i < lists_.paths.size(); ++i) {
        GetPrivateProfileStringA(section, std::to_string(i).c_str(), "", value, sizeof(value),
                                 file().c_str());
      }
    }
  }

  // The documented writes, one call a key.
  void saveKeyByKey() const {
    const std::string path = file();
    for (const char* section : {"images", "caption"}) {
      WritePrivateProfileStringA(section, nullptr, nullptr, path.c_str());
      const std::vector<std::string>& values = section[0] == 'i' ? lists_.paths : lists_.captions;
      for (std::size_t i = 0; i < values.size(); ++i) {
        WritePrivateProfileStringA(section, std::to_string(i).c_str(), values[i].c_str(), path.c_str());
      }
    }
  }

 private:
  support::TemporaryFolder folder_;
  Lists lists_;
  os::FilesWin files_;
  os::AnsiCodePageWin ansi_;
};

}  // namespace

void BenchSettings() {
  Folder two(2000);
  const double load = MedianMs([&] { two.load(); });
  PrintRow("load 2,000 pictures and captions", "key by key with GetPrivateProfileStringA",
           MedianMs([&] { two.loadKeyByKey(); }) / load, ">= 100 times faster");
  const double save = MedianMs([&] { two.save(); });
  // One run: the reference takes the better part of a minute.
  const ULONGLONG start = GetTickCount64();
  two.saveKeyByKey();
  const auto reference = static_cast<double>(GetTickCount64() - start);
  PrintRow("save 2,000 pictures", "key by key with WritePrivateProfileStringA", reference / save,
           ">= 300 times faster");
  Folder three(3000);
  Folder thirty(30000);
  PrintRow("load 30,000 pictures", "load 3,000 pictures",
           TimeRatio([&] { thirty.load(); }, [&] { three.load(); }), "<= 12 times");
}

}  // namespace bench

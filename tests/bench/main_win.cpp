// Prints the benchmark table.
#include <windows.h>

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "base/number_text.h"
#include "bench/bare_window.h"
#include "bench/bench_table.h"
#include "bench/start_and_end.h"
#include "e2e/program_folder.h"
#include "os/ansi_code_page_win.h"
#include "os/files_win.h"
#include "os/utf16_win.h"
#include "settings/load_settings.h"
#include "settings/open_settings.h"
#include "settings/settings_path.h"
#include "settings/write_settings.h"
#include "support/real_dialog_win.h"
#include "support/show_stage.h"
#include "support/temporary_folder_win.h"

namespace {

using bench::MedianMs;
using bench::PrintRow;

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
    settings::LoadSettings(loaded, files_, ansi_, path());
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
           MedianMs([&] { thirty.load(); }) / MedianMs([&] { three.load(); }), "<= 12 times");
}

double OpenDialogMs(int pictures) {
  return MedianMs([&] {
    support::DialogMachine machine;
    machine.set("total", "total", std::to_string(pictures));
    machine.pictures.add("C:\\p\\0.jpg", {64, 48}, base::Rgb(200, 80, 0));  // the one that is shown
    for (int i = 0; i < pictures; ++i)
      machine.set("images", std::to_string(i), "C:\\p\\" + std::to_string(i) + ".jpg");
    machine.writeSettings();
    const support::RealDialog dialog(machine);
  });
}

void BenchDialog() {
  PrintRow("show the dialog on 30,000 pictures", "on 10 pictures", OpenDialogMs(30000) / OpenDialogMs(10),
           "<= 3 times");
}

void BenchDayOfShow() {
  const double day = MedianMs([] {
    support::ShowStage show({320, 240});
    for (int i = 0; i < 5; ++i) show.addPicture({100, 80}, base::Rgb(200, 40 * i, 0), "Picture");
    show.set("image/timeInterval", "60");
    show.start();
    show.runFor(24LL * 3600 * 1000);
  });
  PrintRow("a day of show on a clock turned by hand", "a day", 24.0 * 3600 * 1000 / day,
           "(times faster; no bar)");
}

}  // namespace

// Argument: the built program folder (Windows path).
int main(int argc, char** argv) {
  if (argc > 1 && std::string_view(argv[1]) == "--bare") return bench::RunBareWindow();
  if (argc > 1) e2e::builtFolder = os::ToWide(argv[1]);
  std::printf("%-52s | %-52s | %10s | %s\n", "work", "reference", "ratio", "bar");
  bench::BenchStartAndEnd();
  BenchSettings();
  BenchDialog();
  BenchDayOfShow();
  return 0;
}

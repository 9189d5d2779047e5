#include <windows.h>

#include <vector>

#include "e2e/saving_process.h"
#include "os/ansi_code_page_win.h"
#include "os/files_win.h"
#include "settings/settings_file.h"

namespace e2e {

void SaveOnce(const std::string& programFolder, const std::string& kind) {
  os::FilesWin files;
  const os::AnsiCodePageWin ansi;
  settings::IniDocument document = settings::OpenSettings(files, ansi, programFolder);
  std::vector<std::string> paths;
  std::vector<std::string> captions;
  for (int i = 0; i < kSavedPictures; ++i) {
    paths.push_back("C:\\pictures\\" + std::to_string(i) + kind + ".jpg");
    captions.push_back(kind + std::to_string(i));
  }
  settings::SettingsRecord record;
  record.newFontName = kind;
  settings::WriteSettings(document, record, paths, captions);
  files.replace(settings::IniPath(programFolder), document.serialise());
}

void SaveForEver(const std::string& programFolder) {
  os::FilesWin().replace(programFolder + "\\started", "");
  for (;;) {
    SaveOnce(programFolder, "even");
    SaveOnce(programFolder, "odd");
  }
}

}  // namespace e2e

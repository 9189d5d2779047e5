#include "settings/open_settings.h"

#include "settings/seed_first_run.h"
#include "settings/settings_path.h"

namespace settings {

IniDocument OpenSettings(os::Files& files, const os::AnsiCodePage& ansi, const std::string& programFolder) {
  const std::string path = IniPath(programFolder);
  IniDocument document(files.read(path).value_or(std::string()), ansi);
  if (SeedFirstRun(document, programFolder)) files.replace(path, document.serialise());
  return document;
}

}  // namespace settings

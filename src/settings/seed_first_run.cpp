#include "settings/seed_first_run.h"

#include "os/paths.h"
#include "settings/keys.h"
#include "settings/read_ini_value.h"

namespace settings {

namespace {

constexpr std::string_view kSection = "firstrun";
constexpr std::string_view kMarker = "samples";
constexpr std::string_view kPresent = "1";
constexpr std::string_view kCleared = "0";

}  // namespace

bool SeedFirstRun(IniDocument& document, const std::string& programFolder) {
  if (ReadIniValue(document, kSection, kMarker) != kPresent) return false;
  document.set(kImagesSection, "0", os::JoinPath(programFolder, "image1.gif"));
  document.set(kImagesSection, "1", os::JoinPath(programFolder, "image2.gif"));
  ClearFirstRunMarker(document);
  return true;
}

void ClearFirstRunMarker(IniDocument& document) {
  if (document.has(kSection, kMarker)) document.set(kSection, kMarker, kCleared);
}

}  // namespace settings

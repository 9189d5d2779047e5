#include "settings/write_settings.h"

#include <cstddef>

#include "settings/keys.h"
#include "settings/seed_first_run.h"

namespace settings {

namespace {

void WriteList(IniDocument& document, std::string_view section, const std::vector<std::string>& list) {
  document.eraseSection(section);
  for (std::size_t i = 0; i < list.size(); ++i) document.set(section, std::to_string(i), list[i]);
  document.set(section, std::to_string(list.size()), "");
}

}  // namespace

void WriteSettings(IniDocument& document, const SettingsRecord& record, const std::vector<std::string>& paths,
                   const std::vector<std::string>& captions) {
  WriteList(document, kImagesSection, paths);
  document.set(TotalKey().section, TotalKey().name, std::to_string(paths.size()));
  WriteList(document, kCaptionSection, captions);
  for (const Key& key : WrittenKeys()) document.set(key.section, key.name, record.*key.field);
  ClearFirstRunMarker(document);
}

}  // namespace settings

// What a save puts into the settings file.
#pragma once

#include <string>
#include <vector>

#include "settings/ini_document.h"
#include "settings/settings_record.h"

namespace settings {

// Rebuilds [images] from `paths` and [caption] from `captions`, each with one more empty key numbered with
// its count; sets [total] to the number of paths; and writes every documented key with the record's text as
// it stands (record.total does not count). [extras], comments and unknown keys stay as they are. The
// first-run marker is cleared, for the list is the user's from now on. Changes the document only; the caller
// writes its bytes.
void WriteSettings(IniDocument& document, const SettingsRecord& record, const std::vector<std::string>& paths,
                   const std::vector<std::string>& captions);

}  // namespace settings

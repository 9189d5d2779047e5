// The sample pictures of the first run after installation.
#pragma once

#include <string>

#include "settings/ini_document.h"

namespace settings {

// The installed file carries [firstrun] samples=1. While it does, puts the two sample pictures of the program
// folder into [images] "0" and "1" and clears the marker; [total] and [caption] stay as they are. True when
// it changed the document, which is then worth writing.
bool SeedFirstRun(IniDocument& document, const std::string& programFolder);

// Clears the marker, so that pictures that the user chose are not replaced by the samples. Does nothing to a
// file without one.
void ClearFirstRunMarker(IniDocument& document);

}  // namespace settings

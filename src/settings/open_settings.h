// The settings file as both of its readers open it.
#pragma once

#include <string>

#include "os/ansi_code_page.h"
#include "os/files.h"
#include "settings/ini_document.h"

namespace settings {

// Reads `zbfaone.ini` in `programFolder`; a file that is missing or cannot be read is an empty document. On
// the first run after installation the sample pictures are put in and the file is replaced at once; where it
// cannot be written the document holds them all the same. `ansi` must outlive the document.
IniDocument OpenSettings(os::Files& files, const os::AnsiCodePage& ansi, const std::string& programFolder);

}  // namespace settings

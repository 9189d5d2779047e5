// How much of a text the settings file holds.
#pragma once

#include <cstddef>
#include <string_view>

#include "os/ansi_code_page.h"

namespace settings {

// Characters of a text as the profile functions count them: bytes of the ANSI code page, or UTF-16 units
// where a character has no place in it, for the file is UTF-16 then. A text that fits the code page can still
// lie in a UTF-16 file because of another one; the greater of the two counts, so that it fits either way.
std::size_t StoredLength(std::string_view text, const os::AnsiCodePage& ansi);

// True when the text comes back whole from the settings file (254 characters at most).
bool FitsSettings(std::string_view text, const os::AnsiCodePage& ansi);

}  // namespace settings

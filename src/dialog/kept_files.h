// Settings files that a save keeps beside the new one.
#pragma once

#include <string>

#include "dialog/form2.h"

namespace dialog {

// Keeps a settings file that was not loaded well in the program folder: as zbfaone.bak, or as zbfaone-2.bak
// to zbfaone-5.bak while earlier ones hold something. zbfaone.bak gives way only to a file that loads well,
// and where nothing in it can be used; with all five taken the last of them gives way. A file that is kept
// already is not kept twice. False when it could not be written.
bool KeepOldFile(const Form2& form, const std::string& old);

}  // namespace dialog

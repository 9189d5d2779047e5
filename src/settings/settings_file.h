// The settings file: where it lies, what one value of it is, how it is opened and what a save puts into it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "os/ansi_code_page.h"
#include "os/files.h"
#include "settings/ini_document.h"
#include "settings/settings_record.h"

namespace settings {

// The settings file is addressed by this full path alone; no other folder is searched.
std::string IniPath(const std::string& programFolder);

// A buffer of 255 characters holds 254 and its end mark.
inline constexpr std::size_t kLongestValue = 254;

// The value, cut to 254 characters; empty text when the section or key is absent.
std::string ReadIniValue(const IniDocument& document, std::string_view section, std::string_view key);
std::string ReadIniValue(const IniDocument& document, const Key& key);

// Characters of a text as the profile functions count them: bytes of the ANSI code page, or UTF-16 units
// where a character has no place in it, for the file is UTF-16 then. A text that fits the code page can still
// lie in a UTF-16 file because of another one; the greater of the two counts, so that it fits either way.
std::size_t StoredLength(std::string_view text, const os::AnsiCodePage& ansi);

// True when the text comes back whole from the settings file (254 characters at most).
bool FitsSettings(std::string_view text, const os::AnsiCodePage& ansi);

// Reads `zbfaone.ini` in `programFolder`; a file that is missing or cannot be read is an empty document. On
// the first run after installation, which the file tells by [firstrun] samples=1, the two sample pictures of
// the program folder are put into [images] "0" and "1" unless it has a "0" of its own, the marker is cleared
// and the file is replaced at once; [total] and [caption] stay as they are. Where it cannot be written the
// document holds them all the same. `ansi` must outlive the document.
IniDocument OpenSettings(os::Files& files, const os::AnsiCodePage& ansi, const std::string& programFolder);

// Rebuilds [images] from `paths` and [caption] from `captions`, each with one more empty key numbered with
// its count; sets [total] to the number of paths; and writes every documented key with the record's text as
// it stands (record.total does not count). [extras], comments and unknown keys stay as they are. The
// first-run marker is cleared, for the list is the user's from now on. Where the code page would need more
// bytes for a caption than are read back, the file becomes UTF-16. Changes the document only; the caller
// writes its bytes.
void WriteSettings(IniDocument& document, const SettingsRecord& record, const std::vector<std::string>& paths,
                   const std::vector<std::string>& captions);

// Writes those settings of [extras] that differ from what was loaded. One whose text is that of its absence
// is taken out of the file.
void WriteExtras(IniDocument& document, const SettingsRecord& record, const SettingsRecord& loaded);

// Makes `folders` those of [folders], unless they are the ones that were loaded. What stands behind a gap in
// their numbers stays there unless it would be taken for one more of them.
void WriteFolders(IniDocument& document, const std::vector<std::string>& folders,
                  const std::vector<std::string>& loaded);

}  // namespace settings

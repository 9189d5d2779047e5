// Texts in the encodings in which programs note them in picture files.
#pragma once

#include <string>
#include <string_view>

namespace pictures {

// True where there is nothing to read: blanks and control characters at most.
bool IsBlank(std::string_view text);

// Takes a text over where there is none yet; blank ones are none.
void NoteFirst(std::string& place, std::string text);

// UTF-16 as UTF-8, up to the first zero. The byte order is that of the mark in front; without one it is the
// order in which more units are Latin letters, little-endian when in doubt.
std::string TextOfUtf16(std::string_view bytes);

// A text that is meant to be of one byte a character, up to the first zero. Marks in front may tell that it
// is UTF-8 or UTF-16, which then becomes UTF-8; without one the bytes stay as they are.
std::string NotedText(std::string_view bytes);

}  // namespace pictures

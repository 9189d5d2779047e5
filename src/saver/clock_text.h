// The widest text that the clock comes to show.
#pragma once

#include <string>

#include "os/date_text.h"
#include "saver/text_width.h"

namespace saver {

// Among the general date texts of the year that begins at `now`, in a font that sets every character at its
// own fixed width. Measures some five hundred texts: meant to be asked once.
std::string WidestClockText(const os::DateText& form, const os::LocalTime& now, const TextWidth& widthOf);

}  // namespace saver

// The widest text that the clock or the countdown comes to show: the label's place is made for it.
#pragma once

#include <functional>
#include <string>

#include "os/date_text.h"
#include "saver/countdown.h"

namespace saver {

// How wide a text is, as the label that is to show it would measure it: in any unit, the same for all texts
// that are compared.
using TextWidth = std::function<int(const std::string& text)>;

// Among the general date texts of the year that begins at `now`, in a font that sets every character at its
// own fixed width. Measures some five hundred texts: meant to be asked once.
std::string WidestClockText(const os::DateText& form, const os::LocalTime& now, const TextWidth& widthOf);

// Of all texts that the countdown shows from `present` on to its end, in such a font. Measures some twenty
// texts.
std::string WidestCountdownText(const Countdown& present, const TextWidth& widthOf);

}  // namespace saver

// What captions look like that the show makes from a template.
#pragma once

#include <string>
#include <string_view>

#include "os/ansi_code_page.h"
#include "os/date_text.h"

namespace startup {

// The caption of a picture of which everything is known, as the show would make it: dates and times in the
// user's form.
std::string CaptionExample(std::string_view captionTemplate, const os::DateText& dates,
                           const os::AnsiCodePage& ansi);

}  // namespace startup

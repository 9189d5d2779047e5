// Dates and times as text, by the regional settings of the Windows user.
#pragma once

#include <memory>

#include "os/date_text.h"

namespace os {

std::unique_ptr<DateText> MakeDateText();

}  // namespace os

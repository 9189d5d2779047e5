// Text for the system's W functions.
#pragma once

#include <string>
#include <string_view>

namespace os {

// UTF-8 as the system's UTF-16. Broken UTF-8 gives U+FFFD; never fails.
std::wstring ToWide(std::string_view utf8);

// The system's UTF-16 as UTF-8. Never fails; ToWide gives the same units back.
std::string FromWide(std::wstring_view wide);

}  // namespace os

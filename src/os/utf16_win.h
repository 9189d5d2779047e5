// Text for and from Windows: UTF-8 inside the program, UTF-16 at its calls.
#pragma once

#include <string>
#include <string_view>

namespace os {

// Broken sequences become replacement characters.
std::wstring ToWide(std::string_view utf8);
std::string FromWide(std::wstring_view utf16);

}  // namespace os

// UTF-8 paths for the system's W functions, of any length.
#pragma once

#include <cstddef>
#include <string>

namespace os {

// The path for the system's functions; `extra` characters can be added to it.
std::wstring WidePath(const std::string& path, std::size_t extra = 0);

}  // namespace os

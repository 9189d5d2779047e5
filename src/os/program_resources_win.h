// What the program carries as resources.
#pragma once

#include <windows.h>

#include <optional>
#include <string_view>

#include "base/bitmap.h"

namespace os {

// The bytes of the RCDATA resource `id` of a loaded module, this program's own when null. Empty when there is
// none; valid as long as the module is loaded.
std::string_view ProgramData(int id, HMODULE module = nullptr);

// The program's icon in a square of `side` pixels over a colour. Nothing when the program has no icon.
std::optional<base::Bitmap> ProgramIcon(int side, COLORREF behind);

}  // namespace os

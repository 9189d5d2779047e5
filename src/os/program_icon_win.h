// The icon of this program, from its own resources.
#pragma once

#include <windows.h>

#include <optional>

#include "base/bitmap.h"

namespace os {

// The icon in a square of `side` pixels over a colour. Nothing when the program has no icon.
std::optional<base::Bitmap> ProgramIcon(int side, COLORREF behind);

}  // namespace os

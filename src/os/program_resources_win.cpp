#include "os/program_resources_win.h"

#include "os/dib_win.h"
#include "os/handles_win.h"

namespace os {

namespace {

constexpr WORD kIconResource = 1;

}  // namespace

std::string_view ProgramData(int id, HMODULE module) {
  const HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(id), RT_RCDATA);
  const HGLOBAL loaded = found ? LoadResource(module, found) : nullptr;
  const auto* bytes = loaded ? static_cast<const char*>(LockResource(loaded)) : nullptr;
  return bytes ? std::string_view(bytes, SizeofResource(module, found)) : std::string_view();
}

std::optional<base::Bitmap> ProgramIcon(int side, COLORREF behind) {
  const OwnedIcon icon(static_cast<HICON>(LoadImageW(
      GetModuleHandleW(nullptr), MAKEINTRESOURCEW(kIconResource), IMAGE_ICON, side, side, LR_DEFAULTCOLOR)));
  const base::PixelSize size{side, side};
  const Dib drawing(size);
  if (!icon || !drawing.dc()) return std::nullopt;
  const OwnedBrush brush(CreateSolidBrush(behind));
  DrawIconEx(drawing.dc(), 0, 0, icon.get(), side, side, 0, brush.get(), DI_NORMAL);
  base::Bitmap bitmap(size);
  const base::BitmapView pixels = drawing.view();
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) bitmap.row(y)[x] = pixels.row(y)[x] | 0xFF000000U;
  }
  bitmap.setOpaque(true);
  return bitmap;
}

}  // namespace os

#include "os/text_renderer_win.h"

#include <algorithm>
#include <cmath>

#include "os/dib_win.h"
#include "os/utf16_win.h"

namespace os {

namespace {

// The bitmap font of old has a few fixed sizes and no smooth edges; its outline successor has the same
// shapes.
std::string DrawnFace(const std::string& name) {
  return name == "MS Sans Serif" ? "Microsoft Sans Serif" : name;
}

}  // namespace

LOGFONTW LogFontOf(const base::Font& font, int dpi) {
  LOGFONTW wanted{};
  wanted.lfHeight = -static_cast<LONG>(std::lround(font.sizePoints * static_cast<float>(dpi) / 72.0F));
  wanted.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
  wanted.lfItalic = font.italic;
  wanted.lfUnderline = font.underline;
  wanted.lfStrikeOut = font.strikethrough;
  wanted.lfCharSet = DEFAULT_CHARSET;
  const std::wstring name = ToWide(font.name);
  std::copy_n(name.begin(), std::min<std::size_t>(name.size(), LF_FACESIZE - 1), wanted.lfFaceName);
  return wanted;
}

TextRendererWin::TextRendererWin(int dpi) : dpi_(dpi), dc_(CreateCompatibleDC(nullptr)) {}

HFONT TextRendererWin::select(const base::Font& font) {
  if (font_ && madeFor_ == font) return font_.get();
  base::Font drawn = font;
  drawn.name = DrawnFace(font.name);
  LOGFONTW wanted = LogFontOf(drawn, dpi_);
  wanted.lfQuality = ANTIALIASED_QUALITY;  // grey, not coloured by sub-pixels: the background is unknown
  font_.reset(CreateFontIndirectW(&wanted));
  madeFor_ = font;
  return font_.get();
}

base::PixelSize TextRendererWin::measure(const base::Font& font, const std::string& text) {
  const Selected selected(dc_.get(), select(font));
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc_.get(), &metrics);
  const std::wstring wide = ToWide(text);
  SIZE size{};
  if (!wide.empty()) GetTextExtentPoint32W(dc_.get(), wide.c_str(), static_cast<int>(wide.size()), &size);
  // A slanted last letter leans over its own advance.
  const LONG lean = font.italic && !wide.empty() ? metrics.tmHeight / 4 : 0;
  return {static_cast<int>(size.cx + lean), static_cast<int>(metrics.tmHeight)};
}

TextMask TextRendererWin::draw(const base::Font& font, const std::string& text) {
  TextMask mask{measure(font, text), {}};
  if (mask.size.isEmpty()) return mask;
  const Dib dib(mask.size);
  if (!dib.dc()) return {};
  const Selected selected(dib.dc(), select(font));
  SetBkMode(dib.dc(), TRANSPARENT);
  SetTextColor(dib.dc(), RGB(255, 255, 255));
  const std::wstring wide = ToWide(text);
  TextOutW(dib.dc(), 0, 0, wide.c_str(), static_cast<int>(wide.size()));
  const base::BitmapView drawn = dib.view();
  if (!drawn.pixels) return {};
  mask.coverage.reserve(static_cast<std::size_t>(mask.size.width) *
                        static_cast<std::size_t>(mask.size.height));
  for (int y = 0; y < mask.size.height; ++y) {
    for (int x = 0; x < mask.size.width; ++x) {
      mask.coverage.push_back(static_cast<std::uint8_t>(drawn.row(y)[x] >> 8 & 0xFF));
    }
  }
  return mask;
}

}  // namespace os

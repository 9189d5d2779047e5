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

constexpr base::Pixel kBlackPixel = base::OpaquePixel(base::kBlack);
constexpr base::Pixel kWhitePixel = base::OpaquePixel(base::kWhite);
constexpr int kStripPixels = 1 << 20;  // of a mask that are drawn at one go

// One drawing of the text, of which the strip shows the columns from `left` on.
base::BitmapView DrawOn(const Dib& strip, base::Pixel ground, COLORREF ink, int x, const std::wstring& text) {
  const base::BitmapView pixels = strip.view();
  base::FillRect(pixels, base::PixelRect::ofSize(pixels.size), ground);
  SetTextColor(strip.dc(), ink);
  TextOutW(strip.dc(), x, 0, text.c_str(), static_cast<int>(text.size()));
  return strip.view();
}

void DrawStrip(const Dib& strip, TextMask& mask, int left, const std::wstring& text) {
  const auto take = [&](const base::BitmapView& drawn, std::uint8_t TextCoverage::*part, unsigned inverted) {
    const int columns = std::min(drawn.size.width, mask.size.width - left);
    for (int y = 0; y < mask.size.height; ++y) {
      TextCoverage* row = mask.coverage.data() + static_cast<std::ptrdiff_t>(y) * mask.size.width + left;
      for (int x = 0; x < columns; ++x) {
        row[x].*part = static_cast<std::uint8_t>((drawn.row(y)[x] ^ inverted) & 0xFF);
      }
    }
  };
  take(DrawOn(strip, kBlackPixel, RGB(255, 255, 255), mask.origin - left, text), &TextCoverage::overDarker,
       0);
  take(DrawOn(strip, kWhitePixel, RGB(0, 0, 0), mask.origin - left, text), &TextCoverage::overLighter, 0xFF);
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

int TextRendererWin::lineHeight(const base::Font& font) {
  const Selected selected(dc_.get(), select(font));
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc_.get(), &metrics);
  return static_cast<int>(metrics.tmHeight);
}

base::PixelSize TextRendererWin::measure(const base::Font& font, const std::string& text) {
  const int height = lineHeight(font);
  const std::wstring wide = ToWide(text);
  if (wide.empty()) return {0, height};
  const Selected selected(dc_.get(), select(font));
  SIZE size{};
  GetTextExtentPoint32W(dc_.get(), wide.c_str(), static_cast<int>(wide.size()), &size);
  const int lean = font.italic ? height / 4 : 0;  // a slanted last letter leans over its own advance
  return {static_cast<int>(size.cx) + lean, height};
}

// No letter of a usual face leaves its advance by more than a part of its own width.
int TextRendererWin::overhang(const base::Font& font) { return lineHeight(font) / 2; }

TextMask TextRendererWin::draw(const base::Font& font, const std::string& text) {
  const base::PixelSize measured = measure(font, text);
  const std::wstring wide = ToWide(text);
  if (wide.empty() || measured.isEmpty()) return {};
  const int side = overhang(font);
  const int mostColumns =
      static_cast<int>(kMostMaskBytes / sizeof(TextCoverage) / static_cast<std::size_t>(measured.height));
  TextMask mask{{std::min(measured.width + 2 * side, mostColumns), measured.height}, side, {}};
  if (mask.size.isEmpty()) return {};
  mask.coverage.resize(static_cast<std::size_t>(mask.size.width) *
                       static_cast<std::size_t>(mask.size.height));
  const int stripColumns = std::clamp(kStripPixels / mask.size.height, 1, mask.size.width);
  const Dib strip({stripColumns, mask.size.height});
  if (!strip.dc()) return {};
  const Selected selected(strip.dc(), select(font));
  SetBkMode(strip.dc(), TRANSPARENT);
  for (int left = 0; left < mask.size.width; left += stripColumns) DrawStrip(strip, mask, left, wide);
  return mask;
}

}  // namespace os

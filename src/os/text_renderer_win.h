// Text by GDI.
#pragma once

#include "os/handles_win.h"
#include "os/text_renderer.h"

namespace os {

// What the system makes a font from, for a device with this many dots per inch.
LOGFONTW LogFontOf(const base::Font& font, int dpi);

class TextRendererWin : public TextRenderer {
 public:
  // Font sizes are in points of a screen with this many dots per inch.
  explicit TextRendererWin(int dpi);

  base::PixelSize measure(const base::Font& font, const std::string& text) override;
  int overhang(const base::Font& font) override;
  TextMask draw(const base::Font& font, const std::string& text) override;

 private:
  HFONT select(const base::Font& font);
  int lineHeight(const base::Font& font);

  int dpi_;
  OwnedMemoryDc dc_;
  base::Font madeFor_;
  OwnedFont font_;
};

}  // namespace os

// Text as the show lays it over its pictures, against the system's own drawing.
#include "saver/text_layer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "os/dib_win.h"
#include "os/text_renderer_win.h"
#include "os/utf16_win.h"
#include "support/text_contrast.h"

namespace saver {
namespace {

constexpr int kRoom = 200;  // pixels around a text that the system draws, so that nothing is cut
constexpr int kDpi = 96;

os::OwnedFont MakeFont(const base::Font& font) {
  LOGFONTW wanted{};
  wanted.lfHeight = -static_cast<LONG>(std::lround(font.sizePoints * kDpi / 72.0F));
  wanted.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
  wanted.lfItalic = font.italic;
  wanted.lfCharSet = DEFAULT_CHARSET;
  wanted.lfQuality = ANTIALIASED_QUALITY;
  const std::wstring face = os::ToWide(font.name);
  std::copy_n(face.begin(), face.size(), wanted.lfFaceName);
  return os::OwnedFont(CreateFontIndirectW(&wanted));
}

struct Colors {
  base::PackedColor ink;
  base::PackedColor ground;
};

// A text twice on the same ground, at the same place with room on all sides.
struct BothDrawings {
  base::Bitmap ours;
  base::Bitmap systems;

  BothDrawings(const base::Font& font, const std::string& text, const Colors& colors) {
    os::TextRendererWin renderer(kDpi);
    const base::PixelSize measured = renderer.measure(font, text);
    const base::PixelSize size{measured.width + 2 * kRoom, measured.height};
    ours = base::Bitmap(size, base::OpaquePixel(colors.ground));
    const os::TextMask mask = renderer.draw(font, text);
    BlendText(ours.view(), {kRoom - mask.origin, 0}, mask, colors.ink, base::PixelRect::ofSize(size));
    systems = bySystem(font, text, colors, size);
  }

  static base::Bitmap bySystem(const base::Font& font, const std::string& text, const Colors& colors,
                               base::PixelSize size) {
    const os::Dib dib(size);
    base::FillRect(dib.view(), base::PixelRect::ofSize(size), base::OpaquePixel(colors.ground));
    const os::OwnedFont made = MakeFont(font);
    const os::Selected selected(dib.dc(), made.get());
    SetBkMode(dib.dc(), TRANSPARENT);
    SetTextColor(dib.dc(), static_cast<COLORREF>(colors.ink));
    const std::wstring wide = os::ToWide(text);
    TextOutW(dib.dc(), kRoom, 0, wide.c_str(), static_cast<int>(wide.size()));
    base::Bitmap drawn(size);
    const base::BitmapView view = dib.view();
    for (int y = 0; y < size.height; ++y) {
      std::transform(view.row(y), view.row(y) + size.width, drawn.row(y),
                     [](base::Pixel pixel) { return pixel | 0xFF000000U; });
    }
    return drawn;
  }

  // How far the components of the pixels that one of the two has inked lie apart on average.
  double distance(base::PackedColor ground) const {
    const base::Pixel bare = base::OpaquePixel(ground);
    double sum = 0;
    double count = 0;
    for (int y = 0; y < ours.size().height; ++y) {
      for (int x = 0; x < ours.size().width; ++x) {
        const base::Pixel a = ours.at(x, y);
        const base::Pixel b = systems.at(x, y);
        if (a == bare && b == bare) continue;
        for (int shift = 0; shift < 24; shift += 8) {
          sum += std::abs(static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF));
          ++count;
        }
      }
    }
    return count == 0 ? 255 : sum / count;
  }
};

TEST(TextLayerWin, LooksAsTheSystemDrawsItInEveryColour) {
  const base::Font fonts[] = {{.name = "Arial", .sizePoints = 20},
                              {.name = "Arial", .sizePoints = 9},
                              {.name = "Arial", .sizePoints = 20, .italic = true},
                              {.name = "Times New Roman", .sizePoints = 14, .bold = true},
                              {.name = "Times New Roman", .sizePoints = 36, .italic = true}};
  const Colors colors[] = {{base::kBlack, base::kWhite},
                           {base::kWhite, base::kBlack},
                           {base::Rgb(255, 0, 0), base::Rgb(0, 0, 255)},
                           {base::Rgb(255, 255, 0), base::Rgb(90, 90, 90)},
                           {base::Rgb(30, 60, 30), base::Rgb(200, 220, 180)}};
  for (const base::Font& font : fonts) {
    for (const Colors& pair : colors) {
      const BothDrawings drawn(font, "Lake Geneva, Quai du Mont-Blanc 1987", pair);
      EXPECT_LE(drawn.distance(pair.ground), 8)
          << font.name << ' ' << font.sizePoints << ' ' << pair.ink << " on " << pair.ground;
    }
  }
}

TEST(TextLayerWin, LettersThatReachBeyondTheirAdvanceAreWhole) {
  const Colors colors{base::kBlack, base::kWhite};
  const base::Pixel bare = base::OpaquePixel(colors.ground);
  bool reachesLeft = false;
  for (const char* face : {"Arial", "Times New Roman"}) {
    for (const bool italic : {false, true}) {
      const base::Font font{.name = face, .sizePoints = 40, .italic = italic};
      for (const char* text : {"j", "f", "Q", "J", "W", "jQf", "\xC3\x8F"}) {
        const BothDrawings drawn(font, text, colors);
        for (int y = 0; y < drawn.ours.size().height; ++y) {
          for (int x = 0; x < drawn.ours.size().width; ++x) {
            const bool inked = drawn.systems.at(x, y) != bare;
            ASSERT_EQ(drawn.ours.at(x, y) != bare, inked) << face << ' ' << text << ' ' << x << ' ' << y;
            reachesLeft = reachesLeft || (inked && x < kRoom);
          }
        }
      }
    }
  }
  EXPECT_TRUE(reachesLeft) << "none of these letters tries anything";
}

TEST(TextLayerWin, AMaskIsBoundedHoweverLargeTheText) {
  os::TextRendererWin renderer(kDpi);
  const base::Font huge{.name = "Arial", .sizePoints = 1000};
  const os::TextMask mask = renderer.draw(huge, std::string(254, 'W'));
  EXPECT_LE(mask.coverage.size() * sizeof(os::TextCoverage), os::kMostMaskBytes);
  EXPECT_GT(mask.size.width, 2000) << "what there is room for is drawn";
  EXPECT_EQ(mask.coverage.size(),
            static_cast<std::size_t>(mask.size.width) * static_cast<std::size_t>(mask.size.height));
  EXPECT_TRUE(std::ranges::any_of(mask.coverage, [](const auto& part) { return part.overDarker == 255; }));
}

TEST(TextLayerWin, WordsWithAShadeAreReadableOnAnyPictureInEveryFont) {
  os::TextRendererWin renderer(kDpi);
  const base::Font fonts[] = {{.name = "Arial", .sizePoints = 9},
                              {.name = "Arial", .sizePoints = 20, .italic = true},
                              {.name = "Times New Roman", .sizePoints = 14, .bold = true},
                              {.name = "Times New Roman", .sizePoints = 48}};
  for (const base::Font& font : fonts) {
    const os::TextMask mask = renderer.draw(font, "Lake Geneva, Quai du Mont-Blanc 1987");
    const int reach = ShadeReach(mask.size.height);
    const TextShade shade = MakeShade(mask, reach);
    for (const base::Bitmap& picture : support::HardPictures(shade.size)) {
      for (const base::PackedColor color : {base::kWhite, base::kBlack, base::Rgb(255, 255, 0),
                                            base::Rgb(200, 0, 0), base::Rgb(120, 120, 120)}) {
        base::Bitmap drawn = picture;
        const base::PixelRect all = base::PixelRect::ofSize(drawn.size());
        BlendShade(drawn.view(), {0, 0}, shade, ShadeFor(color), all);
        BlendText(drawn.view(), {reach, reach}, mask, color, all);
        const double contrast = support::LeastTextContrast(drawn, mask, {reach, reach});
        EXPECT_GE(contrast, base::kReadableContrast) << font.name << ' ' << font.sizePoints << ' ' << color;
        EXPECT_LE(contrast, 21) << "nothing was measured";
      }
    }
  }
}

}  // namespace
}  // namespace saver

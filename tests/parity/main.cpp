// Prints what the portable code computes for random sizes, countdowns, settings and pictures, to the last
// bit. Built for every system that there is: their lines are to be the same (tests/checks/check_parity.sh).
#include <bit>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "base/area_average.h"
#include "base/calendar.h"
#include "base/errors.h"
#include "base/number_text.h"
#include "base/twips.h"
#include "saver/countdown.h"
#include "saver/floating.h"
#include "saver/picture_size.h"
#include "saver/placement.h"
#include "settings/ini_document.h"
#include "settings/load_settings.h"
#include "support/windows_1252.h"

namespace {

constexpr int kRounds = 1000;

// The same numbers everywhere, which the standard library's distributions do not promise.
class Dice {
 public:
  int between(int low, int high) {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return low + static_cast<int>((state_ >> 33) % static_cast<std::uint64_t>(high - low + 1));
  }

 private:
  std::uint64_t state_ = 20261121;
};

std::string Bits(float value) {
  char text[16];
  std::snprintf(text, sizeof(text), "%08x", static_cast<unsigned>(std::bit_cast<std::uint32_t>(value)));
  return text;
}

std::string Bits(double value) {
  const auto bits = std::bit_cast<std::uint64_t>(value);
  char text[24];
  std::snprintf(text, sizeof(text), "%08x%08x", static_cast<unsigned>(bits >> 32),
                static_cast<unsigned>(bits));
  return text;
}

// The result of a computation, or which error ended it.
template <typename Computation>
std::string ResultOf(const Computation& computation) {
  try {
    return computation();
  } catch (const base::Overflow&) {
    return "overflow";
  } catch (const base::TypeMismatch&) {
    return "type mismatch";
  }
}

void Print(const char* what, const std::string& result) { std::printf("%s %s\n", what, result.c_str()); }

void PrintSizes(Dice& dice) {
  static constexpr int kTwipsPerPixel[] = {15, 12, 10, 8};
  const int perPixel = kTwipsPerPixel[dice.between(0, 3)];
  const auto width = static_cast<float>(dice.between(320, 7680) * perPixel);
  const auto height = static_cast<float>(dice.between(200, 4320) * perPixel);
  const float scale = base::StrictSingle(std::to_string(dice.between(1, 100))) / 100;
  const saver::PictureLimit limit = saver::PictureLimit::of(width, height, scale);
  Print("limit", std::to_string(limit.maxPictureWidth) + " " + std::to_string(limit.maxPictureHeight));
  const int pictureWidth = dice.between(1, 20000) * perPixel;
  const int pictureHeight = dice.between(1, 20000) * perPixel;
  Print("size", ResultOf([&] {
          const int reduction = saver::ReductionFor(limit, pictureWidth, pictureHeight);
          const saver::ShownSize size =
              saver::ScalePictureSize(limit, {pictureWidth, pictureHeight, reduction});
          const auto place =
              saver::Centered(width, height, static_cast<float>(size.width), static_cast<float>(size.height));
          return std::to_string(size.width) + " " + std::to_string(size.height) + " " + Bits(place.left) +
                 " " + Bits(place.top) + " " + std::to_string(base::TwipsToPixels(size.width, perPixel)) +
                 " " + std::to_string(base::PixelAtTwips(place.left, perPixel));
        }));
}

void PrintFloating(Dice& dice) {
  const saver::FloatArea area{static_cast<float>(dice.between(100, 60000)),
                              static_cast<float>(dice.between(100, 60000)),
                              static_cast<float>(dice.between(0, 900))};
  saver::FloatingBox box{static_cast<float>(dice.between(-300, 60000)) / 7,
                         static_cast<float>(dice.between(-300, 60000)) / 7,
                         static_cast<float>(dice.between(1, 60000)) / 3,
                         static_cast<float>(dice.between(1, 60000)) / 3,
                         {15, -15}};
  for (int i = 0; i < 20; ++i) saver::MoveFloatingBox(box, area);
  Print("box", Bits(box.left) + " " + Bits(box.top));
}

void PrintCountdown(Dice& dice) {
  const os::LocalTime now{dice.between(1990, 2060), dice.between(1, 12), dice.between(1, 28),
                          dice.between(0, 23),      dice.between(0, 59), dice.between(0, 59),
                          dice.between(0, 999)};
  // One after the other: in which order a sum asks for its parts is the compiler's to choose.
  std::string text = std::to_string(dice.between(1, 13));
  text += "/" + std::to_string(dice.between(1, 31));
  text += "/" + std::to_string(dice.between(1990, 2060));
  Print("countdown", ResultOf([&] {
          const auto reading = saver::ReadCountdown(now, base::ParseMonthFirstDate(text));
          return reading ? saver::CountdownText(*reading) : "over";
        }));
}

std::string RandomNumber(Dice& dice) {
  static constexpr const char* kForms[] = {"", "-", "0.", "1,", "&H", "1e", ".", "$", "  "};
  std::string text = kForms[dice.between(0, 8)];
  for (int digits = dice.between(0, 12); digits > 0; --digits)
    text += static_cast<char>('0' + dice.between(0, 9));
  if (dice.between(0, 3) == 0) text += "." + std::to_string(dice.between(0, 99999));
  if (dice.between(0, 5) == 0) text += "e" + std::to_string(dice.between(-40, 40));
  return text;
}

void PrintNumbers(Dice& dice) {
  const std::string text = RandomNumber(dice);
  Print("number", text);
  Print("single", ResultOf([&] {
          const float value = base::StrictSingle(text);
          return Bits(value) + " " + base::NumberText(value);
        }));
  Print("double", ResultOf([&] {
          const double value = base::StrictDouble(text);
          return Bits(value) + " " + base::NumberText(value);
        }));
  Print("whole", ResultOf([&] { return std::to_string(base::StrictInt32(text)); }));
  Print("leading", Bits(base::LeadingNumber(text)));
}

void PrintSettings(Dice& dice, const os::AnsiCodePage& ansi) {
  static constexpr const char* kKeys[] = {"[image]\npicturePercent",   "[image]\ntimeInterval",
                                          "[image]\nmouseSensitivity", "[image]\ntimeDisplay",
                                          "[font]\nscrollSpeed",       "[total]\ntotal"};
  std::string bytes = "[date]\ncountdownMonth=" + std::to_string(dice.between(1, 12)) +
                      "\ncountdownDay=9\ncountdownYear=2030\n";
  for (const char* key : kKeys) bytes += key + std::string("=") + RandomNumber(dice).substr(0, 4) + "\n";
  settings::SaverSettings read;
  Print("settings", ResultOf([&] {
          settings::LoadSettings(read, settings::IniDocument(bytes, ansi));
          std::string mended;
          for (const std::string& key : read.mended) mended += " " + key;
          return Bits(read.pictureScale) + " " + std::to_string(read.lastImageIndex) + " " +
                 read.countdownTarget + mended;
        }));
}

void PrintPicture(Dice& dice) {
  const base::PixelSize source{dice.between(1, 90), dice.between(1, 90)};
  const base::PixelSize target{dice.between(1, source.width), dice.between(1, source.height)};
  std::vector<base::Pixel> row(static_cast<std::size_t>(source.width));
  base::AreaAverage average(source, target);
  for (int y = 0; y < source.height; ++y) {
    for (base::Pixel& pixel : row) pixel = 0xFF000000U | static_cast<base::Pixel>(dice.between(0, 0xFFFFFF));
    average.add(row.data(), 1, source.width);
  }
  const base::Bitmap shrunk = average.take();
  std::uint32_t sum = 2166136261U;
  for (int y = 0; y < target.height; ++y) {
    for (int x = 0; x < target.width; ++x) sum = (sum ^ shrunk.row(y)[x]) * 16777619U;
  }
  Print("pixels", std::to_string(sum));
}

}  // namespace

int main() {
  const support::Windows1252 ansi;
  Dice dice;
  for (int i = 0; i < kRounds; ++i) {
    PrintSizes(dice);
    PrintFloating(dice);
    PrintCountdown(dice);
    PrintNumbers(dice);
    PrintSettings(dice, ansi);
    PrintPicture(dice);
  }
}

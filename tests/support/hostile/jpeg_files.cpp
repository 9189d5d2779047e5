#include "support/hostile/jpeg_files.h"

#include "support/byte_writer.h"
#include "support/hostile/flat_jpeg.h"
#include "support/jpeg_builder.h"

namespace support {

namespace {

constexpr base::PixelSize kSize{24, 16};
constexpr int kBlocks = 6;
constexpr int kDark = 32;
constexpr int kBright = 224;
constexpr Corners kDarkCorner{0xFF202020U, 0xFFE0E0E0U};

FlatJpeg Flat(int components) { return {.levels = DarkCorner(components, kBlocks, kDark, kBright)}; }

void AddProcesses(HostilePictures& set) {
  const auto add = [&](const char* name, const FlatJpeg& jpeg, Outcome outcome) {
    set.push_back({std::string("jpeg-") + name + ".jpg", jpeg.bytes(), outcome, kSize,
                   outcome == Outcome::drawn ? std::optional(kDarkCorner) : std::nullopt});
  };
  for (const int components : {1, 3}) {
    const std::string kind = components == 1 ? "grey" : "colour";
    FlatJpeg jpeg = Flat(components);
    add((kind + "-baseline").c_str(), jpeg, Outcome::drawn);
    jpeg.restartInterval = 2;
    add((kind + "-restarts").c_str(), jpeg, Outcome::drawn);
    jpeg.restartMarkers = false;
    add((kind + "-restarts-missing").c_str(), jpeg, Outcome::either);
    jpeg = Flat(components);
    jpeg.progressive = true;
    add((kind + "-progressive").c_str(), jpeg, Outcome::drawn);
    jpeg = {.precision = 12, .levels = DarkCorner(components, kBlocks, kDark * 16, kBright * 16)};
    if (components == 3) jpeg.levels[1] = jpeg.levels[2] = std::vector<int>(kBlocks, 2048);
    add((kind + "-12-bit").c_str(), jpeg, Outcome::either);
  }
  FlatJpeg inks = Flat(4);
  add("inks", inks, Outcome::either);
  inks.adobe = true;
  add("inks-adobe", inks, Outcome::either);
  inks.progressive = true;
  add("inks-progressive", inks, Outcome::either);
  add("two-components", Flat(2), Outcome::either);
}

// The plain file with one number after a marker changed.
std::string Patched(std::uint8_t marker, std::size_t offset, const std::string& bytes) {
  std::string file = PlainJpeg();
  file.replace(file.find(std::string("\xFF") + static_cast<char>(marker)) + offset, bytes.size(), bytes);
  return file;
}

void AddDamage(HostilePictures& set) {
  const auto add = [&](const char* name, std::string bytes, Outcome outcome = Outcome::either) {
    set.push_back({std::string("jpeg-") + name + ".jpg", std::move(bytes), outcome});
  };
  for (const int process : {0xC3, 0xC5, 0xC6, 0xC7, 0xC9, 0xCA, 0xCB, 0xCD, 0xCE, 0xCF}) {
    add(("process-" + std::to_string(process - 0xC0)).c_str(),
        Patched(0xC0, 1, std::string(1, static_cast<char>(process))));
  }
  add("precision-0", Patched(0xC0, 4, std::string(1, '\0')));
  add("precision-16", Patched(0xC0, 4, "\x10"));
  add("no-width", Patched(0xC0, 7, std::string(2, '\0')), Outcome::refused);
  add("no-height", Patched(0xC0, 5, std::string(2, '\0')), Outcome::refused);
  add("255-components", Patched(0xC0, 9, "\xFF"));
  add("no-components", Patched(0xC0, 9, std::string(1, '\0')));
  add("sampling-0", Patched(0xC0, 11, std::string(1, '\0')));
  add("sampling-15", Patched(0xC0, 11, "\xFF"));
  add("tables-missing", Patched(0xC4, 1, "\xEF"));
  add("quanta-missing", Patched(0xDB, 1, "\xEF"));
  add("codes-more-than-there-can-be", Patched(0xC4, 5, std::string(16, '\xFF')));
  add("quanta-0", Patched(0xDB, 5, std::string(64, '\0')));
  add("segment-past-the-end", Patched(0xDB, 2, "\xFF\xFF"), Outcome::refused);
  add("scan-of-other-components", Patched(0xDA, 5, "\x09"));
  add("noise-for-data",
      PlainJpeg().substr(0, PlainJpeg().size() - 12) + std::string(400, '\x5A') + "\xFF\xD9");
  add("no-end", PlainJpeg().substr(0, PlainJpeg().size() - 2));
  add("two-frames", PlainJpeg().substr(0, PlainJpeg().size() - 2) + PlainJpeg().substr(2));
}

void AddClaims(HostilePictures& set) {
  const auto add = [&](const char* name, int width, int height, Outcome outcome) {
    set.push_back({std::string("jpeg-claims-") + name + ".jpg",
                   Patched(0xC0, 5,
                           BigEndian(static_cast<std::uint32_t>(height), 2) +
                               BigEndian(static_cast<std::uint32_t>(width), 2)),
                   outcome});
  };
  add("65535-squared", 65535, 65535, Outcome::refused);
  add("a-long-line", 60000, 1, Outcome::either);
  add("a-high-column", 1, 60000, Outcome::either);
  add("a-large-photo", 9000, 6000, Outcome::either);
  const auto inks = [](int side) {
    std::string file = FlatJpeg{.progressive = true, .levels = DarkCorner(4, kBlocks, 0, 255)}.bytes();
    const auto length = static_cast<std::uint32_t>(side);
    return file.replace(file.find("\xFF\xC2") + 5, 4, BigEndian(length, 2) + BigEndian(length, 2));
  };
  set.push_back({"jpeg-claims-coefficients-beyond-all-memory.jpg", inks(16384), Outcome::refused});
  set.push_back({"jpeg-claims-coefficients-just-allowed.jpg", inks(9000), Outcome::either});
}

}  // namespace

std::string PlainJpeg() { return Flat(3).bytes(); }

HostilePictures HostileJpegs() {
  HostilePictures set;
  AddProcesses(set);
  AddDamage(set);
  AddClaims(set);
  return set;
}

}  // namespace support

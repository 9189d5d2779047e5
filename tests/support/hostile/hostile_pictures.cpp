#include "support/hostile/hostile_pictures.h"

#include "support/hostile/arithmetic_jpeg.h"
#include "support/hostile/bitmap_files.h"
#include "support/hostile/gif_files.h"
#include "support/hostile/jpeg_files.h"
#include "support/hostile/png_files.h"

namespace support {

namespace {

struct Format {
  const char* ending;
  std::string file;
};

std::vector<Format> Formats() {
  return {{"bmp", RedOverBlue(24, 0, false).bytes()},
          {"gif", PlainGif()},
          {"jpg", PlainJpeg()},
          {"png", PlainPng().bytes()}};
}

void AddCutShort(HostilePictures& set) {
  for (const Format& format : Formats()) {
    const std::string ending = std::string(".") + format.ending;
    set.push_back({"empty" + ending, "", Outcome::refused});
    set.push_back({"one-byte" + ending, format.file.substr(0, 1), Outcome::refused});
    for (std::size_t tenth = 1; tenth < 10; ++tenth) {
      set.push_back({"cut-at-" + std::to_string(tenth) + "-tenths" + ending,
                     format.file.substr(0, format.file.size() * tenth / 10), Outcome::either});
    }
  }
}

// What a file holds decides, not its name.
void AddWrongNames(HostilePictures& set) {
  for (const Format& format : Formats()) {
    for (const char* ending : {"bmp", "gif", "jpg", "png", "txt"}) {
      set.push_back({std::string("in-truth-") + format.ending + "." + ending, format.file, Outcome::drawn});
    }
  }
  for (const char* ending : {"bmp", "gif", "jpg", "png"}) {
    const std::string name = std::string(".") + ending;
    set.push_back({"text" + name, "These are my holiday pictures.\r\n", Outcome::refused});
    set.push_back({"noughts" + name, std::string(5000, '\0'), Outcome::refused});
    set.push_back({"program" + name, "MZ" + std::string(300, '\x90'), Outcome::refused});
    set.push_back({"page" + name, "<!DOCTYPE html><html><body></body></html>", Outcome::refused});
  }
}

}  // namespace

HostilePictures AllHostilePictures() {
  HostilePictures all;
  AddCutShort(all);
  AddWrongNames(all);
  for (const HostilePictures& set : {HostileBitmaps(), HostileGifs(), HostileJpegs(), HostilePngs()}) {
    all.insert(all.end(), set.begin(), set.end());
  }
  all.push_back({"jpeg-arithmetic.jpg", ArithmeticJpeg(), Outcome::either});
  return all;
}

}  // namespace support

#include "saver/picture_words.h"

#include <string_view>

#include "base/text.h"
#include "os/paths.h"

namespace saver {

namespace {

constexpr std::string_view kSlashes = "\\/";

// A name that begins with its only dot has no ending.
std::string WithoutEnding(const std::string& file) {
  const std::size_t dot = file.rfind('.');
  return dot == std::string::npos || dot == 0 ? file : file.substr(0, dot);
}

std::string FolderName(const std::string& path) {
  std::string folder = os::FolderOf(path);
  while (!folder.empty() && kSlashes.find(folder.back()) != std::string_view::npos) folder.pop_back();
  return os::NameOf(folder);
}

bool IsUtf8(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const base::Utf8Character here = base::Utf8CharacterAt(text, at);
    if (!here.valid) return false;
    at += here.length;
  }
  return true;
}

std::string Readable(const std::string& noted, const os::AnsiCodePage& ansi) {
  return IsUtf8(noted) ? noted : ansi.decode(noted);
}

}  // namespace

CaptionWords WordsOf(const ListedPicture& picture, const pictures::PictureFacts& facts,
                     const os::DateText& dates, const os::AnsiCodePage& ansi) {
  const std::string file = os::NameOf(picture.path);
  return {.name = WithoutEnding(file),
          .file = file,
          .folder = FolderName(picture.path),
          .date = facts.date ? dates.date(*facts.date) : std::string(),
          .time = facts.date ? dates.timeToTheMinute(*facts.date) : std::string(),
          .camera = Readable(facts.camera, ansi),
          .title = Readable(facts.title, ansi),
          .number = std::to_string(picture.number),
          .total = std::to_string(picture.total)};
}

}  // namespace saver

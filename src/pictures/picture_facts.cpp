#include "pictures/picture_facts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "base/calendar.h"
#include "base/text.h"
#include "pictures/jpeg_head.h"
#include "pictures/noted_text.h"
#include "pictures/tiff_block.h"
#include "pictures/xmp_titles.h"

namespace pictures {

namespace {

constexpr std::string_view kXmpName("http://ns.adobe.com/xap/1.0/\0", 29);
constexpr std::size_t kLongestText = 65533;  // bytes: what a segment can hold

// Tags of the first directory,
constexpr std::uint16_t kImageDescription = 0x010E;
constexpr std::uint16_t kMake = 0x010F;
constexpr std::uint16_t kModel = 0x0110;
constexpr std::uint16_t kDateTime = 0x0132;
constexpr std::uint16_t kXmpPacket = 0x02BC;
constexpr std::uint16_t kExifDirectory = 0x8769;
constexpr std::uint16_t kXpTitle = 0x9C9B;
// and of the one that it leads to.
constexpr std::uint16_t kDateTimeOriginal = 0x9003;
constexpr std::uint16_t kDateTimeDigitized = 0x9004;

// The first that is found of each.
struct Notes {
  std::string title;  // where it is meant for nothing else
  std::string description;
  std::string make;
  std::string model;
  XmpTitles xmp;
  std::optional<os::LocalTime> original;
  std::optional<os::LocalTime> digitized;
  std::optional<os::LocalTime> changed;
};

std::optional<int> Number(std::string_view digits) {
  int number = 0;
  for (const char digit : digits) {
    if (!base::IsDigit(digit)) return std::nullopt;
    number = number * 10 + (digit - '0');
  }
  return number;
}

// "2019:07:14 18:05:09", with any separators. An unknown moment is written with blanks or zeros.
std::optional<os::LocalTime> ReadMoment(std::string_view text) {
  constexpr std::array<std::pair<std::size_t, std::size_t>, 6> kParts{
      {{0, 4}, {5, 2}, {8, 2}, {11, 2}, {14, 2}, {17, 2}}};
  constexpr std::size_t kLength = 19;
  constexpr int kFirstYear = 1601;  // before it the system has no days
  if (text.size() < kLength) return std::nullopt;
  std::array<int, kParts.size()> numbers{};
  for (std::size_t i = 0; i < kParts.size(); ++i) {
    const auto number = Number(text.substr(kParts[i].first, kParts[i].second));
    if (!number) return std::nullopt;
    numbers[i] = *number;
  }
  const auto [year, month, day, hour, minute, second] = numbers;
  if (year < kFirstYear || !base::IsValidDay({year, month, day}) || hour > 23 || minute > 59 || second > 59)
    return std::nullopt;
  return os::LocalTime{year, month, day, hour, minute, second, 0};
}

void NoteFirstMoment(std::optional<os::LocalTime>& place, std::string_view text) {
  if (!place) place = ReadMoment(text);
}

void NoteFirstTitles(XmpTitles& place, std::string_view packet) {
  XmpTitles titles = ReadXmpTitles(packet);
  NoteFirst(place.title, std::move(titles.title));
  NoteFirst(place.description, std::move(titles.description));
}

// Directories have a tag once at most.
std::optional<TiffEntry> EntryOf(std::uint16_t tag, const TiffBlock& block, std::size_t directory) {
  for (std::size_t i = 0; const auto entry = block.entry(directory, i); ++i) {
    if (entry->tag == tag) return entry;
  }
  return std::nullopt;
}

// Empty where there is none.
std::string_view TextOf(std::uint16_t tag, const TiffBlock& block, std::size_t directory) {
  const auto entry = EntryOf(tag, block, directory);
  if (!entry || entry->count > kLongestText) return {};
  return block.text(*entry).value_or(std::string_view());
}

void NoteTiff(std::string_view bytes, Notes& notes) {
  const auto block = TiffBlock::of(bytes);
  const auto first = block ? block->firstDirectory() : std::nullopt;
  if (!first) return;
  const auto textOf = [&](std::uint16_t tag) { return TextOf(tag, *block, *first); };
  NoteFirst(notes.description, NotedText(textOf(kImageDescription)));
  NoteFirst(notes.make, NotedText(textOf(kMake)));
  NoteFirst(notes.model, NotedText(textOf(kModel)));
  NoteFirst(notes.title, TextOfUtf16(textOf(kXpTitle)));
  NoteFirstTitles(notes.xmp, textOf(kXmpPacket));
  NoteFirstMoment(notes.changed, textOf(kDateTime));
  const auto pointer = EntryOf(kExifDirectory, *block, *first);
  const auto exif = pointer ? block->number(*pointer) : std::nullopt;
  if (!exif) return;
  NoteFirstMoment(notes.original, TextOf(kDateTimeOriginal, *block, *exif));
  NoteFirstMoment(notes.digitized, TextOf(kDateTimeDigitized, *block, *exif));
}

Notes ReadNotes(std::string_view head) {
  Notes notes;
  if (BeginsLikeTiff(head)) NoteTiff(head, notes);
  if (!BeginsLikeJpeg(head)) return notes;
  JpegSegments segments(head);
  while (const auto segment = segments.next()) {
    if (const auto exif = ContentNamed(kExifName, *segment)) NoteTiff(*exif, notes);
    if (const auto packet = ContentNamed(kXmpName, *segment)) NoteFirstTitles(notes.xmp, *packet);
  }
  return notes;
}

bool IsLetterOrDigit(char c) {
  const char lower = base::AsciiLower(c);
  return (lower >= 'a' && lower <= 'z') || base::IsDigit(c) || static_cast<unsigned char>(c) >= 0x80;
}

// The runs of letters and digits in a name.
std::vector<std::string> WordsOf(std::string_view name) {
  std::vector<std::string> words(1);
  for (const char c : name) {
    if (IsLetterOrDigit(c)) {
      words.back() += base::AsciiLower(c);
    } else if (!words.back().empty()) {
      words.emplace_back();
    }
  }
  if (words.back().empty()) words.pop_back();
  return words;
}

// Many models begin with a name of their maker.
std::string CameraOf(const Notes& notes) {
  const std::string make(base::TrimBlanks(notes.make));
  const std::string model(base::TrimBlanks(notes.model));
  if (make.empty() || model.empty()) return make + model;
  const std::vector<std::string> ofModel = WordsOf(model);
  const std::vector<std::string> ofMake = WordsOf(make);
  const bool namesMaker = !ofModel.empty() && std::ranges::find(ofMake, ofModel.front()) != ofMake.end();
  return namesMaker ? model : make + ' ' + model;
}

// Some cameras describe every picture by their own name, in capitals.
bool IsByCamera(std::string_view description, std::string_view make) {
  const std::vector<std::string> words = WordsOf(description);
  const std::vector<std::string> ofMake = WordsOf(make);
  return !words.empty() && !ofMake.empty() && words.front() == ofMake.front() &&
         description == base::AsciiUpper(description);
}

std::string TitleOf(const Notes& notes) {
  for (const std::string* text :
       {&notes.xmp.title, &notes.title, &notes.description, &notes.xmp.description}) {
    if (!text->empty() && !IsByCamera(*text, notes.make)) return *text;
  }
  return {};
}

}  // namespace

PictureFacts ReadPictureFacts(std::string_view head) {
  const Notes notes = ReadNotes(head);
  PictureFacts facts{TitleOf(notes), CameraOf(notes), notes.original};
  if (!facts.date) facts.date = notes.digitized ? notes.digitized : notes.changed;
  return facts;
}

}  // namespace pictures

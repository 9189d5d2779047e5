// Templates of captions and what they are filled with, against a second reading of their grammar.
#include <algorithm>
#include <string>

#include "fuzz/input.h"
#include "fuzz/require.h"
#include "saver/caption_template.h"
#include "support/plain_caption.h"

namespace {

// The input's lines: the template, then a word for each token.
saver::CaptionWords TakeWords(std::string_view& rest) {
  saver::CaptionWords words;
  for (std::string* word : {&words.name, &words.file, &words.folder, &words.date, &words.time, &words.camera,
                            &words.title, &words.number, &words.total}) {
    *word = std::string(fuzz::TakeField(rest, '\0'));
  }
  return words;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest = fuzz::Text(data, size);
  const std::string pattern(fuzz::TakeField(rest, '\0'));
  const saver::CaptionWords words = TakeWords(rest);
  const std::string caption = saver::FillCaptionTemplate(pattern, words);
  fuzz::Require(caption == support::PlainCaption(pattern, words), "both readings of a template agree");
  const auto characters =
      std::ranges::count_if(caption, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; });
  fuzz::Require(characters <= 254, "a caption is no longer than one of the settings file");
  fuzz::Require(std::ranges::none_of(caption, [](char c) { return static_cast<unsigned char>(c) < 0x20; }),
                "a caption has one line");
  return 0;
}

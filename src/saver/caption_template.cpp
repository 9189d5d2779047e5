#include "saver/caption_template.h"

#include <cstddef>
#include <optional>
#include <utility>

#include "base/text.h"

namespace saver {

namespace {

struct Token {
  std::string_view name;
  std::string CaptionWords::*word;
};

constexpr Token kTokens[] = {
    {"{name}", &CaptionWords::name},     {"{file}", &CaptionWords::file},
    {"{folder}", &CaptionWords::folder}, {"{date}", &CaptionWords::date},
    {"{time}", &CaptionWords::time},     {"{camera}", &CaptionWords::camera},
    {"{title}", &CaptionWords::title},   {"{number}", &CaptionWords::number},
    {"{total}", &CaptionWords::total},
};

constexpr char32_t kBrokenCharacter = 0xFFFD;

bool IsSurrogate(char32_t character) { return character >= 0xD800 && character <= 0xDFFF; }

// Control characters, and Unicode's ends of a line and of a paragraph.
bool BreaksLine(char32_t character) {
  return character < 0x20 || (character >= 0x7F && character <= 0x9F) || character == 0x2028 ||
         character == 0x2029;
}

// On one line, without blanks at its ends. The two characters of a line's end become one blank.
std::string OneLine(std::string_view text) {
  std::string line;
  for (std::size_t at = 0; at < text.size();) {
    const base::Utf8Character here = base::Utf8CharacterAt(text, at);
    const bool isSecond = here.value == '\n' && at > 0 && text[at - 1] == '\r';
    at += here.length;
    if (BreaksLine(here.value)) {
      if (!isSecond) line += ' ';
    } else {
      base::AppendUtf8(line, IsSurrogate(here.value) ? kBrokenCharacter : here.value);
    }
  }
  return std::string(base::TrimBlanks(line));
}

std::string_view WithinLength(std::string_view caption) {
  std::size_t end = 0;
  for (std::size_t characters = 0; end < caption.size() && characters < kLongestCaption; ++characters)
    end += base::Utf8CharacterAt(caption, end).length;
  return base::TrimBlanks(caption.substr(0, end));
}

// Reads a template from its front, once.
class Filling {
 public:
  Filling(std::string_view pattern, const CaptionWords& words) : rest_(pattern), words_(words) {}

  std::string whole() {
    while (!rest_.empty()) {
      if (rest_.front() == '|') {
        bar();
      } else {
        piece();
      }
    }
    return isInPart_ ? before_ + '|' + text_ : text_;  // the last bar had no partner
  }

 private:
  void bar() {
    rest_.remove_prefix(1);
    if (!isInPart_) {
      before_ = std::exchange(text_, {});
      hasTokens_ = hasWords_ = false;
    } else {
      text_ = hasTokens_ && !hasWords_ ? before_ : before_ + text_;
    }
    isInPart_ = !isInPart_;
  }

  void piece() {
    for (const Token& token : kTokens) {
      if (!rest_.starts_with(token.name)) continue;
      rest_.remove_prefix(token.name.size());
      const std::string word = OneLine(words_.*token.word);
      hasTokens_ = true;
      hasWords_ = hasWords_ || !word.empty();
      text_ += word;
      return;
    }
    text_ += rest_.front();
    rest_.remove_prefix(rest_.starts_with("{{") ? 2 : 1);
  }

  std::string_view rest_;
  const CaptionWords& words_;
  std::string text_;    // of the part, where in one
  std::string before_;  // the part
  bool isInPart_ = false;
  bool hasTokens_ = false;
  bool hasWords_ = false;
};

}  // namespace

std::string FillCaptionTemplate(std::string_view pattern, const CaptionWords& words) {
  return std::string(WithinLength(OneLine(Filling(pattern, words).whole())));
}

}  // namespace saver

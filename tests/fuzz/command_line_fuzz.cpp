// The command line. Input: the program's path, a byte 0, the rest of the line.
#include <string>

#include "base/number_text.h"
#include "base/text.h"
#include "fuzz/input.h"
#include "fuzz/require.h"
#include "startup/command_line.h"

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

std::string_view WithoutLeadingBlanks(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  return text;
}

void CheckAnyLine(std::string_view line, std::string_view path) {
  const std::string text = startup::TextAfterProgramName(line, path);
  fuzz::Require(line.ends_with(text), "the text is the end of the line");
  fuzz::Require(text.empty() || !IsBlank(text.front()), "the text begins behind the blanks");
}

// The program's name as callers write it, and behind it `text`.
void CheckKnownName(std::string_view path, std::string_view text) {
  const std::string_view expected = WithoutLeadingBlanks(text);
  if (path.find('"') == std::string_view::npos) {
    const std::string quoted = '"' + std::string(path) + "\" " + std::string(text);
    fuzz::Require(startup::TextAfterProgramName(quoted) == expected, "a quoted name ends at its quote");
  }
  if (!path.empty()) {
    const std::string plain = base::AsciiUpper(path) + ' ' + std::string(text);
    fuzz::Require(startup::TextAfterProgramName(plain, path) == expected,
                  "the program knows its own path, blanks and all, in any case");
  }
}

// The mode by a table, letter for letter.
startup::RunMode ExpectedMode(std::string_view text) {
  const std::string_view trimmed = base::TrimBlanks(text);
  if (trimmed.size() < 2 || trimmed[0] != '/') return startup::RunMode::Show;
  switch (trimmed[1]) {
    case 'c':
    case 'C':
      return startup::RunMode::Configure;
    case 'a':
    case 'A':
      return startup::RunMode::ChangePassword;
    case 'p':
    case 'P':
      return startup::RunMode::Preview;
    default:
      return startup::RunMode::Show;
  }
}

bool IsSpaceOfAnyScript(char32_t c) {
  return (c >= 0x09 && c <= 0x0D) || c == 0x20 || c == 0x85 || c == 0xA0 || c == 0x1680 ||
         (c >= 0x2000 && c <= 0x200A) || c == 0x2028 || c == 0x2029 || c == 0x202F || c == 0x205F ||
         c == 0x3000;
}

// The text behind so many characters, without its blanks.
std::string Behind(std::string_view text, int characters) {
  while (characters-- > 0 && !text.empty()) text.remove_prefix(base::Utf8CharacterAt(text, 0).length);
  std::string rest;
  while (!text.empty()) {
    const base::Utf8Character first = base::Utf8CharacterAt(text, 0);
    if (!IsSpaceOfAnyScript(first.value)) rest.append(text.data(), first.length);
    text.remove_prefix(first.length);
  }
  return rest;
}

void CheckSwitches(std::string_view text) {
  fuzz::Require(startup::RunModeOf(text) == ExpectedMode(text), "the first two characters decide");
  fuzz::Require(startup::PasswordWindowOf(text) == base::LenientInt32(Behind(text, 2)),
                "the password's window stands behind two characters");
  fuzz::Require(startup::PreviewWindowOf(text) == base::LenientInt32(Behind(text, 3)),
                "the preview's window stands behind three characters");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest = fuzz::Text(data, size);
  const std::string_view path = fuzz::TakeField(rest, '\0');
  CheckAnyLine(rest, path);
  CheckAnyLine(path, rest);
  CheckKnownName(path, rest);
  CheckSwitches(rest);
  CheckSwitches(startup::TextAfterProgramName(rest));
  return 0;
}

// Settings files of any bytes, read and changed.
//
// Input: the letter of a code page (J: characters of two bytes, else western), the file, and then the
// changes, each behind a byte 1E: "=section 1F key 1F value" sets a key, "-section" empties a section.
#include <string>

#include "base/text.h"
#include "fuzz/input.h"
#include "fuzz/oracles/naive_ini.h"
#include "fuzz/oracles/two_byte_code_page.h"
#include "fuzz/require.h"
#include "settings/ini_document.h"
#include "support/windows_1252.h"

namespace {

using Values = fuzz::NaiveIni::Values;

// UTF-8 that comes through UTF-16 as it is, as every text inside the program does.
std::string ValidText(std::string_view text) { return base::Utf8FromUtf16(base::Utf16FromUtf8(text)); }

// The names that the program gives to sections and keys are plain words.
std::string PlainName(std::string_view text) {
  std::string name;
  for (const char c : text) {
    if ((c >= '0' && c <= '9') || (base::AsciiLower(c) >= 'a' && base::AsciiLower(c) <= 'z')) name += c;
  }
  return name.empty() ? "k" : name;
}

void RequireValues(const settings::IniDocument& document, const Values& values, std::string_view property) {
  for (const auto& [name, value] : values) {
    fuzz::Require(document.has(name.first, name.second), property);
    fuzz::Require(document.value(name.first, name.second) == value, property);
    fuzz::Require(document.value(base::AsciiUpper(name.first), base::AsciiUpper(name.second)) == value,
                  "names are compared without regard to case");
    const std::string cut = document.value(name.first, name.second, 254);
    fuzz::Require(value.starts_with(cut) && cut.size() <= value.size(), "a cut value is a value's beginning");
  }
}

void SetKey(settings::IniDocument& document, Values& values, std::string_view change) {
  const std::string section = PlainName(fuzz::TakeField(change, '\x1F'));
  const std::string key = PlainName(fuzz::TakeField(change, '\x1F'));
  const std::string value = ValidText(change);
  document.set(section, key, value);
  values[{base::AsciiLower(section), base::AsciiLower(key)}] = fuzz::AsStored(value);
}

void EraseSection(settings::IniDocument& document, Values& values, std::string_view change) {
  const std::string section = PlainName(change);
  document.eraseSection(section);
  const std::string name = base::AsciiLower(section);
  for (auto at = values.lower_bound({name, ""}); at != values.end() && at->first.first == name;) {
    at = values.erase(at);
  }
}

void Check(std::string_view file, std::string_view changes, const os::AnsiCodePage& ansi) {
  settings::IniDocument document(file, ansi);
  const fuzz::NaiveIni naive(file, ansi);
  Values values = naive.values();
  RequireValues(document, values, "every value is read by the rules");
  fuzz::Require(!document.has("absent", "absent") || values.contains({"absent", "absent"}),
                "what is not there is not found");

  const std::string unchanged = document.serialise();
  if (!file.starts_with("\xFF\xFE")) {
    fuzz::Require(unchanged == file, "a file that was not changed keeps its bytes");
  }
  const bool anyChange = !changes.empty();
  while (!changes.empty()) {
    const std::string_view change = fuzz::TakeField(changes, '\x1E');
    if (change.starts_with('=')) SetKey(document, values, change.substr(1));
    if (change.starts_with('-')) EraseSection(document, values, change.substr(1));
  }
  RequireValues(document, values, "a change changes its own value alone");

  const std::string written = document.serialise();
  const settings::IniDocument reread(written, ansi);
  const fuzz::NaiveIni rereadNaively(written, ansi);
  RequireValues(reread, values, "every value survives the file");
  fuzz::Require(rereadNaively.values() == values, "a written file holds these values and no others");
  fuzz::Require(rereadNaively.otherLines() == naive.otherLines(), "lines that are no keys stay as they are");
  fuzz::Require(reread.serialise() == written, "a second writing gives the same bytes");
  fuzz::Require(anyChange || written == unchanged, "writing twice without a change gives the same bytes");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest = fuzz::Text(data, size);
  const bool isTwoByte = rest.starts_with('J');
  if (!rest.empty()) rest.remove_prefix(1);
  const std::string_view file = fuzz::TakeField(rest, '\x1E');
  static const fuzz::TwoByteCodePage twoByte;
  static const support::Windows1252 western;
  if (isTwoByte) {
    Check(file, rest, twoByte);
  } else {
    Check(file, rest, western);
  }
  return 0;
}

// The settings file beside the system's own profile functions, which every other program uses on it.
//
// Wine's functions differ from those of Windows NT in known points, and Windows' behaviour is the one that is
// built. So no generated file holds what Wine reads otherwise: a section line with two closing brackets (it
// takes the last, not the first), one without a closing bracket (it takes it for a key), form feeds, ^Z, the
// no-break space or next-line character at the ends of names or values (it drops them too), a UTF-8 mark (it
// understands it), or a line without "=" that spells a key which is asked for (it takes it for the first of
// that name). Of a value of exactly 254 characters in quotes it loses the last one; the comparison knows
// that. Nothing asks for a key that begins with a semicolon (it finds comments).
#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <random>

#include "os/ansi_code_page_win.h"
#include "os/files_win.h"
#include "os/utf16_win.h"
#include "settings/ini_document.h"
#include "settings/load_settings.h"
#include "settings/settings_file.h"
#include "settings/settings_record.h"
#include "support/temporary_folder_win.h"

namespace {

using settings::IniDocument;
using settings::ReadIniValue;

constexpr std::array kSections{"a", "Bc", "d e"};
constexpr std::array kKeys{"0", "1", "Key", "two words", "\xE9"};

class ProfileFunctions : public testing::Test {
 protected:
  ProfileFunctions() : path_(folder_.path() + "\\zbfaone.ini"), ansiPath_(ansi_.encode(path_).value()) {}

  // Each file gets a write time of its own, well in the past: Wine keeps a parsed file while its time stays
  // the same, but parses one that is younger than 2.1 seconds again at every call.
  void write(const std::string& content) {
    const HANDLE file = CreateFileA(ansiPath_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr);
    const FILETIME time{0, 0x01D00000 + ++writes_};
    const BOOL aged = SetFileTime(file, nullptr, nullptr, &time);
    CloseHandle(file);
    ASSERT_EQ(written, content.size());
    ASSERT_NE(aged, FALSE);
  }

  std::string content() { return files_.read(path_).value_or("(no file)"); }

  // By the system, with the reader's buffer of 255 characters.
  std::string systemValue(const std::string& section, const std::string& key) {
    std::array<char, 255> buffer{};
    const DWORD length = GetPrivateProfileStringA(section.c_str(), key.c_str(), "", buffer.data(),
                                                  static_cast<DWORD>(buffer.size()), ansiPath_.c_str());
    return {buffer.data(), length};
  }

  std::string systemValueW(const wchar_t* section, const wchar_t* key) {
    std::array<wchar_t, 255> buffer{};
    const DWORD length = GetPrivateProfileStringW(
        section, key, L"", buffer.data(), static_cast<DWORD>(buffer.size()), os::ToWide(path_).c_str());
    return os::FromWide({buffer.data(), length});
  }

  void systemSet(const char* section, const char* key, const char* value) {
    ASSERT_NE(WritePrivateProfileStringA(section, key, value, ansiPath_.c_str()), FALSE);
  }

  std::string ourValue(const IniDocument& document, const std::string& section, const std::string& key) {
    return ansi_.encode(ReadIniValue(document, section, ansi_.decode(key)))
        .value_or("(not in the code page)");
  }

  // Both readers, key by key; `bytes` is what the file holds.
  void compare(const std::string& bytes, unsigned seed, int& found) {
    const IniDocument document(bytes, ansi_);
    for (const std::string section : kSections) {
      for (const std::string key : kKeys) {
        const std::string ours = ourValue(document, section, key);
        const std::string theirs = systemValue(section, key);
        found += theirs.empty() ? 0 : 1;
        // The one difference: the numbered keys of a list must begin their line.
        if (ours != theirs && IsIndented(key, bytes)) continue;
        if (ours.size() == 254 && theirs == ours.substr(0, 253) && StandsInQuotes(ours, bytes)) continue;
        ASSERT_EQ(ours, theirs) << "file " << seed << " [" << section << "] " << key << "\n"
                                << testing::PrintToString(bytes);
      }
    }
  }

  // True for a number that stands as a key behind blanks in one of the lines.
  static bool IsIndented(const std::string& key, const std::string& bytes) {
    if (key.find_first_not_of("0123456789") != std::string::npos) return false;
    constexpr const char* kBlank = " \t\v";
    for (std::size_t at = bytes.find(key); at != std::string::npos; at = bytes.find(key, at + 1)) {
      const std::size_t before = at == 0 ? std::string::npos : bytes.find_last_not_of(kBlank, at - 1);
      const bool startsLine = before == std::string::npos || bytes[before] == '\r' || bytes[before] == '\n';
      const std::size_t behind = bytes.find_first_not_of(kBlank, at + key.size());
      const bool isKey = behind != std::string::npos && bytes[behind] == '=';
      if (startsLine && isKey && at > 0 &&
          std::string_view(kBlank).find(bytes[at - 1]) != std::string::npos) {
        return true;
      }
    }
    return false;
  }

  static bool StandsInQuotes(const std::string& value, const std::string& bytes) {
    return bytes.find('"' + value + '"') != std::string::npos ||
           bytes.find('\'' + value + '\'') != std::string::npos;
  }

  DWORD writes_ = 0;
  os::AnsiCodePageWin ansi_;
  os::FilesWin files_;
  support::TemporaryFolder folder_;
  std::string path_;
  std::string ansiPath_;
};

// Settings files as a careless hand could write them.
class Generator {
 public:
  explicit Generator(unsigned seed) : random_(seed) {}

  std::string file() {
    std::string content;
    const int lines = below(25);
    for (int i = 0; i < lines; ++i) content += line() + lineEnd();
    if (below(3) == 0) content += line();
    return content;
  }

 private:
  int below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(random_); }

  template <std::size_t Count>
  std::string oneOf(const std::array<const char*, Count>& choices) {
    return choices[static_cast<std::size_t>(below(static_cast<int>(Count)))];
  }

  std::string lineEnd() { return oneOf(std::array{"\r\n", "\r\n", "\n", "\r", "\r\n\r\n", "\n\n"}); }
  std::string blanks() { return oneOf(std::array{"", "", "", " ", "\t", "  ", " \t ", "\v"}); }

  std::string inSomeCase(std::string text) {
    for (char& c : text) {
      if (below(4) == 0 && c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    return text;
  }

  std::string line() {
    switch (below(12)) {
      case 0:
      case 1:
      case 2:
        return blanks() + "[" + blanks() + inSomeCase(oneOf(kSections)) + blanks() + "]" +
               oneOf(std::array{"", "", " ", " ; behind", "=x", "0=y"});
      case 3:
        return blanks() + ";" + text(below(20));
      case 4:
        return blanks() + oneOf(std::array{"no key", "00", "#", "x ]", ""});
      case 5:
        return blanks() + text(below(6)) + "=" + text(below(10));
      default:
        return blanks() + inSomeCase(oneOf(kKeys)) + blanks() + "=" + blanks() + value() + blanks();
    }
  }

  std::string value() {
    switch (below(8)) {
      case 0:
        return "\"" + blanks() + text(below(8)) + blanks() + "\"";
      case 1:
        return "'" + text(below(8)) + "'";
      case 2:
        return "\"" + text(below(4)) + "'";
      case 3:
        return oneOf(std::array{"\"", "'", "\"\"", "''", "\"\"\"", "\"'\"", "", "\" \""});
      case 4:
        return text(245 + below(20));
      case 5:
        return "\"" + text(245 + below(20)) + "\"";
      default:
        return text(below(12));
    }
  }

  // No bracket in front, which would make a section line of it, and neither blank nor what Wine takes for
  // one.
  std::string text(int length) {
    constexpr std::string_view kCommon = "abcXYZ0189;=[]\"'#%\\:.,/ \t";
    std::string result;
    for (int i = 0; i < length; ++i) {
      const int kind = below(10);
      char c = kCommon[static_cast<std::size_t>(below(static_cast<int>(kCommon.size())))];
      if (kind == 0) c = static_cast<char>(0x80 + below(0x80));
      if (kind == 1 && below(4) == 0) c = oneControl();
      result += c == '\x85' || c == '\xA0' ? '\xE4' : c;
    }
    if (result.find_first_not_of(" \t") != std::string::npos &&
        result[result.find_first_not_of(" \t")] == '[') {
      return "x" + result;
    }
    return result;
  }

  char oneControl() {
    constexpr std::string_view kControls = "\x01\x02\x07\x08\x0E\x1B\x1F\x7F";
    return kControls[static_cast<std::size_t>(below(static_cast<int>(kControls.size())))];
  }

  std::mt19937 random_;
};

TEST_F(ProfileFunctions, FiveThousandFilesReadAlike) {
  int found = 0;
  for (unsigned seed = 1; seed <= 5000; ++seed) {
    const std::string bytes = Generator(seed).file();
    ASSERT_NO_FATAL_FAILURE(write(bytes));
    ASSERT_NO_FATAL_FAILURE(compare(bytes, seed, found));
  }
  EXPECT_GT(found, 5000);  // the files are not all empty
}

TEST_F(ProfileFunctions, FindANumberBehindABlankWhichIsNeverFoundHere) {
  const std::string bytes = "[images]\r\n 0=a.jpg\r\n1 =b.jpg\r\n";
  ASSERT_NO_FATAL_FAILURE(write(bytes));
  const IniDocument document(bytes, ansi_);
  EXPECT_EQ(systemValue("images", "0"), "a.jpg");
  EXPECT_EQ(ourValue(document, "images", "0"), "");
  EXPECT_EQ(ourValue(document, "images", "1"), "b.jpg") << "blanks behind a key do not count";
}

TEST_F(ProfileFunctions, AFileThatWeChangedReadsThereAsItReadsHere) {
  int found = 0;
  for (unsigned seed = 1; seed <= 500; ++seed) {
    IniDocument document(Generator(seed).file(), ansi_);
    document.eraseSection(kSections[seed % 3]);
    for (unsigned i = 0; i < 6; ++i) {
      const std::string value = Generator(seed * 10 + i).file();
      document.set(kSections[i % 3], i % 2 ? "0" : "Key", ansi_.decode(value));
    }
    ASSERT_NO_FATAL_FAILURE(write(document.serialise()));
    ASSERT_NO_FATAL_FAILURE(compare(document.serialise(), seed, found));
  }
  EXPECT_GT(found, 500);
}

TEST_F(ProfileFunctions, AFileThatTheyWroteIsLoadedAndSavedWithoutLoss) {
  write("; mine\r\n[other]\r\nkept=1\r\n");
  systemSet("total", "total", "2");
  systemSet("images", "0", "C:\\caf\xE9.jpg");
  systemSet("images", "1", "C:\\b.jpg");
  systemSet("caption", "1", "\"  quoted  \"");
  for (const settings::Key& key : settings::kWrittenKeys) systemSet(key.section, key.name, "7");
  systemSet("image", "timeDisplay", "0");

  const std::string written = content();
  EXPECT_EQ(IniDocument(written, ansi_).serialise(), written);

  settings::SaverSettings loaded;
  LoadSettings(loaded, settings::OpenSettings(files_, ansi_, folder_.path()), settings::Conversion::Strict);
  EXPECT_EQ(loaded.imageFiles, (std::vector<std::string>{"C:\\caf\xC3\xA9.jpg", "C:\\b.jpg", ""}));
  EXPECT_EQ(loaded.imageCaptions, (std::vector<std::string>{"", "  quoted  ", ""}));
  EXPECT_EQ(loaded.record.bFade, "7");

  IniDocument document(written, ansi_);
  WriteSettings(document, loaded.record, {loaded.imageFiles[0], loaded.imageFiles[1]},
                {loaded.imageCaptions[0], loaded.imageCaptions[1]});
  ASSERT_TRUE(files_.replace(path_, document.serialise()));
  EXPECT_EQ(systemValue("images", "0"), "C:\\caf\xE9.jpg");
  EXPECT_EQ(systemValue("caption", "1"), "  quoted  ");
  EXPECT_EQ(systemValue("other", "kept"), "1");
  EXPECT_TRUE(content().starts_with("; mine\r\n[other]\r\nkept=1\r\n"));
}

TEST_F(ProfileFunctions, TheyReadEveryKeyThatWeWrote) {
  settings::SettingsRecord record;
  int number = 100;
  for (const settings::Key& key : settings::kWrittenKeys) record.*key.field = std::to_string(number++);
  IniDocument document("", ansi_);
  WriteSettings(document, record, {"C:\\a.jpg"}, {" \"A\" "});
  ASSERT_TRUE(files_.replace(path_, document.serialise()));
  for (const settings::Key& key : settings::kWrittenKeys) {
    EXPECT_EQ(systemValue(key.section, key.name), record.*key.field) << key.name;
  }
  EXPECT_EQ(systemValue("total", "total"), "1");
  EXPECT_EQ(systemValue("images", "0"), "C:\\a.jpg");
  EXPECT_EQ(systemValue("caption", "0"), " \"A\" ");
  systemSet("image", "picSpeed", "5");
  systemSet("extras", "transitionTime", "900");
  const IniDocument again(content(), ansi_);
  EXPECT_EQ(again.value("image", "picSpeed"), "5");
  EXPECT_EQ(again.value("extras", "transitionTime"), "900");
  EXPECT_EQ(again.value("caption", "0"), " \"A\" ");
}

TEST_F(ProfileFunctions, TheirWideFormsReadAFileInAnyScript) {
  IniDocument document("; caf\xE9\r\n", ansi_);
  document.set("images", "0", "C:\\\xD0\xBB\xD0\xB5\xD1\x82\xD0\xBE.jpg");
  document.set("caption", "0", " \xF0\x9F\x8C\x99 ");
  ASSERT_TRUE(files_.replace(path_, document.serialise()));
  EXPECT_EQ(systemValueW(L"images", L"0"), "C:\\\xD0\xBB\xD0\xB5\xD1\x82\xD0\xBE.jpg");
  EXPECT_EQ(systemValueW(L"caption", L"0"), " \xF0\x9F\x8C\x99 ");
  ASSERT_NE(WritePrivateProfileStringW(L"caption", L"1", L"\x043B", os::ToWide(path_).c_str()), FALSE);
  const IniDocument again(content(), ansi_);
  EXPECT_EQ(again.value("caption", "0"), " \xF0\x9F\x8C\x99 ");
  EXPECT_EQ(again.value("caption", "1"), "\xD0\xBB");
}

}  // namespace

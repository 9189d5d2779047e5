// A settings file in memory: read whole, edited line by line, written whole.
#pragma once

#include <cstddef>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "os/ansi_code_page.h"

namespace settings {

// Reads what the Windows NT profile functions read, with texts in UTF-8. Section and key names are compared
// without regard to the case of A to Z; of sections, and of keys in a section, with the same name the first
// one counts; lines before the first section do not. Lines may end in LF, CRLF or CR.
//
// The file is text in the system's ANSI code page, or UTF-16 (low byte first) when it begins with the
// byte-order mark FF FE. No other mark is known: a UTF-8 mark makes its line unreadable, as it does there.
class IniDocument {
 public:
  // `ansi` must outlive the document.
  IniDocument(std::string_view bytes, const os::AnsiCodePage& ansi);

  // Lines are known by their addresses, which a move keeps and a copy would not.
  IniDocument(IniDocument&&) = default;
  IniDocument& operator=(IniDocument&&) = default;
  IniDocument(const IniDocument&) = delete;
  IniDocument& operator=(const IniDocument&) = delete;
  ~IniDocument() = default;

  const os::AnsiCodePage& ansi() const { return *ansi_; }

  static constexpr std::size_t kNoLimit = static_cast<std::size_t>(-1);

  // The key's value, or empty text when the section or key is absent. Longer ones are cut to `longest`
  // characters as the profile functions count them: bytes of the code page for an ANSI file, UTF-16 units for
  // a UTF-16 file. A character that would be cut in two is left out.
  std::string value(std::string_view section, std::string_view key, std::size_t longest = kNoLimit) const;

  bool has(std::string_view section, std::string_view key) const;

  // The number of keys with different names in the section.
  std::size_t keysIn(std::string_view section) const;

  // Gives the key a value that reads back as `value` (a line break reads back as a blank). An existing line
  // keeps its spelling and spacing, and is untouched when it reads so already. A new key goes behind the last
  // key of its section, or to the place of the keys that eraseSection() took out; a new section goes to the
  // end of the file.
  void set(std::string_view section, std::string_view key, std::string_view value);

  // Takes every line of the key out of the section.
  void erase(std::string_view section, std::string_view key);

  // Takes every key line out of the section. The header, comments and blank lines stay where they are.
  void eraseSection(std::string_view section);

  // The file is written as UTF-16 even where every character fits the code page.
  void writeAsUtf16() { writeAsUtf16_ = true; }

  // The bytes of the file: ANSI while every character fits the code page, else UTF-16 with its mark. Lines
  // of an ANSI file that were not changed keep their bytes.
  std::string serialise() const;

 private:
  enum class LineEnd : unsigned char { None, CrLf, Lf, Cr };  // None: at the end of the file

  // Small, since a file of many pictures has many.
  struct Line {
    std::string text;                    // UTF-8, without the line end
    std::unique_ptr<std::string> bytes;  // of an unchanged ANSI line that is not plain ASCII; else null
    LineEnd end = LineEnd::CrLf;
  };
  using Lines = std::list<Line>;

  struct Section {
    Lines lines;  // the header first, except in the part before the first section
    std::unordered_map<std::string, Lines::iterator> keys;  // by lower-case name; the first line of each key
    Lines::iterator lastKey;                                // the line behind which a new key goes
  };

  static LineEnd lineEndAt(std::string_view text);
  static std::string_view textOf(LineEnd end);
  void readLines(std::string_view text, const os::AnsiCodePage* ansi);
  void add(Line line);
  Section& openSection(std::string_view name);
  void replaceValue(Line& line, std::string_view value);
  void appendKey(Section& section, std::string_view key, std::string_view value);
  const Line* find(std::string_view section, std::string_view key) const;
  std::size_t lengthOf(std::string_view character) const;
  bool appendAnsi(std::string& bytes, const Line& line) const;

  const os::AnsiCodePage* ansi_;
  bool utf16_ = false;  // the file was read as UTF-16
  bool writeAsUtf16_ = false;
  std::list<Section> sections_;  // in the order of the file; the first is the part before any section
  std::unordered_map<std::string, Section*> index_;  // by lower-case name; the first section of each name
};

}  // namespace settings

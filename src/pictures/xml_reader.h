// Reads XML piece by piece, as far as metadata needs it: elements, attributes and text. Never fails: what is
// not well-formed is read as text or ends the reading.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pictures {

struct XmlPiece {
  enum class Kind {
    Text,      // with references, such as &amp;
    Verbatim,  // text of a CDATA section
    Open,      // a start tag
    Close,     // an end tag
    Empty,     // a tag that is both
  };

  Kind kind = Kind::Text;
  std::string_view content;     // the text, or the element's name with its prefix
  std::string_view attributes;  // what stands behind the name of a start tag
};

class XmlReader {
 public:
  explicit XmlReader(std::string_view xml) : rest_(xml) {}

  // The next piece; comments, declarations and instructions are passed over. Nothing at the end, or in front
  // of something that has none.
  std::optional<XmlPiece> next();

 private:
  XmlPiece verbatim();
  std::optional<XmlPiece> tag();
  bool passOver(std::string_view begin, std::string_view end);

  std::string_view rest_;
};

struct XmlAttribute {
  std::string_view name;
  std::string_view value;  // with references
};

// Takes the first attribute from the front of a start tag's attributes; nothing when there is none, or no
// well-formed one.
std::optional<XmlAttribute> TakeXmlAttribute(std::string_view& attributes);

// Text with its references replaced by what they stand for. Those that stand for nothing stay.
std::string ResolvedXml(std::string_view text);

}  // namespace pictures

#include "pictures/xmp_titles.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "pictures/noted_text.h"
#include "pictures/xml_reader.h"

namespace pictures {

namespace {

constexpr std::string_view kDublinCore = "http://purl.org/dc/elements/1.1/";
constexpr std::size_t kNone = static_cast<std::size_t>(-1);

struct Element {
  std::size_t parent = kNone;
  std::string_view name;
  std::string_view attributes;
  std::string text;  // directly in it
  bool isWhole = false;
};

// In the order of their start tags. An end tag ends the innermost element that is open, whatever its name.
std::vector<Element> ReadElements(std::string_view xml) {
  std::vector<Element> elements;
  std::size_t inside = kNone;
  XmlReader reader(xml);
  while (const auto piece = reader.next()) {
    switch (piece->kind) {
      case XmlPiece::Kind::Text:
        if (inside != kNone) elements[inside].text += ResolvedXml(piece->content);
        break;
      case XmlPiece::Kind::Verbatim:
        if (inside != kNone) elements[inside].text += piece->content;
        break;
      case XmlPiece::Kind::Open:
        elements.push_back({inside, piece->content, piece->attributes, {}, false});
        inside = elements.size() - 1;
        break;
      case XmlPiece::Kind::Empty:
        elements.push_back({inside, piece->content, piece->attributes, {}, true});
        break;
      case XmlPiece::Kind::Close:
        if (inside == kNone) break;
        elements[inside].isWhole = true;
        inside = elements[inside].parent;
        break;
    }
  }
  return elements;
}

std::string_view LocalName(std::string_view name) {
  const std::size_t colon = name.find(':');
  return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

// The texts of one property, of which one is chosen.
struct Property {
  std::string byDefault;  // in the language that is the default
  std::string inList;     // in any other
  std::string plain;

  const std::string& chosen() const {
    if (!byDefault.empty()) return byDefault;
    return inList.empty() ? plain : inList;
  }
};

class Packet {
 public:
  explicit Packet(std::string_view xml) : elements_(ReadElements(xml)) {
    for (const Element& element : elements_) {
      forEachAttribute(element, [this](const XmlAttribute& attribute) {
        constexpr std::string_view kPrefixOf = "xmlns:";
        if (attribute.value == kDublinCore && attribute.name.starts_with(kPrefixOf))
          prefixes_.push_back(attribute.name.substr(kPrefixOf.size()));
      });
    }
  }

  XmpTitles titles() {
    for (std::size_t i = 0; i < elements_.size(); ++i) take(i);
    return {title_.chosen(), description_.chosen()};
  }

 private:
  template <typename Do>
  static void forEachAttribute(const Element& element, const Do& handle) {
    for (std::string_view rest = element.attributes; const auto attribute = TakeXmlAttribute(rest);)
      handle(*attribute);
  }

  std::size_t parentOf(std::size_t element) const {
    return element == kNone ? kNone : elements_[element].parent;
  }

  // The resource that is the picture; others lie deeper.
  bool describesPicture(std::size_t element) const {
    const std::size_t parent = parentOf(element);
    return parent != kNone && LocalName(elements_[element].name) == "Description" &&
           LocalName(elements_[parent].name) == "RDF";
  }

  Property* propertyNamed(std::string_view name) {
    const std::size_t colon = name.find(':');
    if (colon == std::string_view::npos ||
        std::ranges::find(prefixes_, name.substr(0, colon)) == prefixes_.end())
      return nullptr;
    const std::string_view local = name.substr(colon + 1);
    return local == "title" ? &title_ : local == "description" ? &description_ : nullptr;
  }

  Property* propertyOf(std::size_t element) {
    return element != kNone && describesPicture(parentOf(element)) ? propertyNamed(elements_[element].name)
                                                                   : nullptr;
  }

  void take(std::size_t i) {
    const Element& element = elements_[i];
    if (describesPicture(i)) {
      forEachAttribute(element, [this](const XmlAttribute& attribute) {
        if (Property* property = propertyNamed(attribute.name))
          NoteFirst(property->plain, ResolvedXml(attribute.value));
      });
    }
    if (!element.isWhole) return;
    if (Property* property = propertyOf(i)) NoteFirst(property->plain, element.text);
    if (LocalName(element.name) != "li") return;
    if (Property* property = propertyOf(parentOf(element.parent)))
      NoteFirst(isDefault(element) ? property->byDefault : property->inList, element.text);
  }

  static bool isDefault(const Element& item) {
    bool isIt = false;
    forEachAttribute(item, [&isIt](const XmlAttribute& attribute) {
      isIt = isIt || (attribute.name == "xml:lang" && attribute.value == "x-default");
    });
    return isIt;
  }

  std::vector<Element> elements_;
  std::vector<std::string_view> prefixes_;  // that stand for the names of titles and descriptions
  Property title_;
  Property description_;
};

// A packet in UTF-16 begins with its mark, or with a "<" of two bytes.
bool IsUtf16(std::string_view packet) {
  using namespace std::string_view_literals;
  return packet.starts_with("\xFF\xFE") || packet.starts_with("\xFE\xFF") || packet.starts_with("<\0"sv) ||
         packet.starts_with("\0<"sv);
}

}  // namespace

XmpTitles ReadXmpTitles(std::string_view packet) {
  if (!IsUtf16(packet)) return Packet(packet).titles();
  const std::string text = TextOfUtf16(packet);
  return Packet(text).titles();
}

}  // namespace pictures

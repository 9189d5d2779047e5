// Title and description in an XMP packet (ISO 16684-1): XML that holds RDF.
#pragma once

#include <string>
#include <string_view>

namespace pictures {

// UTF-8; empty where there is none.
struct XmpTitles {
  std::string title;
  std::string description;
};

// Of the picture that the packet describes, not of others that it was made of. Of several languages the one
// that is the default, else the first. A packet that is cut short or broken gives what stands in front of
// that.
XmpTitles ReadXmpTitles(std::string_view packet);

}  // namespace pictures

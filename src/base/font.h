// The description of a font as the user chose it.
#pragma once

#include <string>

namespace base {

struct Font {
  std::string name = "MS Sans Serif";
  float sizePoints = 8.25F;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikethrough = false;

  bool operator==(const Font&) const = default;
};

}  // namespace base

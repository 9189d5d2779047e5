// What happened to the entries of a list.
#pragma once

namespace forms {

struct ListEdit {
  enum class Kind { Reset, Inserted, Removed, Replaced };

  Kind kind = Kind::Reset;
  int index = 0;  // of the first entry concerned
  int count = 0;  // entries concerned
};

}  // namespace forms

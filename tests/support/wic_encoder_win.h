// Picture files written by the machine's own encoders.
#pragma once

#include <string>

#include "base/bitmap.h"

namespace support {

enum class EncodedAs { png, jpeg, tiff };

// The bytes of a file; pixels straight, alpha kept in a PNG file. Empty when the machine cannot write one.
std::string Encode(const base::Bitmap& pixels, EncodedAs format);

// Initialises COM for a scope.
class ComScope {
 public:
  ComScope();
  ~ComScope();
  ComScope(const ComScope&) = delete;
  ComScope& operator=(const ComScope&) = delete;
};

}  // namespace support

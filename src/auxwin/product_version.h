// The product's version, as the build names it.
#pragma once

namespace auxwin {

extern const char* const kProductVersion;

}  // namespace auxwin

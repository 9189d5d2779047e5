#include "auxwin/product_version.h"

namespace auxwin {

const char* const kProductVersion = LUMORA_VERSION;

}  // namespace auxwin

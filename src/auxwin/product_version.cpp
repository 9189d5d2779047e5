// A file of its own, so that each program is built with its own number and all else is shared.
#include "auxwin/frm_about.h"

namespace auxwin {

const char* const kProductVersion = LUMORA_VERSION;

}  // namespace auxwin

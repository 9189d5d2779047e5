// The system's side of pictures beyond those of the list.
#pragma once

#include "saver/picture_order.h"

namespace startup {

// Follows the system's folders; remembers in %LOCALAPPDATA%\Lumora where there is no better place.
saver::LibraryServices MakeLibraryServices();

}  // namespace startup

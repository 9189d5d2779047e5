// The system's side of pictures beyond those of the list.
#pragma once

#include <string>

#include "dialog/form2.h"
#include "os/files.h"
#include "saver/picture_order.h"

namespace startup {

// The pictures that were hidden in the show, for the settings dialog. `files` outlives what is given.
dialog::HiddenPictures MakeHiddenPictures(os::Files& files, const std::string& programFolder);

// Follows the system's folders; remembers in %LOCALAPPDATA%\Lumora where there is no better place.
saver::LibraryServices MakeLibraryServices();

}  // namespace startup

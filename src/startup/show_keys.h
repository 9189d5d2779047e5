// Which key wishes for what in a show that takes keys.
#pragma once

#include <optional>

#include "saver/show_wish.h"

namespace startup {

// By the system's number of a key ("virtual key code"). Nothing for a key that ends the show.
std::optional<saver::ShowWish> WishOfKey(int keyCode);

}  // namespace startup

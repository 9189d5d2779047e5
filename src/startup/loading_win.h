// Loading pictures beside the user-interface thread, with the machine's decoder.
#pragma once

#include <memory>

#include "os/event_loop.h"
#include "pictures/ahead_loader.h"
#include "pictures/thumbnails.h"

namespace startup {

// Its threads begin with the first wish, and have file access and decoder of their own. The loop outlives it.
std::unique_ptr<pictures::AheadLoader> MakeAheadLoader(os::EventLoop& loop);

// The same for a screen of `small` pixels that stands for one of `large`.
std::unique_ptr<pictures::AheadLoader> MakeThumbnailLoader(os::EventLoop& loop,
                                                           std::shared_ptr<pictures::Thumbnails> kept,
                                                           base::PixelSize small, base::PixelSize large);

// Gives a loader up and does not return when a thread of it hangs in the system: the process then ends at
// once, without asking libraries that such a thread may hold. Everything else has to be put in order before.
void EndLoading(std::unique_ptr<pictures::AheadLoader> loader);

}  // namespace startup

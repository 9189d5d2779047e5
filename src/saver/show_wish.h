// What a user can want of a running show.
#pragma once

namespace saver {

enum class ShowWish {
  Next,
  Back,
  Hold,         // the picture stays, or the show goes on
  Information,  // about the picture, on and off
  NeverAgain,   // the picture is not to be shown any more; asked once more before it is done
  OpenFolder,   // the show ends, and the picture's folder opens
  Help,         // the keys, on and off
};

}  // namespace saver

// What of a show on a thread of its own is seen on the thread of the dialog.
#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "base/bitmap.h"
#include "base/geometry.h"

namespace startup {

// What is known of a show besides its pixels.
struct ShowNews {
  int play = 0;                             // which of the shows that were asked for
  bool isFirst = false;                     // its first picture, of which everything is new
  std::vector<base::PixelRect> areas = {};  // what is new of the pixels
  base::PixelRect picture = {};             // where the picture stands; empty: there is none
  std::string shownPicture = {};            // its path
  std::string mouseSensitivity = {};        // the loaded setting
};

// The show puts what it shows, and the dialog takes all that has come since it took last.
class SeenShow {
 public:
  // Copies what is new of the pixels, whose areas lie inside. True when the dialog has taken everything
  // before, and is to be told.
  bool put(ShowNews news, const base::Bitmap& pixels);

  // Hands out what has come, if anything: the areas are those of all that was put. What is handed out is the
  // show's again afterwards.
  void take(const std::function<void(const ShowNews& news, const base::Bitmap& pixels)>& see);

 private:
  std::mutex mutex_;
  base::Bitmap pixels_;
  ShowNews news_;
  bool hasNews_ = false;
};

}  // namespace startup

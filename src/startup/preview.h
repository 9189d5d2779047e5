// The picture in the control panel's little monitor.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "base/bitmap.h"
#include "forms/form.h"
#include "forms/picture_boxes.h"
#include "os/ansi_code_page.h"
#include "os/clock.h"
#include "os/event_loop.h"
#include "os/files.h"
#include "os/foreign_window.h"
#include "os/instance.h"

namespace startup {

// Where the program's resources keep the picture, a GIF file of 160 x 120 pixels.
constexpr int kPreviewImageResource = 1;

// The picture in the bytes of a GIF file, opaque; empty where the file is none.
base::Bitmap PreviewImage(std::string_view gifFile);

// The form that holds the preview's picture. It is never shown.
class PuzzleForm : public forms::Form {
 public:
  // `image` is what Picture1 holds from the start, at its own size.
  explicit PuzzleForm(const base::Bitmap& image);

  forms::PictureBox Picture1;
};

// The block that is copied to the window's top-left corner.
constexpr base::PixelSize kPreviewSize{160, 120};

// How often a live preview looks whether its picture is still there.
constexpr int kPreviewCheckMs = 200;

struct PreviewServices {
  os::ForeignWindow& window;
  os::EventLoop& loop;
  const os::Clock& clock;
  os::Instance& instance;
};

// What the settings say of a live preview. The settings file is only read: a preview writes nothing, not even
// on the first run.
std::string LivePreviewSetting(os::Files& files, const os::AnsiCodePage& ansi,
                               const std::string& programFolder);

// Draws `image` once into the window that the command line names, and calls `endProgram`. A number that is no
// window ends it without drawing anywhere; 0 is the whole screen.
//
// With `livePreview` "1" the picture is drawn again whenever it was lost, until the window is gone or given
// to another program, and another copy of the program may run meanwhile. The loss is noticed by looking at a
// few of the window's pixels several times a second. A visible window of our own inside would be told of it,
// but what it shows is then another window's picture and not, as here, the given window's; its owner draws
// over it whenever it does not leave such windows out; and a fifth of a second without the picture, after a
// repaint that comes once in a while, is all there is to gain. A hidden one is kept inside for the owner to
// close.
void DrawPreview(const std::string& commandText, const base::Bitmap& image, const std::string& livePreview,
                 const PreviewServices& services, const std::function<void()>& endProgram);

// True when the window shows something else than `block` at one of the places looked at. Places that cannot
// be read tell nothing.
bool PreviewIsLost(os::ForeignWindow& foreign, std::intptr_t window, const base::Bitmap& block);

}  // namespace startup

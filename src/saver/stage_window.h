// The show's window, as the show needs it: a back buffer, a way to the screen, input.
#pragma once

#include <cstdint>
#include <functional>
#include <span>

#include "base/bitmap.h"
#include "base/geometry.h"

namespace saver {

// Everything is in pixels of the window, whose top-left corner is the primary screen's.
class StageWindow {
 public:
  virtual ~StageWindow() = default;

  // Places the window over `area` of the screen, above everything, and shows it without taking the focus.
  virtual void cover(base::PixelRect area) = 0;

  // Shows the window again where it stands, with the keyboard's focus. From the first time on there is news
  // of the display's power.
  virtual void activate() = 0;

  // The window as the system knows it.
  virtual std::intptr_t handle() const = 0;

  // Takes the window from the screen for good.
  virtual void close() = 0;

  // The pixels that a paint message shows. As large as the area covered; valid until the next cover().
  virtual base::BitmapView backBuffer() = 0;

  // Runs `run` for each of 0 to count - 1, in any order and several at the same time, as far as there are
  // processors for it. What it throws is thrown here.
  virtual void runParts(int count, const std::function<void(int part)>& run) = 0;

  // Puts those parts of the back buffer on the screen at once. None is empty or reaches beyond it.
  virtual void present(std::span<const base::PixelRect> areas) = 0;

  // The back buffer is about to be shown again by a paint message.
  std::function<void()> onPaint;

  // What the user and the system do to the window.
  std::function<void(int keyCode)> onKeyDown;
  std::function<void(int keyCode)> onKeyRepeat;  // it is held down; without a handler it goes down once more
  std::function<void(base::PixelPoint)> onMouseDown;
  std::function<void(base::PixelPoint)> onMouseMove;
  std::function<void()> onCloseRequest;           // somebody asks the window politely to go
  std::function<void()> onSessionEnd;             // the user's session ends now
  std::function<void()> onScreenChanged;          // size or arrangement of the screens
  std::function<void(bool isOn)> onDisplayPower;  // the display went on or off; one that is dimmed is on
};

}  // namespace saver

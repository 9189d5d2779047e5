// A show that takes keys, on fakes: keys go in, what its user sees comes out.
#pragma once

#include <string>
#include <vector>

#include "base/text.h"
#include "library/hidden_pictures.h"
#include "support/started_show.h"

namespace support {

// The system's numbers of the keys.
namespace key {
constexpr int kEnter = 0x0D;
constexpr int kEscape = 0x1B;
constexpr int kSpace = 0x20;
constexpr int kPageUp = 0x21;
constexpr int kPageDown = 0x22;
constexpr int kLeft = 0x25;
constexpr int kRight = 0x27;
constexpr int kDelete = 0x2E;
constexpr int kF1 = 0x70;
}  // namespace key

class KeyedShow : public StartedShow {
 public:
  static constexpr int kFirstPictureMs = 700;

  explicit KeyedShow(base::PixelSize primaryScreen = {640, 480}) : StartedShow(primaryScreen) {
    stage.set("extras/keys", "1");
    stage.set("image/timeInterval", "60");
  }

  static std::string pathOf(int picture) { return "C:\\pictures\\" + std::to_string(picture) + ".jpg"; }
  static base::PackedColor colorOf(int picture) { return base::Rgb(picture + 1, 255 - picture, 77); }

  void addPictures(int count) {
    for (int i = 0; i < count; ++i) stage.addPicture({100, 80}, colorOf(i));
    pictures_ = count;
  }

  // A show of so many pictures, the first of which stands.
  void begin(int pictures) {
    addPictures(pictures);
    start();
    stage.runFor(kFirstPictureMs);
  }

  void press(int keyCode) { window().onKeyDown(keyCode); }
  void repeat(int keyCode) { window().onKeyRepeat(keyCode); }

  // Presses keys one after the other, each as soon as the one before has been carried out.
  void type(const std::vector<int>& keyCodes) {
    for (const int keyCode : keyCodes) {
      press(keyCode);
      stage.runFor(120);
    }
  }

  // Which picture the middle of a window shows; -1 for none.
  int shown() const { return shownIn(stage.window); }
  int shownIn(const FakeStageWindow& where) const {
    const base::Bitmap& screen = where.screen;
    const base::Pixel middle = screen.at(screen.size().width / 2, screen.size().height / 2);
    for (int i = 0; i < pictures_; ++i) {
      if (middle == base::OpaquePixel(colorOf(i))) return i;
    }
    return -1;
  }

  // What each press shows, one after the other.
  std::vector<int> shownBy(const std::vector<int>& keyCodes) {
    std::vector<int> all;
    for (const int keyCode : keyCodes) {
      type({keyCode});
      all.push_back(shown());
    }
    return all;
  }

  // The pictures that the user has put away.
  library::HiddenPictures hidden() { return {stage.files, {ShowStage::programFolder()}}; }

  // The lines of a panel of notes that are seen: "Sign", "Information", "Keys", "Meanings".
  std::vector<std::string> notes(const std::string& panel) {
    std::vector<std::string> lines;
    for (forms::Control* control : show->form().controls()) {
      if (!control->visible() || !control->name().starts_with(panel)) continue;
      lines.emplace_back(base::TrimBlanks(static_cast<forms::Label*>(control)->caption()));
    }
    return lines;
  }
  std::string sign() {
    const std::vector<std::string> lines = notes("Sign");
    return lines.empty() ? "" : lines.front();
  }

 private:
  int pictures_ = 0;
};

}  // namespace support

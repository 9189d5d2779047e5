// The screens that the show covers, and what happens when they change under it.
#include <algorithm>

#include "saver/form1.h"

namespace saver {

base::PixelRect Form1::areaToCover() const {
  base::PixelRect area = base::PixelRect::ofSize(services_.screen.primarySize());
  if (!spans()) return area;
  for (const base::PixelRect& other : services_.screen.otherScreens()) area = area.united(other);
  return area;
}

void Form1::coverScreen() {
  cover(areaToCover());
  part_ = base::PixelRect::ofSize(services_.screen.primarySize()).movedBy(-area().left, -area().top);
  if (spans()) keepWordsOnPrimary();
  layOutNotes();
}

// A caption or a clock across the frames of two screens cannot be read.
void Form1::keepWordsOnPrimary() {
  const auto twips = [this](int pixels) { return static_cast<float>(pixels * twipsPerPixel()); };
  caption().setRoom({.left = twips(part_.left), .top = twips(part_.top), .width = twips(part_.width)});
  stage().keepTextsIn(part_);
}

// Into the corner of the primary screen, from that of another part of the window.
void Form1::moveClock(const base::PixelRect& from) {
  timeDisplay_.cornerMoved(static_cast<float>((part_.right() - from.right()) * twipsPerPixel()),
                           static_cast<float>((part_.bottom() - from.bottom()) * twipsPerPixel()));
}

std::vector<Face*> Form1::faces() {
  std::vector<Face*> all{this};
  for (const Further& further : further_) all.push_back(further.face.get());
  return all;
}

void Form1::ScreenChanged() {
  // Between two arrangements a machine can be without any screen.
  if (isOver() || services_.screen.primarySize().isEmpty()) return;
  const base::PixelRect areaBefore = area();
  const base::PixelRect partBefore = part_;
  coverScreen();
  if (screenSize() != areaBefore.size() || part_ != partBefore) {
    moveClock(partBefore);
    layOutFace(*this);
    takeCareOfAll();
  }
  services_.stage.flush();
}

void Form1::leaveBackground() {
  if (!services_.screen.primarySize().isEmpty()) services_.window.cover(areaToCover());
  for (Face* face : faces()) {
    for (forms::Control* control : face->controls()) {
      if (control != &face->BgrImage) control->setVisible(false);
    }
    face->stage().invalidateAll();
  }
  flush();
}

void Form1::layOutFace(Face& face) {
  // The change goes on behind its effect, which notices at its next step.
  if (drawsChange()) change_ = ChangeState::EffectGivenUp;
  face.layOutAgain(drawsChange());
}

void Form1::setFurtherScreens(std::span<const FurtherScreen> screens) {
  if (isOver() || !services_.makeStage) return;
  const auto isThere = [screens](const Further& one) {
    return std::ranges::find(screens, one.window, &FurtherScreen::window) != screens.end();
  };
  const auto firstGone = std::stable_partition(further_.begin(), further_.end(), isThere);
  for (auto one = firstGone; one != further_.end(); ++one) {
    one->face->endFace();
    gone_.push_back(std::move(*one));
  }
  further_.erase(firstGone, further_.end());
  services_.ahead.allowWishes(kWishesOfAFace * (1 + screens.size()) + kWishesForShapes);
  for (const FurtherScreen& screen : screens) {
    const auto found = std::ranges::find(further_, screen.window, &Further::window);
    if (found == further_.end()) {
      addFurther(screen);
    } else if (found->face->area() != screen.area) {
      moveFurther(*found->face, screen.area);
    }
  }
  if (change_ == ChangeState::None) gone_.clear();
}

// It joins with the next change, and has its background until then.
void Form1::addFurther(const FurtherScreen& screen) {
  Further further{screen.window, services_.makeStage(*screen.window), nullptr};
  further.face = std::make_unique<Face>(
      "Face",
      FaceServices{services_.pictures, services_.ahead, services_.clock, services_.loop, services_.screen,
                   services_.dates, services_.ansi, *further.stage, *screen.window},
      settings_, [this] { return isOver(); });
  Face& face = *further.face;
  further_.push_back(std::move(further));
  face.showOnStage();
  face.look().hold(isHeld_);
  if (keepsDesktop_) face.keepDesktop(screen.area);
  face.cover(screen.area);
  face.floatStep_ = floatStep_;
  if (!isPrepared_) return;
  face.prepareFace();
  takeCareOfAll();
  face.stage().flush();
  if (change_ != ChangeState::None) return;
  if (matchesShapes()) {
    dealTo(face);
  } else {
    chooseForFurther();
  }
  face.prepareNext();
}

void Form1::moveFurther(Face& face, const base::PixelRect& area) {
  const bool isOther = area.size() != face.screenSize();
  face.cover(area);
  if (isOther) {
    layOutFace(face);
    takeCareOfAll();
  }
  face.stage().flush();
}

}  // namespace saver

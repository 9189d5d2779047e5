#include "startup/show.h"

#include <exception>
#include <utility>

#include "base/errors.h"
#include "base/number_text.h"
#include "startup/cursor_rules.h"

namespace startup {

namespace {

constexpr const char* kMissing = "picture: no such file: ";
constexpr const char* kNotOpened = "picture: in use, or of no kind that can be read: ";

// How many counted moves end the show. Settings that could not be loaded to their end may lack the number.
double MovesToEnd(const std::string& mouseSensitivity) {
  constexpr double kUsual = 7;
  try {
    return base::StrictDouble(mouseSensitivity);
  } catch (const base::RunTimeError&) {
    return kUsual;
  }
}

saver::ShowServices InTime(const saver::ShowServices& s, saver::ShowTime& time) {
  return {s.files,  s.ansi,    s.pictures, s.ahead, time,     time,
          s.screen, s.desktop, s.dates,    s.stage, s.window, s.library};
}

}  // namespace

Show::Show(const saver::ShowServices& services, const SaverExit::Services& exit, SystemRestore& restore,
           const os::SystemFacts& facts, const std::string& programFolder, WindowMaker makeWindow)
    : services_(services),
      restore_(restore),
      facts_(facts),
      makeWindow_(std::move(makeWindow)),
      log_(services.files, services.clock, programFolder),
      form_(InTime(services_, time_), facts, programFolder),
      exit_(facts, exit,
            {.window = [this] { return services_.window.handle(); },
             .showFormAgain =
                 [this] {
                   forgetPointer();  // it has been parked
                   services_.window.activate();
                 },
             .unloadForm = [this] { unloadForm(); },
             .endProgram = [this] { services_.loop.quit(); }}) {
  services_.loop.setErrorHandler([this](const std::exception& error) { endByError(error); });
  services_.window.onSessionEnd = [this] { endWithoutAsking(); };
  services_.pictures.onFailure = [this](const std::string& path, pictures::PictureFailure failure) {
    if (failure == pictures::PictureFailure::NotOpened) {
      noteUnopened(path);
    } else {
      notePicture(path, failure);
    }
  };
  services_.ahead.onFailure = [this](const std::string& path, pictures::PictureFailure failure) {
    notePicture(path, failure);
  };
}

Show::~Show() {
  form_.unload();  // where the loop has ended by itself
  services_.pictures.onFailure = nullptr;
  services_.ahead.onFailure = nullptr;
  services_.stage.onPlacesChanged = nullptr;
  services_.loop.setErrorHandler(nullptr);
}

void Show::start() {
  try {
    form_.Form_Load();
  } catch (const std::exception& error) {
    decideOnLog();
    watchInput();  // where the password is asked for, the window may have to stay
    endByError(error);
    return;
  }
  decideOnLog();
  watchInput();
  coverOtherScreens();
  if (screenIsAnother()) screenChanged();  // while it was loaded, with nobody to tell
  services_.window.activate();
}

void Show::watchInput() {
  watch_.emplace(facts_, MovesToEnd(form_.settings().record.mouseSensitivity),
                 InputWatch::Actions{.showCursor = [this] { ShowCursor(restore_); },
                                     .exitSaver = [this] { exit_.ExitSaver(); }});
  saver::StageWindow& window = services_.window;
  window.onKeyDown = [this](int) { watch_->Form_KeyDown(); };
  window.onMouseDown = [this](base::PixelPoint) { watch_->Form_MouseDown(); };
  window.onMouseMove = [this](base::PixelPoint place) { mouseMoved(place); };
  window.onCloseRequest = [this] { exit_.ExitSaver(); };
  window.onScreenChanged = [this] { screenChanged(); };
  window.onDisplayPower = [this](bool isOn) { displayPowerChanged(isOn); };
  services_.stage.onPlacesChanged = [this] {
    watch_->controlsMoved([this](base::PixelPoint place) { return pointedControl(place); });
  };
}

void Show::coverOtherScreens() {
  if (form_.settings().record.otherScreens != "black") return;
  const std::vector<base::PixelRect> areas = services_.screen.otherScreens();
  while (covers_.size() > areas.size()) {
    covers_.back()->window->close();
    goneCovers_.push_back(std::move(covers_.back()));
    covers_.pop_back();
  }
  while (covers_.size() < areas.size()) covers_.push_back(makeCover());
  for (std::size_t i = 0; i < areas.size(); ++i) {
    covers_[i]->area = areas[i];
    covers_[i]->window->cover(areas[i]);
  }
}

std::unique_ptr<Show::Cover> Show::makeCover() {
  auto made = std::make_unique<Cover>(Cover{makeWindow_(), {}, {}});
  Cover& cover = *made;
  cover.window->onKeyDown = services_.window.onKeyDown;
  cover.window->onMouseDown = services_.window.onMouseDown;
  cover.window->onMouseMove = [this, &cover](base::PixelPoint place) { coverMouseMoved(cover, place); };
  cover.window->onCloseRequest = services_.window.onCloseRequest;
  cover.window->onSessionEnd = services_.window.onSessionEnd;
  return made;
}

bool Show::screenIsAnother() const { return services_.screen.primarySize() != form_.screenSize(); }

void Show::screenChanged() {
  forgetPointer();
  missedScreenChange_ = time_.standsStill();
  if (missedScreenChange_) return;
  if (form_.isOver()) {
    leaveBackground();
  } else {
    form_.ScreenChanged();
  }
  coverOtherScreens();
}

// While nobody can see it the show stands still, and lets the disk sleep.
void Show::displayPowerChanged(bool isOn) {
  if (form_.isOver() || !form_.loadsAhead()) return;
  if (!isOn) {
    time_.standStill();
    services_.ahead.rest();
    return;
  }
  time_.goOn();
  if (missedScreenChange_) screenChanged();
  services_.ahead.goOn();
}

void Show::forgetPointer() {
  watch_->forgetPointer();
  for (const auto& cover : covers_) cover->lastPlace = {};
}

std::optional<PointedControl> Show::pointedControl(base::PixelPoint onScreen) const {
  if (!base::PixelRect::ofSize(form_.screenSize()).contains(onScreen)) return std::nullopt;
  // A caption or a clock has no handler of its own: over them the form sees the pointer.
  if (services_.stage.controlAt(onScreen) == &form_.DisplayingPicture) {
    const base::PixelRect place = form_.DisplayingPicture.pixelRect();
    return PointedControl{WatchedControl::DisplayingPicture, static_cast<float>(onScreen.x - place.left),
                          static_cast<float>(onScreen.y - place.top)};
  }
  const auto perPixel = static_cast<float>(form_.twipsPerPixel());
  const float x = static_cast<float>(onScreen.x) * perPixel;
  const float y = static_cast<float>(onScreen.y) * perPixel;
  return PointedControl{WatchedControl::Form, x,
                        form_.scaleHeight() == 0 ? y : y * form_.scaleHeight() / form_.height()};
}

void Show::mouseMoved(base::PixelPoint onScreen) {
  // The pointer that a change of the screen takes along can arrive before the news of the change.
  if (screenIsAnother()) forgetPointer();
  const std::optional<PointedControl> pointed = pointedControl(onScreen);
  if (!pointed) return;
  const MouseMove move{pointed->x, pointed->y, onScreen, os::SecondsSinceMidnight(services_.clock.now())};
  if (pointed->control == WatchedControl::DisplayingPicture) {
    watch_->DisplayingPicture_MouseMove(move);
  } else {
    watch_->Form_MouseMove(move);
  }
}

void Show::coverMouseMoved(Cover& cover, base::PixelPoint inside) {
  const auto perPixel = static_cast<float>(form_.twipsPerPixel());
  watch_->Cover_MouseMove(cover.lastPlace, {static_cast<float>(inside.x) * perPixel,
                                            static_cast<float>(inside.y) * perPixel,
                                            {inside.x + cover.area.left, inside.y + cover.area.top},
                                            os::SecondsSinceMidnight(services_.clock.now())});
}

void Show::decideOnLog() {
  const settings::SaverSettings& settings = form_.settings();
  log_.decide(settings.record.log);
  for (const std::string& key : settings.mended) log_.note("settings: no number, default used: " + key);
}

void Show::notePicture(const std::string& path, pictures::PictureFailure failure) {
  switch (failure) {
    case pictures::PictureFailure::NotOpened:
      log_.note(kNotOpened + path);
      break;
    case pictures::PictureFailure::Missing:
      log_.note(kMissing + path);
      break;
    case pictures::PictureFailure::NotDrawn:
      log_.note("picture: broken, changed, or too large to decode: " + path);
      break;
    case pictures::PictureFailure::Late:
      log_.note("picture: not there in time: " + path);
      break;
  }
}

// Asked when the log is on alone: a share that has gone lets whoever asks wait.
void Show::noteUnopened(const std::string& path) {
  log_.note([&files = services_.files, path] { return (files.exists(path) ? kNotOpened : kMissing) + path; });
}

void Show::endByError(const std::exception& error) {
  log_.note(std::string("the show ended by an error: ") + error.what());
  if (!facts_.guardsPassword()) {
    endWithoutAsking();
    return;
  }
  leaveBackground();
  exit_.ExitSaver();
}

// What runs of the show stops, and its window goes on covering the screen until the password is given.
void Show::leaveBackground() {
  form_.unload();
  time_.goOn();
  for (forms::Control* control : form_.controls()) {
    if (control != &form_.BgrImage) control->setVisible(false);
  }
  const base::PixelSize screen = services_.screen.primarySize();
  if (!screen.isEmpty()) services_.window.cover(base::PixelRect::ofSize(screen));
  services_.stage.invalidateAll();
  services_.stage.flush();
}

void Show::endWithoutAsking() {
  restore_.restore();
  unloadForm();
  services_.loop.quit();
}

void Show::unloadForm() {
  form_.unload();
  time_.goOn();  // for a wait that it is in
  services_.window.close();
  for (const auto& cover : covers_) cover->window->close();
}

}  // namespace startup

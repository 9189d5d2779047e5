#include "startup/show.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "startup/cursor_rules.h"
#include "startup/show_keys.h"

namespace startup {

namespace {

constexpr const char* kMissing = "picture: no such file: ";
constexpr const char* kNotOpened = "picture: in use, or of no kind that can be read: ";

saver::ShowServices InTime(const saver::ShowServices& s, saver::ShowTime& time) {
  return {s.files,   s.ansi,  s.pictures, s.ahead,  time,      time,       s.screen,
          s.desktop, s.dates, s.stage,    s.window, s.library, s.makeStage};
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
  form_.onSettingsLoaded = [this] {
    watchInput();
    coverOtherScreens();  // before any screen has its background, so that none shows the desktop beside it
  };
  try {
    form_.Form_Load();
  } catch (const std::exception& error) {
    decideOnLog();
    if (!watch_) watchInput();  // where the password is asked for, the window may have to stay
    endByError(error);
    return;
  }
  decideOnLog();
  if (form_.screenIsAnother()) screenChanged();  // while it was loaded, with nobody to tell
  services_.window.activate();
}

void Show::watchInput() {
  watch_.emplace(facts_, MovesToEnd(form_.settings().record.mouseSensitivity),
                 InputWatch::Actions{.showCursor = [this] { ShowCursor(restore_); },
                                     .exitSaver = [this] { exit_.ExitSaver(); }});
  saver::StageWindow& window = services_.window;
  window.onKeyDown = [this](int keyCode) { keyDown(keyCode, false); };
  window.onKeyRepeat = [this](int keyCode) { keyDown(keyCode, true); };
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
  const saver::OtherScreens kind = saver::OtherScreensNamed(form_.settings().record.otherScreens);
  if (kind == saver::OtherScreens::Nothing || kind == saver::OtherScreens::Span) return;
  std::vector<base::PixelRect> areas;
  for (const base::PixelRect& area : services_.screen.otherScreens()) {
    // Screens that mirror each other have one place, and one show.
    const bool isMirror = area == form_.area() || std::ranges::find(areas, area) != areas.end();
    if (!isMirror) areas.push_back(area);
  }
  matchCovers(std::move(areas));
  if (kind == saver::OtherScreens::Black || form_.isOver()) {
    for (const auto& cover : covers_) cover->window->cover(cover->area);
    return;
  }
  std::vector<saver::FurtherScreen> screens;
  for (const auto& cover : covers_) screens.push_back({cover->window.get(), cover->area});
  form_.setFurtherScreens(screens);
}

// A screen that stays keeps its window, and with it its picture.
void Show::matchCovers(std::vector<base::PixelRect> areas) {
  std::vector<std::unique_ptr<Cover>> before = std::exchange(covers_, {});
  const auto take = [&](auto found, const base::PixelRect& area) {
    (*found)->area = area;
    covers_.push_back(std::move(*found));
    before.erase(found);
  };
  std::erase_if(areas, [&](const base::PixelRect& area) {
    const auto found = std::ranges::find(before, area, [](const auto& cover) { return cover->area; });
    if (found == before.end()) return false;
    take(found, area);
    return true;
  });
  for (const base::PixelRect& area : areas) {
    if (before.empty()) before.push_back(makeCover());
    take(before.begin(), area);
  }
  for (auto& gone : before) {
    gone->window->close();
    goneCovers_.push_back(std::move(gone));
  }
}

std::unique_ptr<Show::Cover> Show::makeCover() {
  auto made = std::make_unique<Cover>(Cover{makeWindow_(), {}, {}});
  Cover& cover = *made;
  cover.window->onKeyDown = services_.window.onKeyDown;
  cover.window->onKeyRepeat = services_.window.onKeyRepeat;
  cover.window->onMouseDown = services_.window.onMouseDown;
  cover.window->onMouseMove = [this, &cover](base::PixelPoint place) { coverMouseMoved(cover, place); };
  cover.window->onCloseRequest = services_.window.onCloseRequest;
  cover.window->onSessionEnd = services_.window.onSessionEnd;
  return made;
}

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

base::PixelPoint Show::onScreen(base::PixelPoint inWindow) const {
  return {inWindow.x + form_.area().left, inWindow.y + form_.area().top};
}

std::optional<PointedControl> Show::pointedControl(base::PixelPoint onScreen) const {
  const base::PixelPoint inWindow{onScreen.x - form_.area().left, onScreen.y - form_.area().top};
  if (!base::PixelRect::ofSize(form_.screenSize()).contains(inWindow)) return std::nullopt;
  // A caption or a clock has no handler of its own: over them the form sees the pointer.
  if (services_.stage.controlAt(inWindow) == &form_.DisplayingPicture) {
    const base::PixelRect place = form_.DisplayingPicture.pixelRect();
    return PointedControl{WatchedControl::DisplayingPicture, static_cast<float>(inWindow.x - place.left),
                          static_cast<float>(inWindow.y - place.top)};
  }
  const auto perPixel = static_cast<float>(form_.twipsPerPixel());
  const float x = static_cast<float>(inWindow.x) * perPixel;
  const float y = static_cast<float>(inWindow.y) * perPixel;
  return PointedControl{WatchedControl::Form, x,
                        form_.scaleHeight() == 0 ? y : y * form_.scaleHeight() / form_.height()};
}

void Show::keyDown(int keyCode, bool isRepeated) {
  const bool takesKeys = form_.takesKeys() && !form_.isOver();
  const std::optional<saver::ShowWish> wish = takesKeys ? WishOfKey(keyCode) : std::nullopt;
  if (!wish) {
    watch_->Form_KeyDown();
  } else if (*wish == saver::ShowWish::OpenFolder) {
    endForFolder();
  } else {
    form_.wish(*wish, isRepeated);
  }
}

// Where a password is asked for, a folder would be open behind the dialog that asks.
void Show::endForFolder() {
  const std::string picture = form_.shownPath();
  if (facts_.guardsPassword() || picture.empty()) return;
  exit_.ExitSaver();
  if (form_.isOver()) pictureToOpen_ = picture;
}

void Show::mouseMoved(base::PixelPoint inWindow) {
  // The pointer that a change of the screen takes along can arrive before the news of the change.
  if (form_.screenIsAnother()) forgetPointer();
  const base::PixelPoint place = onScreen(inWindow);
  const std::optional<PointedControl> pointed = pointedControl(place);
  if (!pointed) return;
  const MouseMove move{pointed->x, pointed->y, place, os::SecondsSinceMidnight(services_.clock.now())};
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

// What runs of the show stops, and its windows go on covering the screens until the password is given.
void Show::leaveBackground() {
  form_.unload();
  time_.goOn();
  form_.leaveBackground();
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

#include "dialog/live_views.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace dialog {

namespace {

// An effect that was just chosen is shown alone, and its picture for a while.
constexpr int kLooksForEffect = 4500 / LiveViews::kLookMs;

// An event that already has a handler gets a second one behind it.
template <typename... Values>
void Append(std::function<void(Values...)>& event, std::function<void(Values...)> further) {
  event = [before = std::move(event), further = std::move(further)](Values... values) {
    if (before) before(values...);
    further(values...);
  };
}

bool ChangesOtherwise(const settings::SettingsRecord& before, const settings::SettingsRecord& now) {
  return before.change != now.change || before.transitionTime != now.transitionTime;
}

}  // namespace

LiveViews::LiveViews(LiveShow* show, os::EventLoop& loop, const os::AnsiCodePage& ansi, forms::Form& form,
                     std::function<Scene()> now)
    : show_(show), ansi_(ansi), form_(form), now_(std::move(now)), looks_(loop, kLookMs) {
  looks_.onTimer = [this] { look(); };
  if (show_) Append(form_.onMinimizedChanged, std::function<void()>([this] { look(); }));
}

void LiveViews::add(forms::LiveView& view, SceneAim aim) {
  places_.push_back(std::make_unique<Place>(Place{&view, aim}));
  if (!show_) return;
  watchTabs(view);
  if (aim != SceneAim::Pointer) return;
  Append(view.onMouseMove, std::function<void(const forms::MouseEvent&)>(
                               [this, &view](const auto& at) { show_->pointerMoved(view, at.x, at.y); }));
}

void LiveViews::watchTabs(forms::LiveView& view) {
  for (forms::Control* on = view.container(); on; on = on->container()) {
    auto* tabs = dynamic_cast<forms::TabControl*>(on);
    if (!tabs || std::ranges::find(tabs_, tabs) != tabs_.end()) continue;
    tabs_.push_back(tabs);
    Append(tabs->onClick, std::function<void()>([this] { look(); }));
  }
}

const LiveViews::Place* LiveViews::shownPlace() const {
  if (!form_.host() || form_.isMinimized()) return nullptr;
  const auto shown = std::ranges::find_if(places_, [](const auto& place) { return place->view->isShown(); });
  return shown == places_.end() ? nullptr : shown->get();
}

void LiveViews::look() {
  if (!show_) return;
  const Place* place = shownPlace();
  if (!place) {
    rest();
    return;
  }
  looks_.setEnabled(true);
  const Scene scene = now_();
  const bool isHere = played_ && played_->place == place && show_->isIn(*place->view) &&
                      played_->size == place->view->pixelRect().size();
  const bool isDone =
      isHere && played_->scene == scene && (played_->looksLeft == 0 || --played_->looksLeft > 0);
  if (isDone) return;
  if (!isHere) played_.reset();
  play(*place, scene);
}

void LiveViews::play(const Place& place, const Scene& scene) {
  Scene shown = scene;
  BeginWith(shown, show_->shownPicture());
  LiveShow::Play what{.settings = {}, .endsByPointer = place.aim == SceneAim::Pointer};
  const settings::Field effect =
      played_ ? EffectTurnedOn(played_->scene.record, scene.record) : settings::Field();
  if (effect) KeepEffect(shown.record, effect);
  what.changesAtOnce = place.aim == SceneAim::Changes &&
                       (effect || (played_ && ChangesOtherwise(played_->scene.record, scene.record)));
  what.settings = SceneFile(std::move(shown), place.aim, ansi_);
  played_ = Played{&place, place.view->pixelRect().size(), scene, effect ? kLooksForEffect : 0};
  show_->play(*place.view, what);
}

void LiveViews::rest() {
  looks_.setEnabled(false);
  played_.reset();
  for (const auto& place : places_) {
    if (show_->isIn(*place->view)) show_->stop(*place->view);
  }
}

void LiveViews::close() {
  if (show_) rest();
}

}  // namespace dialog

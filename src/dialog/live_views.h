// The show in small on a form, always with what is chosen there now.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "base/geometry.h"
#include "dialog/live_show.h"
#include "dialog/scene.h"
#include "forms/containers.h"
#include "forms/form.h"
#include "forms/timer.h"
#include "os/ansi_code_page.h"
#include "os/event_loop.h"

namespace dialog {

// The view that is shown plays; while none is, there is no timer and no show. Several forms may take turns
// with one show: the one that looked last has it.
class LiveViews {
 public:
  // How often the form is asked what it is to show.
  static constexpr int kLookMs = 50;

  // `show` null: the views stay empty. All arguments outlive this; `now` is called while a view is shown.
  LiveViews(LiveShow* show, os::EventLoop& loop, const os::AnsiCodePage& ansi, forms::Form& form,
            std::function<Scene()> now);
  ~LiveViews() { close(); }
  LiveViews(const LiveViews&) = delete;
  LiveViews& operator=(const LiveViews&) = delete;

  // A place where the show may be seen. What else is to happen when its tab is chosen, or the pointer moves
  // over it, is set before.
  void add(forms::LiveView& view, SceneAim aim);

  // What is shown of the form may have changed. To be called once the form is shown; changes of tabs, and of
  // the window to an icon, are noticed.
  void look();

  // Ends the show: the form is about to go.
  void close();

 private:
  struct Place {
    forms::LiveView* view;
    SceneAim aim;
  };
  struct Played {
    const Place* place;
    base::PixelSize size;
    Scene scene;
    int looksLeft;  // until an effect that was shown alone gives way to all; 0: none was
  };

  const Place* shownPlace() const;
  void rest();
  void play(const Place& place, const Scene& scene);
  void watchTabs(forms::LiveView& view);

  LiveShow* show_;
  const os::AnsiCodePage& ansi_;
  forms::Form& form_;
  std::function<Scene()> now_;
  forms::Timer looks_;
  std::vector<std::unique_ptr<Place>> places_;
  std::vector<forms::TabControl*> tabs_;
  std::optional<Played> played_;
};

}  // namespace dialog

// Where the show in small is played, beside the dialog in which it is seen.
#pragma once

#include <functional>
#include <span>

#include "base/geometry.h"
#include "forms/form.h"
#include "forms/form_host.h"
#include "forms/live_view.h"
#include "saver/miniature.h"
#include "startup/seen_show.h"

namespace startup {

// On the thread of its services' loop alone. Its form has no window: what is drawn on it is put where the
// dialog finds it.
class LittleStage : private forms::FormHost {
 public:
  // `tell` is called when the dialog is to look at what is seen.
  LittleStage(const saver::MiniatureServices& services, SeenShow& seen, std::function<void()> tell);
  LittleStage(const LittleStage&) = delete;
  LittleStage& operator=(const LittleStage&) = delete;

  // Play number `play`, with a picture of `size` pixels.
  void play(int play, base::PixelSize size, saver::MiniaturePlay what);
  void stop() { miniature_.stop(); }

 private:
  void controlChanged(forms::Control& control, forms::Change change) override;
  void controlDrawn(forms::Control& control, std::span<const base::PixelRect> areas) override;
  base::PixelSize measureText(const base::Font&, const std::string&) override { return {}; }
  int twipsPerPixel() const override { return kTwipsPerPixel; }
  void put(bool isFirst, std::span<const base::PixelRect> areas);

  static constexpr int kTwipsPerPixel = 15;

  SeenShow& seen_;
  std::function<void()> tell_;
  forms::Form form_{"LittleStage"};
  forms::LiveView view_{form_, "view"};
  int play_ = 0;
  saver::Miniature miniature_;
};

}  // namespace startup

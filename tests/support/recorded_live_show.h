// A show in small that remembers what it was to play.
#pragma once

#include <string>
#include <vector>

#include "dialog/live_show.h"

namespace support {

class RecordedLiveShow final : public dialog::LiveShow {
 public:
  struct Played {
    forms::LiveView* view;
    Play what;
  };

  void play(forms::LiveView& view, const Play& what) override {
    here = &view;
    plays.push_back({&view, what});
  }
  void stop(const forms::LiveView& view) override {
    if (here != &view) return;
    here = nullptr;
    ++stops;
  }
  bool isIn(const forms::LiveView& view) const override { return here == &view; }
  std::string shownPicture() const override { return shown; }
  void pointerMoved(const forms::LiveView&, float x, float y) override { pointer.push_back({x, y}); }
  void tryOut(const std::string& settings) override {
    tried.push_back(settings);
    here = nullptr;
    if (whileTried) whileTried();
  }

  const forms::LiveView* here = nullptr;
  std::vector<Played> plays;
  int stops = 0;
  std::string shown;
  std::vector<base::TwipsPoint> pointer;
  std::vector<std::string> tried;
  std::function<void()> whileTried;
};

}  // namespace support

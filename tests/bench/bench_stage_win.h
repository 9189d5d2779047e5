// A stage on a real window, with a background box and a picture box and nothing else.
#pragma once

#include "forms/form.h"
#include "forms/picture_boxes.h"
#include "os/clock_win.h"
#include "os/event_loop_win.h"
#include "os/text_renderer_win.h"
#include "saver/stage.h"
#include "saver/stage_window_win.h"
#include "saver/transitions/plans.h"

namespace bench {

class BenchStage {
 public:
  explicit BenchStage(base::PixelSize size) : BenchStage(base::PixelRect::ofSize(size)) {}
  explicit BenchStage(const base::PixelRect& place);  // of the window
  ~BenchStage();

  // Places the picture box at whole pixels.
  void placePicture(const base::PixelRect& place);

  os::ClockWin clock;
  os::EventLoopWin loop{clock};  // without an error handler: an error ends the benchmark
  saver::StageWindowWin window{loop};
  os::TextRendererWin text{96};
  saver::Stage stage{window, text, 15};
  forms::Form form{"bench"};
  forms::PictureBox background{form, "background"};
  forms::PictureBox picture{form, "picture"};
};

// Effect `number` from one picture to another, both as large as the box.
saver::TransitionPlan PlanFor(int number, const forms::PictureBox& box, base::Random& random);

// A picture with fine detail all over, opaque: a photograph as far as copying and compressing go.
base::Bitmap PhotoLike(base::PixelSize size);

}  // namespace bench

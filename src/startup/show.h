// The show as the program runs it: Form1 in its window, with the user's input watched and every way out.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "saver/form1.h"
#include "saver/show_time.h"
#include "startup/exit_saver.h"
#include "startup/failure_log.h"
#include "startup/input_watch.h"
#include "startup/system_restore.h"

namespace startup {

class Show {
 public:
  // Makes a window for a further screen.
  using WindowMaker = std::function<std::unique_ptr<saver::StageWindow>()>;

  // `restore` must be among the seams of `exit` and of `services`, so that it knows what is to be put back.
  Show(const saver::ShowServices& services, const SaverExit::Services& exit, SystemRestore& restore,
       const os::SystemFacts& facts, const std::string& programFolder, WindowMaker makeWindow);
  ~Show();

  // Loads the form and shows it. The show then runs in the event loop until something ends it, which quits
  // the loop.
  void start();

  saver::Form1& form() { return form_; }

  // The picture whose folder the user wants to see, once the show has ended and the system is as it was
  // before it; empty when none is wanted.
  const std::string& pictureToOpen() const { return pictureToOpen_; }

  // On any thread, when the program has crashed: what the next show needs to go on is kept.
  void rememberAfterCrash() noexcept { form_.rememberAfterCrash(); }

 private:
  // A window on a further screen: black, or with a picture of the show.
  struct Cover {
    std::unique_ptr<saver::StageWindow> window;
    base::PixelRect area;
    InputWatch::LastPlace lastPlace;
  };

  void watchInput();
  void coverOtherScreens();
  void matchCovers(std::vector<base::PixelRect> areas);
  std::unique_ptr<Cover> makeCover();
  void screenChanged();
  void displayPowerChanged(bool isOn);
  void keyDown(int keyCode, bool isRepeated);
  void endForFolder();
  void mouseMoved(base::PixelPoint inWindow);
  void coverMouseMoved(Cover& cover, base::PixelPoint inside);
  void forgetPointer();
  base::PixelPoint onScreen(base::PixelPoint inWindow) const;
  std::optional<PointedControl> pointedControl(base::PixelPoint onScreen) const;
  void decideOnLog();
  void notePicture(const std::string& path, pictures::PictureFailure failure);
  void noteUnopened(const std::string& path);
  void endByError(const std::exception& error);
  void endWithoutAsking();
  void leaveBackground();
  void unloadForm();

  saver::ShowServices services_;
  SystemRestore& restore_;
  os::SystemFacts facts_;
  WindowMaker makeWindow_;
  FailureLog log_;
  std::vector<std::unique_ptr<Cover>> covers_;      // one for each further screen
  std::vector<std::unique_ptr<Cover>> goneCovers_;  // closed; one of their events may still be under way
  saver::ShowTime time_{services_.loop, services_.clock};
  saver::Form1 form_;  // shows pictures in them
  SaverExit exit_;
  std::optional<InputWatch> watch_;
  std::string pictureToOpen_;
  bool missedScreenChange_ = false;  // while the display was off
};

}  // namespace startup

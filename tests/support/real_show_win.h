// The real Form1 on the real machine: real files, real decoders, a real window. Clock and loop are the
// caller's.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "os/ansi_code_page_win.h"
#include "os/files_win.h"
#include "os/picture_decoder_win.h"
#include "os/text_renderer_win.h"
#include "pictures/picture_loader.h"
#include "saver/form1.h"
#include "saver/stage_window_win.h"
#include "support/fake_desktop.h"
#include "support/fake_screen.h"
#include "support/plain_show.h"
#include "support/temporary_folder_win.h"

namespace support {

// Settings start as a plain show, as those of ShowStage. COM must be initialised.
class RealShow {
 public:
  RealShow(const os::Clock& clock, os::EventLoop& loop, base::PixelSize screenSize);
  ~RealShow();

  // "section/key"; before start().
  void set(const std::string& sectionAndKey, const std::string& value) { settings_[sectionAndKey] = value; }

  // Writes a file into the program folder and adds it to the list of pictures.
  void addPicture(const std::string& name, const std::string& bytes, const std::string& caption);

  // Adds a path to the list.
  void addPath(const std::string& path, const std::string& caption);

  // Windows on further screens, at these places from the top left corner of the first. Before start(), with
  // [extras] otherScreens saying what they show.
  void addFurtherScreens(const std::vector<base::PixelRect>& places);

  const std::string& folder() const { return folder_.path(); }

  // Writes the settings file and loads the form; the show then runs in the loop. An error at the event border
  // ends it, as in the program.
  void start();

  saver::Form1& form() { return *form_; }

 private:
  TemporaryFolder folder_;
  os::FilesWin files_;
  os::AnsiCodePageWin ansi_;
  os::PictureDecoderWin decoder_;
  pictures::FilePictureLoader pictures_{files_, decoder_};
  std::unique_ptr<pictures::AheadLoader> ahead_;
  std::unique_ptr<os::DateText> dates_;
  FakeScreen screen_;
  FakeDesktop desktop_;
  const os::Clock& clock_;
  os::EventLoop& loop_;
  saver::StageWindowWin window_;
  os::TextRendererWin text_{96};
  saver::Stage stage_{window_, text_, 15};
  std::vector<std::unique_ptr<saver::StageWindowWin>> furtherWindows_;
  std::vector<saver::FurtherScreen> further_;
  Settings settings_ = PlainShow();
  int count_ = 0;
  std::unique_ptr<saver::Form1> form_;
};

}  // namespace support

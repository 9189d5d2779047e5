#include "support/real_show_win.h"

#include <stdexcept>
#include <utility>

#include "os/date_text.h"
#include "settings/settings_file.h"
#include "startup/loading_win.h"

namespace support {

RealShow::RealShow(const os::Clock& clock, os::EventLoop& loop, base::PixelSize screenSize)
    : ahead_(startup::MakeAheadLoader(loop)),
      dates_(os::MakeDateText()),
      clock_(clock),
      loop_(loop),
      window_(loop) {
  screen_.size = screenSize;
}

RealShow::~RealShow() {
  window_.close();
  for (const auto& window : furtherWindows_) window->close();
}

void RealShow::addPicture(const std::string& name, const std::string& bytes, const std::string& caption) {
  const std::string path = folder() + "\\" + name;
  if (!files_.replace(path, bytes)) throw std::runtime_error("cannot write " + path);
  addPath(path, caption);
}

void RealShow::addPath(const std::string& path, const std::string& caption) {
  const std::string number = std::to_string(count_++);
  set("images/" + number, path);
  set("caption/" + number, caption);
}

void RealShow::addFurtherScreens(const std::vector<base::PixelRect>& places) {
  for (const base::PixelRect& place : places) {
    furtherWindows_.push_back(std::make_unique<saver::StageWindowWin>(loop_));
    further_.push_back({furtherWindows_.back().get(), place});
    screen_.others.push_back(place);
  }
}

void RealShow::start() {
  settings_.try_emplace("total/total", std::to_string(count_));
  files_.replace(settings::IniPath(folder()), IniText(settings_));
  form_ = std::make_unique<saver::Form1>(saver::ShowServices{files_,
                                                             ansi_,
                                                             pictures_,
                                                             *ahead_,
                                                             clock_,
                                                             loop_,
                                                             screen_,
                                                             desktop_,
                                                             *dates_,
                                                             stage_,
                                                             window_,
                                                             {},
                                                             [this](saver::StageWindow& window) {
                                                               return std::make_unique<saver::Stage>(
                                                                   window, text_, stage_.twipsPerPixel());
                                                             }},
                                         os::SystemFacts{}, folder());
  form_->onSettingsLoaded = [this] { form_->setFurtherScreens(further_); };
  loop_.setErrorHandler([this](const std::exception&) { form_->unload(); });
  form_->Form_Load();
}

}  // namespace support

#include "support/show_stage.h"

#include "base/errors.h"
#include "base/twips.h"

namespace support {

namespace {

constexpr const char* kFolder = "C:\\Lumora";

}  // namespace

ShowStage::ShowStage(base::PixelSize screenSize, int dpi)
    : window(screenSize), stage(window, text, base::TwipsPerPixelForDpi(dpi)), settings_(PlainShow()) {
  screen.size = screenSize;
  screen.dotsPerInch = dpi;
}

void ShowStage::addPicture(base::PixelSize size, base::PackedColor color, const std::string& caption) {
  const std::string number = std::to_string(pictures_++);
  const std::string path = "C:\\pictures\\" + number + ".jpg";
  pictures.add(path, size, color);
  set("images/" + number, path);
  set("caption/" + number, caption);
}

const char* ShowStage::programFolder() { return kFolder; }

void ShowStage::writeSettings() {
  settings_.try_emplace("total/total", std::to_string(pictures_));
  files.content[std::string(kFolder) + "\\zbfaone.ini"] = IniText(settings_);
}

void ShowStage::start() {
  writeSettings();
  form = std::make_unique<saver::Form1>(services(), facts, kFolder);
  const auto end = [this](const std::exception& error) {
    errors.emplace_back(error.what());
    form->unload();
  };
  loop.setErrorHandler(end);
  try {
    form->Form_Load();
  } catch (const base::RunTimeError& error) {
    end(error);
  }
}

}  // namespace support

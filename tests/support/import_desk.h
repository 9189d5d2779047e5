// The import of many pictures in front of a user.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "auxwin/multi_files.h"
#include "support/fake_dialogs.h"
#include "support/fake_files.h"
#include "support/fake_folder_reader.h"
#include "support/fake_window_system.h"
#include "support/fake_workers.h"

namespace support {

using Paths = std::vector<std::string>;

struct ImportDesk {
  FakeFiles disk;
  FakeClock clock;
  FakeEventLoop loop{clock};
  FakeWorkers workers{loop};
  std::shared_ptr<FakeFolderReader> folders = std::make_shared<FakeFolderReader>();
  FakeDialogs dialogs;
  FakeWindowSystem windows;
  forms::Form dialog{"Form2"};
  forms::ListBox List1{dialog, "List1"};
  forms::ListBox photo_caption{dialog, "photo_caption"};
  forms::TextBox Text3{dialog, "Text3"};
  auxwin::ManyImagesAdvice advice;
  std::vector<int> leftOut;
  Paths order;  // what happened, in order
  std::string patterns = auxwin::kImportedPatterns;
  std::unique_ptr<auxwin::MultiFiles> form;

  ImportDesk() {
    disk.roots = {"C:\\", "D:\\"};
    disk.current = "C:\\photos";
    disk.folders["C:\\"] = {"photos"};
    disk.folders["C:\\photos"] = {"sea"};
    disk.listed["C:\\photos"] = {"b.jpg", "A.BMP", "c.jpeg", "d.dib", "e.gif", "f.png", "g.jif", "h.txt"};
    disk.listed["C:\\photos\\sea"] = {"wave.gif"};
    disk.listed["D:\\"] = {"root.gif"};
    List1.onClick = [this] { order.push_back("selected " + std::to_string(List1.listIndex())); };
    Text3.onChange = [this] { order.push_back("total " + Text3.text()); };
  }

  auxwin::MultiFiles& open() {
    form = std::make_unique<auxwin::MultiFiles>(
        auxwin::PictureTarget{List1, photo_caption, Text3, advice,
                              [](const std::string& path) {
                                return path.size() > 30 ? std::nullopt : std::optional<std::string>(path);
                              },
                              [this](int count) { leftOut.push_back(count); }},
        auxwin::ImportServices{disk, dialogs, windows, loop, folders, workers.maker()}, patterns);
    windows.show(*form);
    return *form;
  }
  bool isOpen() { return form->host() != nullptr; }
};

}  // namespace support

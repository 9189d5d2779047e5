// How the picture list shows paths that are longer than it is wide.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "os/dib_win.h"
#include "os/handles_win.h"
#include "support/real_dialog_win.h"

namespace dialog {
namespace {

using support::RealDialog;

// What the list shows of each entry, as pixels. No entry is chosen, and none is marked as having the
// keyboard.
std::vector<std::vector<COLORREF>> LinesOf(RealDialog& dialog) {
  forms::ListBox& list = dialog.form().List1;
  list.setListIndex(-1);
  const HWND window = dialog.windowOf(list);
  SetFocus(dialog.windowOf(dialog.form().Cancel));
  UpdateWindow(window);
  RECT inside{};
  GetClientRect(window, &inside);
  const auto height = static_cast<int>(SendMessageW(window, LB_GETITEMHEIGHT, 0, 0));
  const os::Dib copy(base::PixelSize{static_cast<int>(inside.right), height * list.listCount()});
  const os::WindowDc dc(window);
  BitBlt(copy.dc(), 0, 0, inside.right, height * list.listCount(), dc.get(), 0, 0, SRCCOPY);
  std::vector<std::vector<COLORREF>> lines;
  for (int i = 0; i < list.listCount(); ++i) {
    lines.emplace_back();
    for (int y = height * i; y < height * (i + 1); ++y) {
      for (int x = 0; x < inside.right; ++x) lines.back().push_back(GetPixel(copy.dc(), x, y));
    }
  }
  return lines;
}

TEST(ListPaths, ThatAreTooLongAreShortenedInTheMiddleSoThatTheNameIsSeen) {
  const std::string folder =
      "C:\\photos of the family\\holidays by the sea in the summer of 2025\\second week\\";
  support::DialogMachine machine;
  const std::vector<std::string> paths = {folder + "harbour.jpg", folder + "lighthouse.jpg",
                                          "D" + folder.substr(1) + "harbour.jpg", folder + "harbour.jpg"};
  machine.set("total", "total", std::to_string(paths.size()));
  for (std::size_t i = 0; i < paths.size(); ++i) {
    machine.set("images", std::to_string(i), paths[i]);
    machine.pictures.add(paths[i], {40, 30}, base::kWhite);
  }
  machine.writeSettings();
  RealDialog dialog(machine);
  const auto lines = LinesOf(dialog);
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[0], lines[3]) << "what is compared is what is written";
  EXPECT_NE(lines[0], lines[1]) << "the end is seen";
  EXPECT_NE(lines[0], lines[2]) << "and so is the beginning";
}

}  // namespace
}  // namespace dialog

// What the settings dialog has always had: it may get more, and loses nothing.
#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <string>

#include "dialog/control_table.h"
#include "support/dialog_machine.h"

namespace dialog {
namespace {

constexpr char kGolden[] = LUMORA_SOURCE_DIR "/tests/dialog/golden/documented_controls.txt";

std::string WhereItStands(const forms::Control& control) {
  std::string way;
  for (const forms::Control* on = control.container(); on; on = on->container()) way = on->name() + "/" + way;
  return way;
}

// A control by its name, what it stands on, where, and all its texts.
std::string LineOf(const ControlRow& row, const forms::Control& control) {
  const Place& at = row.place;
  std::string line = WhereItStands(control) + control.name() + " (" + std::to_string(at.left) + " " +
                     std::to_string(at.top) + " " + std::to_string(at.width) + " " +
                     std::to_string(at.height) + ")";
  for (const std::string& text : {std::string(row.caption), control.toolTip(), control.accessibleName(),
                                  std::string(row.hint ? row.hint : "-")}) {
    line += " [" + text + "]";
  }
  return line;
}

std::set<std::string> Present() {
  support::DialogMachine machine;
  Form2& form = machine.open();
  std::set<std::string> lines;
  for (const ControlRow& row : ControlTable()) lines.insert(LineOf(row, row.control(form)));
  for (int tab = 0; tab < form.SSTab1.tabCount(); ++tab) {
    lines.insert("tab " + std::to_string(tab) + " [" + form.SSTab1.page(tab).caption() + "]");
  }
  for (const forms::MenuItem* head : form.menu) {
    for (const forms::MenuItem* item : head->children()) {
      lines.insert("menu [" + head->caption() + "] [" + item->caption() + "]");
    }
  }
  return lines;
}

TEST(DocumentedControls, AreAllInTheirPlacesWithTheirTexts) {
  const std::set<std::string> present = Present();
  std::ifstream golden(kGolden);
  std::string line;
  int lines = 0;
  while (std::getline(golden, line)) {
    ++lines;
    EXPECT_TRUE(present.contains(line)) << line;
  }
  EXPECT_EQ(lines, 116) << kGolden;
  if (lines > 0) return;
  for (const std::string& each : present) ADD_FAILURE() << each;
}

}  // namespace
}  // namespace dialog

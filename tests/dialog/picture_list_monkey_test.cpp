// Hundreds of thousands of random actions on the real dialog, beside a plain model of what must come out.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "auxwin/multi_files.h"
#include "support/settings_dialog_machine.h"

namespace dialog {
namespace {

// A small generator of its own, so that a run can be repeated by its seed everywhere.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : state_(seed) {}
  int below(int count) {
    state_ = state_ * 1664525U + 1013904223U;
    return static_cast<int>((state_ >> 8) % static_cast<std::uint32_t>(count));
  }

 private:
  std::uint32_t state_;
};

struct Monkey {
  support::SettingsDialogMachine machine;
  SettingsDialog& dialog;
  Form2& form;
  Dice dice;

  // What must come out.
  std::vector<std::pair<std::string, std::string>> rows;
  int selected = -1;
  std::string total = "Total: 0";
  bool advised = false;

  explicit Monkey(std::uint32_t seed) : dialog(machine.openDialog()), form(dialog.form), dice(seed) {
    for (int i = 0; i < 20; ++i) {
      const std::string path = "C:\\p" + std::to_string(i) + ".gif";
      machine.pictures.add(path, {8, 6}, base::kBlack);
      machine.files.content[path] = "pixels";
    }
    machine.files.listed["C:\\"] = {"p1.gif", "p2.gif", "p3.gif", "notes.txt"};
    machine.files.listed["C:\\empty"] = {};
    machine.files.folders["C:\\"] = {"empty"};
    machine.windows.whileModal = [this](forms::Form& modal) {
      auto& import = static_cast<auxwin::MultiFiles&>(modal);
      import.dirDirectories.setPath(importsEmptyFolder ? "C:\\empty" : "C:\\");
      (importAdds ? import.Command1 : import.cmdQuit).userClicked();
    };
  }

  bool importsEmptyFolder = false;
  bool importAdds = true;

  // Some of them cannot be loaded.
  std::string anyPath() { return "C:\\p" + std::to_string(dice.below(24)) + ".gif"; }

  void added(const std::vector<std::string>& paths) {
    for (const std::string& path : paths) rows.emplace_back(path, "");
    selected = static_cast<int>(rows.size()) - 1;
    total = "Total: " + std::to_string(rows.size());
  }

  void move(int step) {
    const int neighbour = selected + step;
    (step < 0 ? form.up : form.down).userClicked();
    if (selected < 0 || neighbour < 0 || neighbour >= static_cast<int>(rows.size())) return;
    std::swap(rows[static_cast<std::size_t>(selected)], rows[static_cast<std::size_t>(neighbour)]);
    selected = neighbour;
  }

  void remove() {
    form.remove.userClicked();
    if (selected < 0) return;
    rows.erase(rows.begin() + selected);
    selected = rows.empty() ? -1 : std::max(0, selected - 1);
    total = "Total: " + std::to_string(rows.size());
  }

  void removeAll() {
    const bool yes = dice.below(2) == 0;
    machine.dialogs.answers.push_back(yes ? forms::Answer::Yes : forms::Answer::No);
    form.RemoveAll.userClicked();
    if (!yes) return;
    rows.clear();
    selected = -1;
    total = "Total: 0";
  }

  void type(const std::string& text) {
    form.p_caption.userTyped(text);
    if (selected >= 0) rows[static_cast<std::size_t>(selected)].second = text;
  }

  void import() {
    importAdds = dice.below(4) != 0;
    importsEmptyFolder = dice.below(4) == 0;
    form.FolderCommand.userClicked();
    if (!importAdds) return;
    if (!importsEmptyFolder) added({"C:\\p1.gif", "C:\\p2.gif", "C:\\p3.gif"});
    if (!rows.empty()) selected = static_cast<int>(rows.size()) - 1;
    total = std::to_string(rows.size());
  }

  void drop() {
    std::vector<std::string> dropped;
    std::vector<std::string> taken;
    for (int i = dice.below(4); i > 0; --i) {
      dropped.push_back(anyPath());
      if (machine.files.content.contains(dropped.back())) taken.push_back(dropped.back());
    }
    form.List1.onFilesDropped(dropped);
    if (!taken.empty()) added(taken);
  }

  void addOne() {
    if (dice.below(8) == 0) return form.add.userClicked();  // cancelled
    const std::string path = anyPath();
    machine.dialogs.files.push_back(path);
    form.add.userClicked();
    added({path});
  }

  void select() {
    if (rows.empty()) return;
    selected = dice.below(static_cast<int>(rows.size()));
    form.List1.userSelected(selected);
  }

  void step() {
    // As many come as go, so that the list breathes between empty and some dozens.
    switch (dice.below(30)) {
      case 0:
      case 1:
      case 2:
      case 3:
      case 4:
        return addOne();
      case 5:
        return drop();
      case 6:
        return import();
      case 7:
      case 8:
      case 9:
      case 10:
      case 11:
      case 12:
      case 13:
      case 14:
      case 15:
        return remove();
      case 16:
        return dice.below(10) == 0 ? removeAll() : select();
      case 17:
      case 18:
        return move(-1);
      case 19:
      case 20:
        return move(+1);
      case 21:
      case 22:
        return type("caption " + std::to_string(dice.below(1000)));
      case 23:
        form.caption_clear.userClicked();
        return cleared();
      case 24:
        return machine.loop.runFor(dice.below(300));
      case 25:
        return form.addBackImg.userClicked();
      case 26:
        return form.removeBackImg.userClicked();
      default:
        return select();
    }
  }

  void cleared() {
    if (selected >= 0) rows[static_cast<std::size_t>(selected)].second.clear();
  }

  // Compared without a macro for each row: there are ten million of them in a run. -1 when all are as they
  // should be.
  int firstRowOutOfStep() const {
    for (int i = 0; i < form.List1.listCount(); ++i) {
      const auto& [path, caption] = rows[static_cast<std::size_t>(i)];
      if (form.List1.item(i) != path || form.photo_caption.item(i) != caption) return i;
    }
    return -1;
  }

  // What must hold after each action.
  void check() {
    ASSERT_EQ(form.List1.listCount(), static_cast<int>(rows.size()));
    ASSERT_EQ(form.photo_caption.listCount(), static_cast<int>(rows.size()));
    if (const int i = firstRowOutOfStep(); i >= 0) {
      ASSERT_EQ(form.List1.item(i), rows[static_cast<std::size_t>(i)].first) << "row " << i;
      ASSERT_EQ(form.photo_caption.item(i), rows[static_cast<std::size_t>(i)].second) << "row " << i;
    }
    ASSERT_EQ(form.List1.listIndex(), selected);
    ASSERT_EQ(form.Text3.text(), total);
    const bool any = selected >= 0;
    ASSERT_EQ(form.ImagePosition.text(), any ? "Position: " + std::to_string(selected + 1) : "");
    ASSERT_EQ(form.p_caption.text(), any ? rows[static_cast<std::size_t>(selected)].second : "");
    ASSERT_TRUE(any || !form.photo1.picture());
    for (const auto& message : machine.dialogs.messages) {
      if (!message.text.starts_with("It is recommended")) continue;
      ASSERT_FALSE(advised) << "the advice came twice";
      ASSERT_GT(rows.size(), 700U);
      advised = true;
    }
    machine.dialogs.messages.clear();
    machine.dialogs.fileRequests.clear();
    machine.windows.changes.clear();
    machine.windows.shown.clear();
    machine.windows.unloaded.clear();
    machine.pictures.opened.clear();
    machine.pictures.drawnSizes.clear();
  }

  // Once the selection rests, the thumbnail is the selected picture's; of one that cannot be loaded there is
  // none.
  void checkPreview() {
    machine.rest();
    const bool loads =
        selected >= 0 && machine.files.content.contains(rows[static_cast<std::size_t>(selected)].first);
    ASSERT_EQ(form.photo1.picture() != nullptr, loads);
    ASSERT_EQ(machine.loop.timersRunning(), 0);
    machine.dialogs.messages.clear();
  }
};

void RunMonkey(std::uint32_t seed, int steps) {
  Monkey monkey(seed);
  for (int i = 0; i < steps; ++i) {
    SCOPED_TRACE("seed " + std::to_string(seed) + ", step " + std::to_string(i));
    monkey.step();
    ASSERT_NO_FATAL_FAILURE(monkey.check());
    if (i % 64 != 0) continue;
    ASSERT_NO_FATAL_FAILURE(monkey.checkPreview());
  }
}

class PictureListMonkeyAtRandom : public testing::TestWithParam<std::uint32_t> {};

TEST_P(PictureListMonkeyAtRandom, NoSequenceOfActionsBringsPicturesAndCaptionsOutOfStep) {
  ASSERT_NO_FATAL_FAILURE(RunMonkey(GetParam(), 10'500));
}

INSTANTIATE_TEST_SUITE_P(Seeds, PictureListMonkeyAtRandom, testing::Range(1U, 21U));

// A list that starts long, so that the advice falls somewhere in the run.
TEST(PictureListMonkey, TheAdviceComesOnceInTheLifeOfTheDialog) {
  for (std::uint32_t seed = 101; seed <= 103; ++seed) {
    Monkey monkey(seed);
    std::vector<std::string> many(698, "C:\\p1.gif");
    monkey.form.List1.onFilesDropped(many);
    monkey.added(many);
    for (int i = 0; i < 300; ++i) {
      monkey.addOne();
      if (i % 3 != 0) monkey.select();
      ASSERT_NO_FATAL_FAILURE(monkey.check());
    }
    EXPECT_TRUE(monkey.advised);
  }
}

}  // namespace
}  // namespace dialog

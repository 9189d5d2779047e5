#include "saver/show_notes.h"

#include <algorithm>

namespace saver {

namespace {

constexpr float kEdgeTwips = 240;  // from the edges of the screen
constexpr float kGapTwips = 120;   // between two panels
constexpr std::size_t kInformationLines = 4;

struct KeyHelp {
  const char* keys;
  const char* meaning;
  bool opensFolder = false;
};

constexpr KeyHelp kKeyHelp[] = {
    {"Right, Page Down, N", "The next picture"},
    {"Left, Page Up, B", "Back through the pictures that were shown"},
    {"Space, P", "Hold the picture, and go on; captions and clock go on meanwhile"},
    {"I", "About this picture"},
    {"Delete, twice", "Never show this picture again; its file stays"},
    {"O, Enter", "End the show and open the picture's folder", true},
    {"F1, H", "These keys"},
    {"Escape, any other", "End the show"},
};

}  // namespace

ShowNotes::ShowNotes(forms::Form& form, os::EventLoop& loop)
    : signTimer_(loop),
      sign_(form, "Sign", 1),
      information_(form, "Information", kInformationLines),
      keys_(form, "Keys", std::size(kKeyHelp)),
      meanings_(form, "Meanings", std::size(kKeyHelp)) {
  signTimer_.onTimer = [this] {
    sayNoMore();
    if (onSignGone) onSignGone();
  };
}

std::vector<forms::Label*> ShowNotes::labels() const {
  std::vector<forms::Label*> all;
  for (const NotePanel* panel : {&information_, &sign_, &keys_, &meanings_}) {
    const std::vector<forms::Label*> own = panel->labels();
    all.insert(all.end(), own.begin(), own.end());
  }
  return all;
}

void ShowNotes::setRoom(const NoteRoom& room) {
  room_ = room;
  layOut();
}

void ShowNotes::say(const std::string& text, int forMs) {
  signText_ = text;
  sign_.setVisible(true);
  layOut();
  signTimer_.setEnabled(false);
  signTimer_.setInterval(forMs);
  signTimer_.setEnabled(true);
}

void ShowNotes::sayNoMore() {
  signTimer_.setEnabled(false);
  sign_.setVisible(false);
}

void ShowNotes::inform(const std::vector<std::string>& lines) {
  informationLines_ = lines;
  information_.setVisible(!lines.empty());
  layOut();
}

void ShowNotes::showKeys(bool show, bool opensFolder) {
  opensFolder_ = opensFolder;
  keys_.setVisible(show);
  meanings_.setVisible(show);
  layOut();
}

void ShowNotes::layOut() {
  const float width = std::max(0.0F, room_.width - 2 * kEdgeTwips);
  float bottom = room_.top + room_.height - kEdgeTwips;
  if (information_.isVisible()) {
    information_.setLines(informationLines_, width);
    information_.setPlace(room_.left + kEdgeTwips, bottom - information_.height());
    bottom -= information_.height() + kGapTwips;
  }
  if (sign_.isVisible()) {
    sign_.setLines({signText_}, width);
    sign_.setPlace(room_.left + kEdgeTwips, bottom - sign_.height());
  }
  if (!keys_.isVisible()) return;
  std::vector<std::string> keys;
  std::vector<std::string> meanings;
  for (const KeyHelp& row : kKeyHelp) {
    if (row.opensFolder && !opensFolder_) continue;
    keys.emplace_back(row.keys);
    meanings.emplace_back(row.meaning);
  }
  keys_.setLines(keys, width);
  meanings_.setLines(meanings, std::max(0.0F, width - keys_.width()));
  const float left = room_.left + (room_.width - keys_.width() - meanings_.width()) / 2;
  const float top = room_.top + (room_.height - keys_.height()) / 2;
  keys_.setPlace(left, top);
  meanings_.setPlace(left + keys_.width(), top);
}

}  // namespace saver

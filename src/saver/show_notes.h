// What a show that takes keys says to its user: signs, a question, what is known of a picture, the keys.
#pragma once

#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/timer.h"
#include "os/event_loop.h"
#include "saver/note_panel.h"

namespace saver {

// A part of a form, in twips.
struct NoteRoom {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;
};

// The information stands in the bottom left corner and a sign above it, the keys stand in the middle. The
// clock has the other corner, and the caption the top.
class ShowNotes {
 public:
  static constexpr int kSignMs = 2000;

  ShowNotes(forms::Form& form, os::EventLoop& loop);

  // For the stage, in their order.
  std::vector<forms::Label*> labels() const;

  // Where there is room, from now on.
  void setRoom(const NoteRoom& room);

  // A sign in the place of any other.
  void say(const std::string& text, int forMs = kSignMs);
  void sayNoMore();

  // Takes the information away where there are no lines.
  void inform(const std::vector<std::string>& lines);

  // Shows the keys, or hides them. Whether a folder can be opened is the show's to know.
  void showKeys(bool show, bool opensFolder);
  bool showsKeys() const { return keys_.isVisible(); }

  // When the sign is to go, the show's frame is to come.
  std::function<void()> onSignGone;

  // Nothing comes or goes any more.
  void end() { signTimer_.setEnabled(false); }

 private:
  void layOut();

  forms::Timer signTimer_;
  NotePanel sign_;
  NotePanel information_;
  NotePanel keys_;
  NotePanel meanings_;
  NoteRoom room_;
  std::string signText_;
  std::vector<std::string> informationLines_;
  bool opensFolder_ = true;
};

}  // namespace saver

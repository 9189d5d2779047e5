// The pictures and captions of the settings dialog.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "auxwin/picture_target.h"
#include "base/bitmap.h"
#include "dialog/form2.h"
#include "dialog/picture_paths.h"
#include "dialog/picture_presence.h"
#include "dialog/picture_rows.h"
#include "forms/timer.h"
#include "os/event_loop.h"
#include "pictures/picture.h"

namespace dialog {

// The whole picture in its proportions in the middle of a bitmap of `box` pixels that is transparent around
// it. It is shrunk as far as needed and never enlarged; it is decoded at the size at which it is shown. Null
// when it cannot be decoded.
base::SharedBitmap DrawThumbnail(const pictures::Picture& picture, base::PixelSize box);

// Whether a list's selection rests or is running over rows. While an arrow key is held down the selection
// moves many times a second, faster than large photos can be decoded. What is shown of the selected row waits
// until the selection rests; the rows that it passed are skipped. A selection that comes out of rest is shown
// without delay.
class SelectionRest {
 public:
  // A held key repeats every 30 to 50 milliseconds; hardly anybody presses keys much faster than this.
  static constexpr int kRestMs = 120;

  SelectionRest(os::EventLoop& loop, std::function<void()> onRest);

  // The selection has moved. True when it had been resting: what it stands on is shown now. Otherwise onRest
  // is called once it has not moved for the time above.
  bool moved();

  // The selection rests: what waited for that is forgotten, and the next move is shown without delay.
  void settle();

 private:
  forms::Timer timer_;
  std::function<void()> onRest_;
  bool waiting_ = false;
};

// The handlers of the first tab, which it sets on the controls of a form that must outlive it. Entry i of
// photo_caption is always the caption of entry i of List1. Several entries can be chosen, to be removed or
// moved together; preview, caption and position are those of the one on which the keyboard stands.
class PictureList {
 public:
  PictureList(Form2& form, os::EventLoop& loop);
  ~PictureList();
  PictureList(const PictureList&) = delete;
  PictureList& operator=(const PictureList&) = delete;

  void List1_Click();
  void add_Click();
  void remove_Click();
  void RemoveAll_Click();
  void up_Click();
  void down_Click();
  void p_caption_Change();
  void p_caption_Enter();
  void caption_clear_Click();

  // What a list's own keys and the pointer do: Delete removes what is chosen, F2 goes to the caption, Ctrl+Z
  // takes back the last change of the list, and what is dragged goes before another entry.
  void userPressedDelete();
  void userWantsToRename();
  void userTakesBack();
  void userDragged(int gap);

  // The entry under the pointer, or -1: the tool-tip has its whole path.
  void userPointedAt(int index);

  // Files and folders were dropped on the list. Pictures are added as the add button adds one, a folder's as
  // the folder import adds them; other files are left out.
  void userDropped(const std::vector<std::string>& paths);

  // Somebody else may have added entries; there were `before`.
  void listGrew(int before);

  // Shows a picture file as a thumbnail in photo1; no path shows nothing. False when there is a path and its
  // picture cannot be loaded; photo1 is then empty. Where pictures are loaded ahead it returns at once with
  // true: photo1 follows when the picture is there, and what cannot be loaded is told then.
  bool ShowPreview(const std::string& path);

  // Draws the thumbnail anew, where one is shown or awaited, for the size that photo1 has now.
  void redrawPreview();

  // The list for whoever else adds to it; refers to this object.
  auxwin::PictureTarget target();

 private:
  void append(std::vector<std::string> paths);
  void appendStorable(const std::vector<std::string>& chosen);
  void select(int index);
  void choose(const RowMarks& marks);
  void showNothingSelected();
  void stepRows(int step);
  void moveRows(const std::vector<int>& rows, const std::vector<int>& to);
  void removeRows(const std::vector<int>& rows);
  bool refused(bool nothingSelected);
  void tellMissing();
  bool isPicture(const std::string& path) const;
  std::vector<std::string> picturesOf(const std::string& dropped) const;
  bool preview(const std::string& path);
  void selectionRested();
  void tellCannotLoad();
  void wishPreview(pictures::AheadLoader& loader, const std::string& path);
  void clearPreview();
  void showTotal();

  Form2& form_;
  DialogServices services_;
  PicturePaths paths_;
  PictureRows rows_;
  PicturePresence presence_;
  SelectionRest rest_;
  auxwin::ManyImagesAdvice advice_;
  std::string usualToolTip_;  // of the list where the pointer is on no entry
  std::string previewed_;     // the path whose thumbnail photo1 shows
};

}  // namespace dialog

// The pictures and captions of the settings dialog.
#pragma once

#include <string>
#include <vector>

#include "auxwin/picture_target.h"
#include "dialog/form2.h"
#include "dialog/selection_rest.h"
#include "dialog/storable_paths.h"
#include "os/event_loop.h"

namespace dialog {

// The handlers of the first tab, which it sets on the controls of a form that must outlive it. Entry i of
// photo_caption is always the caption of entry i of List1.
class PictureList {
 public:
  PictureList(Form2& form, os::EventLoop& loop);

  void List1_Click();
  void add_Click();
  void remove_Click();
  void RemoveAll_Click();
  void up_Click();
  void down_Click();
  void p_caption_Change();
  void caption_clear_Click();

  // Files were dropped on the list; they are added as the add button adds one, folders are not.
  void userDropped(const std::vector<std::string>& paths);

  // Shows a picture file as a thumbnail in photo1; no path shows nothing. False when there is a path and its
  // picture cannot be loaded; photo1 is then empty.
  bool ShowPreview(const std::string& path);

  // The list for whoever else adds to it; refers to this object.
  auxwin::PictureTarget target();

 private:
  void append(std::vector<std::string> paths);
  void select(int index);
  void swapWithNeighbour(int step);
  bool refusedWithoutSelection();
  void selectionRested();
  void tellCannotLoad();
  void clearPreview();
  void showTotal();

  Form2& form_;
  DialogServices services_;
  StorablePaths storablePaths_;
  SelectionRest rest_;
  auxwin::ManyImagesAdvice advice_;
  std::string previewed_;  // the path whose thumbnail photo1 shows
};

}  // namespace dialog

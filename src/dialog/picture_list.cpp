#include "dialog/picture_list.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <numeric>
#include <optional>
#include <utility>

#include "auxwin/image_view.h"
#include "auxwin/multi_files.h"
#include "base/number_text.h"
#include "dialog/messages.h"
#include "forms/file_name.h"
#include "forms/picture_boxes.h"
#include "os/paths.h"
#include "settings/settings_file.h"

namespace dialog {

namespace {

constexpr AwaitedPictures::Place kPreview = AwaitedPictures::Place::Preview;

}  // namespace

base::SharedBitmap DrawThumbnail(const pictures::Picture& picture, base::PixelSize box) {
  const base::PixelSize size = forms::FitInside(picture.size(), box);
  const base::SharedBitmap drawn = picture.drawnAt(size);
  if (!drawn) return nullptr;
  auto thumbnail = std::make_shared<base::Bitmap>(box);
  const base::PixelPoint corner{(box.width - size.width) / 2, (box.height - size.height) / 2};
  base::CopyRect(thumbnail->view(), corner, *drawn, base::PixelRect::ofSize(size));
  return thumbnail;
}

SelectionRest::SelectionRest(os::EventLoop& loop, std::function<void()> onRest)
    : timer_(loop, kRestMs), onRest_(std::move(onRest)) {
  timer_.onTimer = [this] {
    const bool waited = waiting_;
    settle();
    if (waited) onRest_();
  };
}

bool SelectionRest::moved() {
  const bool rested = !timer_.enabled();
  if (!rested) {
    waiting_ = true;
    timer_.setEnabled(false);
  }
  timer_.setEnabled(true);
  return rested;
}

void SelectionRest::settle() {
  timer_.setEnabled(false);
  waiting_ = false;
}

PictureList::~PictureList() { form_.awaited().drop(kPreview); }

PictureList::PictureList(Form2& form, os::EventLoop& loop)
    : form_(form),
      services_(form.services()),
      paths_(services_),
      rows_(form.List1, form.photo_caption),
      presence_(loop, services_.folders, services_.makeWorker),
      rest_(loop, [this] { selectionRested(); }) {
  usualToolTip_ = form_.List1.toolTip();
  form_.p_caption.maxLength = static_cast<int>(settings::kLongestValue);
  form_.List1.onClick = [this] { List1_Click(); };
  form_.List1.onFilesDropped = [this](const std::vector<std::string>& paths) { userDropped(paths); };
  form_.List1.onDelete = [this] { userPressedDelete(); };
  form_.List1.onRename = [this] { userWantsToRename(); };
  form_.List1.onUndo = [this] { userTakesBack(); };
  form_.List1.onEntriesDragged = [this](int gap) { userDragged(gap); };
  form_.List1.onEntryPointed = [this](int index) { userPointedAt(index); };
  form_.List1.isFaint = [this](const std::string& path) { return presence_.isMissing(path); };
  presence_.onNews = [this] {
    form_.List1.refresh();
    tellMissing();
  };
  form_.add.onClick = [this] { add_Click(); };
  form_.remove.onClick = [this] { remove_Click(); };
  form_.RemoveAll.onClick = [this] { RemoveAll_Click(); };
  form_.up.onClick = [this] { up_Click(); };
  form_.down.onClick = [this] { down_Click(); };
  form_.p_caption.onChange = [this] { p_caption_Change(); };
  form_.p_caption.onEnter = [this] { p_caption_Enter(); };
  form_.caption_clear.onClick = [this] { caption_clear_Click(); };
}

auxwin::PictureTarget PictureList::target() {
  return {form_.List1,
          form_.photo_caption,
          form_.Text3,
          advice_,
          [this](const std::string& path) { return paths_.storable(path); },
          [this](int count) { paths_.tellLeftOut(count); }};
}

void PictureList::List1_Click() {
  const int index = form_.List1.listIndex();
  if (index < 0) return;
  rows_.endTyping();
  form_.ImagePosition.setText("Position: " + base::NumberText(std::int32_t{index + 1}));
  const bool failed = rest_.moved() && !ShowPreview(form_.List1.text());
  form_.p_caption.setText(form_.photo_caption.item(index));
  if (failed) tellCannotLoad();
}

void PictureList::selectionRested() {
  if (form_.List1.listIndex() >= 0 && !ShowPreview(form_.List1.text())) tellCannotLoad();
}

void PictureList::tellCannotLoad() {
  services_.dialogs.messageBox(auxwin::kCannotLoadImage, forms::kExclamation);
}

bool PictureList::ShowPreview(const std::string& path) {
  try {
    return preview(path);
  } catch (const std::exception&) {
    form_.photo.setPicture(nullptr);
    clearPreview();
    return false;
  }
}

void PictureList::redrawPreview() {
  std::string path = std::exchange(previewed_, {});
  if (form_.awaited().isFor(kPreview, form_.List1.text())) path = form_.List1.text();
  form_.awaited().drop(kPreview);
  if (!path.empty()) ShowPreview(path);
}

bool PictureList::preview(const std::string& path) {
  if (form_.photo1.picture() && previewed_ == path) {
    form_.awaited().drop(kPreview);
    return true;
  }
  if (pictures::AheadLoader* ahead = form_.ahead(); ahead && !path.empty()) {
    wishPreview(*ahead, path);
    return true;
  }
  const pictures::SharedPicture file = path.empty() ? nullptr : services_.pictures.open(path);
  form_.photo.setPicture(file);
  base::SharedBitmap thumbnail =
      file ? DrawThumbnail(*form_.photo.picture(), form_.photo1.scaleSize()) : nullptr;
  if (!thumbnail) {
    clearPreview();
    return path.empty();
  }
  form_.photo1.setPicture(pictures::MakePicture(std::move(thumbnail)));
  previewed_ = path;
  return true;
}

// The row before stays in sight until this one's picture is there; a row that was passed is forgotten.
void PictureList::wishPreview(pictures::AheadLoader& loader, const std::string& path) {
  if (form_.awaited().isFor(kPreview, path)) return;
  const base::PixelSize box = form_.photo1.scaleSize();
  const auto thumbnail = [box](const pictures::Picture& file) {
    base::SharedBitmap drawn = DrawThumbnail(file, box);
    return drawn ? pictures::MakePicture(std::move(drawn)) : nullptr;
  };
  form_.awaited().wish(kPreview, loader, {.path = path, .box = box, .prepare = thumbnail},
                       [this, path](const pictures::SharedPicture& picture) {
                         if (!picture) {
                           clearPreview();
                           tellCannotLoad();
                           return;
                         }
                         form_.photo1.setPicture(picture);
                         previewed_ = path;
                       });
}

void PictureList::clearPreview() {
  form_.awaited().drop(kPreview);
  if (form_.photo1.picture()) form_.photo1.setPicture(nullptr);
  previewed_.clear();
}

void PictureList::showTotal() {
  form_.Text3.setText("Total: " + base::NumberText(std::int32_t{form_.List1.listCount()}));
  tellMissing();
}

// In the list's words, where the grey entries are explained. Only those that came into sight are known.
void PictureList::tellMissing() {
  const std::vector<std::string>& listed = form_.List1.items();
  const bool any = !presence_.missing().empty() && std::ranges::any_of(listed, [this](const auto& path) {
    return presence_.missing().contains(path);
  });
  form_.setListNote(any ? kMissingImages : "");
}

// What the program selects is shown at once, however fast the user goes on.
void PictureList::select(int index) { choose({{index}, index}); }

// The entry may have come to another place, so it is shown even if it was selected before.
void PictureList::choose(const RowMarks& marks) {
  rest_.settle();
  const bool raises = form_.List1.listIndex() != marks.focus;
  form_.List1.choose(marks.chosen, marks.focus);
  if (!raises) List1_Click();
  if (marks.focus < 0) showNothingSelected();
  rest_.settle();
}

void PictureList::showNothingSelected() {
  clearPreview();
  form_.p_caption.setText({});
  form_.ImagePosition.setText({});
}

void PictureList::append(std::vector<std::string> paths) {
  rows_.add(std::move(paths));
  select(form_.List1.listCount() - 1);
  showTotal();
  advice_.consider(form_.List1.listCount(), services_.dialogs);
  ShowPreview(form_.List1.text());
}

void PictureList::add_Click() {
  if (form_.offersMoreFormats()) {
    appendStorable(paths_.askForSeveral(form_.importedPatterns()));
    return;
  }
  if (const std::optional<std::string> path = paths_.ask()) append({*path});
}

// A name that says so is believed, as the add button believes it; any other file is looked into.
bool PictureList::isPicture(const std::string& path) const {
  return forms::MatchesPatterns(path, "*.bmp;*.gif;*.jpg;*.jpeg;*.jif;*.dib;*.png") ||
         services_.pictures.open(path) != nullptr;
}

std::vector<std::string> PictureList::picturesOf(const std::string& dropped) const {
  if (services_.files.exists(dropped)) {
    return isPicture(dropped) ? std::vector{dropped} : std::vector<std::string>();
  }
  std::vector<std::string> pictures = services_.files.filesIn(dropped);
  std::erase_if(pictures, [this](const std::string& name) {
    return !forms::MatchesPatterns(name, form_.importedPatterns());
  });
  services_.files.sortNames(pictures);
  for (std::string& name : pictures) name = os::JoinPath(dropped, name);
  return pictures;
}

void PictureList::userDropped(const std::vector<std::string>& paths) {
  std::vector<std::string> pictures;
  for (const std::string& dropped : paths) {
    for (std::string& picture : picturesOf(dropped)) pictures.push_back(std::move(picture));
  }
  appendStorable(pictures);
}

void PictureList::appendStorable(const std::vector<std::string>& chosen) {
  std::vector<std::string> added;
  for (const std::string& picture : chosen) {
    if (std::optional<std::string> path = paths_.storable(picture)) added.push_back(std::move(*path));
  }
  const auto leftOut = static_cast<int>(chosen.size() - added.size());
  if (!added.empty()) append(std::move(added));
  paths_.tellLeftOut(leftOut);
}

bool PictureList::refused(bool nothingSelected) {
  if (!nothingSelected) return false;
  services_.dialogs.messageBox(kNothingSelected, forms::kExclamation);
  return true;
}

void PictureList::remove_Click() {
  const std::vector<int> rows = form_.List1.chosen();
  // A single entry without a path counts as none.
  if (refused(rows.empty() || (rows.size() == 1 && form_.List1.item(rows.front()).empty()))) return;
  removeRows(rows);
}

void PictureList::removeRows(const std::vector<int>& rows) {
  rest_.settle();
  rows_.remove(rows);
  clearPreview();
  if (rows_.count() == 0) {
    showNothingSelected();
  } else {
    select(std::max(0, rows.front() - 1));
  }
  showTotal();
}

void PictureList::RemoveAll_Click() {
  const forms::Answer answer =
      services_.dialogs.messageBox(kRemoveAllQuestion, forms::kYesNo | forms::kQuestion);
  if (answer != forms::Answer::Yes) return;
  rest_.settle();
  std::vector<int> all(static_cast<std::size_t>(rows_.count()));
  std::iota(all.begin(), all.end(), 0);
  rows_.remove(all);
  showNothingSelected();
  showTotal();
}

void PictureList::up_Click() { stepRows(-1); }

void PictureList::down_Click() { stepRows(+1); }

void PictureList::stepRows(int step) {
  // The text that speaks of removing stands for moving as well. An entry without a path can be moved.
  const std::vector<int> rows = form_.List1.chosen();
  if (!refused(rows.empty())) moveRows(rows, SteppedRows(rows, rows_.count(), step));
}

// The keyboard stays on its entry, which may be one of those that make room.
void PictureList::moveRows(const std::vector<int>& rows, const std::vector<int>& to) {
  const int focus = form_.List1.listIndex();
  if (!rows_.move(rows, to)) return;
  const auto at = std::ranges::find(rows, focus);
  const int moved =
      at == rows.end() ? form_.List1.listIndex() : to[static_cast<std::size_t>(at - rows.begin())];
  choose({to, moved});
}

void PictureList::userPressedDelete() {
  const std::vector<int> rows = form_.List1.chosen();
  if (!rows.empty()) remove_Click();
}

void PictureList::userWantsToRename() {
  if (form_.List1.listIndex() >= 0) form_.p_caption.setFocus();
}

void PictureList::userTakesBack() {
  rest_.settle();
  const std::optional<RowMarks> before = rows_.undo();
  if (!before) return;
  choose(*before);
  showTotal();
}

void PictureList::userDragged(int gap) {
  const std::vector<int> rows = form_.List1.chosen();
  if (!rows.empty()) moveRows(rows, RowsAtGap(rows, gap));
}

void PictureList::userPointedAt(int index) {
  const std::string& path = form_.List1.item(index);
  const char* const missing = presence_.missing().contains(path) ? kMissingImage : "";
  form_.List1.setToolTip(path.empty() ? usualToolTip_ : path + missing);
}

void PictureList::listGrew(int before) {
  rows_.added(before);
  tellMissing();
}

// Captions are typed one after the other.
void PictureList::p_caption_Enter() {
  const int next = form_.List1.listIndex() + 1;
  if (next < form_.List1.listCount()) select(next);
}

void PictureList::p_caption_Change() {
  const std::string& text = form_.p_caption.text();
  const int index = form_.List1.listIndex();
  if (index >= 0) {
    rows_.setCaption(index, text);
  } else if (!text.empty() && form_.List1.listCount() == 0) {
    services_.dialogs.messageBox(kImageFirst, forms::kExclamation);
    form_.p_caption.setText({});
  }
}

void PictureList::caption_clear_Click() {
  rows_.endTyping();
  form_.p_caption.setText({});
  const int index = form_.List1.listIndex();
  if (index >= 0) rows_.setCaption(index, {});
  rows_.endTyping();
}

}  // namespace dialog

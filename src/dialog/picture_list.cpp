#include "dialog/picture_list.h"

#include <algorithm>
#include <cstdint>
#include <memory>
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
    : form_(form), services_(form.services()), paths_(services_), rest_(loop, [this] { selectionRested(); }) {
  form_.p_caption.maxLength = static_cast<int>(settings::kLongestValue);
  form_.List1.onClick = [this] { List1_Click(); };
  form_.List1.onFilesDropped = [this](const std::vector<std::string>& paths) { userDropped(paths); };
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
  form_.showNotes();
}

// What the program selects is shown at once, however fast the user goes on.
void PictureList::select(int index) {
  rest_.settle();
  form_.List1.setListIndex(index);
  rest_.settle();
}

void PictureList::append(std::vector<std::string> paths) {
  const int before = form_.List1.listCount();
  form_.photo_caption.addItems(std::vector<std::string>(paths.size()));
  try {
    form_.List1.addItems(std::move(paths));
  } catch (...) {
    // Both lists grow or neither does.
    std::vector<std::string> captions = form_.photo_caption.items();
    captions.resize(static_cast<std::size_t>(before));
    form_.photo_caption.setItems(std::move(captions));
    throw;
  }
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
  if (refused(form_.List1.text().empty())) return;
  const int index = form_.List1.listIndex();
  rest_.settle();
  form_.List1.removeItem(index);
  form_.photo_caption.removeItem(index);
  clearPreview();
  if (form_.List1.listCount() == 0) {
    form_.p_caption.setText({});
    form_.ImagePosition.setText({});
  } else {
    select(std::max(0, index - 1));
  }
  showTotal();
}

void PictureList::RemoveAll_Click() {
  const forms::Answer answer =
      services_.dialogs.messageBox(kRemoveAllQuestion, forms::kYesNo | forms::kQuestion);
  if (answer != forms::Answer::Yes) return;
  rest_.settle();
  form_.List1.clear();
  clearPreview();
  form_.photo_caption.clear();
  form_.p_caption.setText({});
  form_.ImagePosition.setText({});
  showTotal();
}

void PictureList::up_Click() { swapWithNeighbour(-1); }

void PictureList::down_Click() { swapWithNeighbour(+1); }

void PictureList::swapWithNeighbour(int step) {
  // The text that speaks of removing stands for moving as well. An entry without a path can be moved.
  if (refused(form_.List1.listIndex() < 0)) return;
  const int index = form_.List1.listIndex();
  const int neighbour = index + step;
  if (neighbour < 0 || neighbour >= form_.List1.listCount()) return;
  std::string path = form_.List1.item(index);
  std::string caption = form_.photo_caption.item(index);
  form_.List1.removeItem(index);
  form_.photo_caption.removeItem(index);
  form_.List1.addItem(std::move(path), neighbour);
  form_.photo_caption.addItem(std::move(caption), neighbour);
  select(neighbour);
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
    form_.photo_caption.setItem(index, text);
  } else if (!text.empty() && form_.List1.listCount() == 0) {
    services_.dialogs.messageBox(kImageFirst, forms::kExclamation);
    form_.p_caption.setText({});
  }
}

void PictureList::caption_clear_Click() {
  form_.p_caption.setText({});
  const int index = form_.List1.listIndex();
  if (index >= 0) form_.photo_caption.setItem(index, {});
}

}  // namespace dialog

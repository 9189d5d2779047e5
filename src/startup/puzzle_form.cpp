#include "startup/puzzle_form.h"

#include <memory>

namespace startup {

PuzzleForm::PuzzleForm(const base::Bitmap& image) : Form("PuzzleForm"), Picture1(*this, "Picture1") {
  Picture1.setAutoSize(true);
  Picture1.setPicture(pictures::MakePicture(std::make_shared<base::Bitmap>(image)));
}

}  // namespace startup

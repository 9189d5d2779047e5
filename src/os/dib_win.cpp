#include "os/dib_win.h"

#include <utility>

namespace os {

Dib::Dib(base::PixelSize size) : size_(size), dc_(CreateCompatibleDC(nullptr)) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = size.width;
  info.bmiHeader.biHeight = -size.height;  // top row first
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  bitmap_.reset(CreateDIBSection(dc_.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (!bitmap_ || !bits) {
    size_ = {};
    return;
  }
  pixels_ = static_cast<base::Pixel*>(bits);
  before_ = SelectObject(dc_.get(), bitmap_.get());
}

Dib::~Dib() { close(); }

Dib::Dib(Dib&& other) noexcept
    : size_(std::exchange(other.size_, {})),
      pixels_(std::exchange(other.pixels_, nullptr)),
      dc_(std::move(other.dc_)),
      bitmap_(std::move(other.bitmap_)),
      before_(std::exchange(other.before_, nullptr)) {}

Dib& Dib::operator=(Dib&& other) noexcept {
  if (this != &other) {
    close();
    size_ = std::exchange(other.size_, {});
    pixels_ = std::exchange(other.pixels_, nullptr);
    dc_ = std::move(other.dc_);
    bitmap_ = std::move(other.bitmap_);
    before_ = std::exchange(other.before_, nullptr);
  }
  return *this;
}

void Dib::close() {
  if (before_) SelectObject(dc_.get(), before_);
  before_ = nullptr;
}

base::BitmapView Dib::view() const {
  GdiFlush();
  return {pixels_, size_, size_.width};
}

}  // namespace os

#include "os/reduced_decoding_win.h"

namespace os {

namespace {

constexpr int kRotate0 = 0;  // WICBitmapTransformRotate0

// Rows of whole 32-bit numbers, as the platform's bitmaps have them.
UINT StrideOf(base::PixelSize size) { return (static_cast<UINT>(size.width) * 3 + 3) & ~3U; }

bool IsReductionOf(base::PixelSize reduced, base::PixelSize whole, int reduction) {
  const auto fits = [reduction](int small, int large) {
    return small == large / reduction || small == (large + reduction - 1) / reduction;
  };
  return !reduced.isEmpty() && fits(reduced.width, whole.width) && fits(reduced.height, whole.height);
}

}  // namespace

ReducedDecoding::ReducedDecoding(const Microsoft::WRL::ComPtr<IWICBitmapFrameDecode>& frame,
                                 base::PixelSize size)
    : format_(GUID_WICPixelFormat24bppBGR) {
  frame.As(&transform_);
  if (!transform_) return;
  BOOL supported = FALSE;
  const bool usable = SUCCEEDED(transform_->DoesSupportTransform(kRotate0, &supported)) &&
                      supported != FALSE && SUCCEEDED(transform_->GetClosestPixelFormat(&format_)) &&
                      IsEqualGUID(format_, GUID_WICPixelFormat24bppBGR);
  if (!usable) return;
  for (const int reduction : {2, 4, 8}) {
    auto width = static_cast<UINT>((size.width + reduction - 1) / reduction);
    auto height = static_cast<UINT>((size.height + reduction - 1) / reduction);
    if (FAILED(transform_->GetClosestSize(&width, &height))) continue;
    const base::PixelSize reduced{static_cast<int>(width), static_cast<int>(height)};
    if (IsReductionOf(reduced, size, reduction)) sizes_[reduction] = reduced;
  }
}

std::vector<int> ReducedDecoding::reductions() const {
  std::vector<int> all = {1};
  for (const auto& [reduction, size] : sizes_) all.push_back(reduction);
  return all;
}

bool ReducedDecoding::decode(int reduction) {
  const base::PixelSize reduced = size(reduction);
  const UINT stride = StrideOf(reduced);
  decoded_.resize(static_cast<std::size_t>(stride) * static_cast<std::size_t>(reduced.height));
  WICPixelFormatGUID format = format_;
  const HRESULT result =
      transform_->CopyPixels(nullptr, static_cast<UINT>(reduced.width), static_cast<UINT>(reduced.height),
                             &format, kRotate0, stride, static_cast<UINT>(decoded_.size()), decoded_.data());
  decodedReduction_ = SUCCEEDED(result) && IsEqualGUID(format, format_) ? reduction : 0;
  return decodedReduction_ != 0;
}

bool ReducedDecoding::readRows(int reduction, int top, int count, base::Pixel* pixels) {
  if (!sizes_.contains(reduction) || (top == 0 && !decode(reduction)) || decodedReduction_ != reduction) {
    return false;
  }
  const base::PixelSize reduced = size(reduction);
  for (int y = top; y < top + count; ++y) {
    const BYTE* from =
        decoded_.data() + static_cast<std::size_t>(StrideOf(reduced)) * static_cast<std::size_t>(y);
    for (int x = 0; x < reduced.width; ++x, from += 3) {
      *pixels++ = 0xFF000000U | static_cast<base::Pixel>(from[2]) << 16 |
                  static_cast<base::Pixel>(from[1]) << 8 | from[0];
    }
  }
  return true;
}

}  // namespace os

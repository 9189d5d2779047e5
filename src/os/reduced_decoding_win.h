// Shrinking while decoding, where the decoder of a picture can do it (JPEG, by 2, 4 and 8).
#pragma once

#include <wincodec.h>
#include <windows.h>
#include <wrl/client.h>

#include <map>
#include <vector>

#include "base/bitmap.h"
#include "os/wic_source_transform_win.h"

namespace os {

class ReducedDecoding {
 public:
  // `size`: of the frame.
  ReducedDecoding(const Microsoft::WRL::ComPtr<IWICBitmapFrameDecode>& frame, base::PixelSize size);

  // 1, and whatever else the decoder offers.
  std::vector<int> reductions() const;

  // Of the picture at one of the reductions above 1.
  base::PixelSize size(int reduction) const { return sizes_.at(reduction); }

  // As PictureSource::readRows. Row 0 decodes the whole reduced picture, which later rows are taken from.
  bool readRows(int reduction, int top, int count, base::Pixel* pixels);

 private:
  bool decode(int reduction);

  Microsoft::WRL::ComPtr<SourceTransform> transform_;
  WICPixelFormatGUID format_{};
  std::map<int, base::PixelSize> sizes_;
  std::vector<BYTE> decoded_;
  int decodedReduction_ = 0;
};

}  // namespace os

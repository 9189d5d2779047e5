// The picture decoders of Windows (WIC).
#pragma once

#include "os/picture_decoder.h"

namespace os {

// COM must be initialised on the thread that opens and reads, for as long as a source lives.
class PictureDecoderWin final : public PictureDecoder {
 public:
  std::unique_ptr<PictureSource> open(const std::string& path) override;
};

}  // namespace os

// A large photograph on its way to the screen, beside the machine's decoder alone.
#include <wincodec.h>
#include <windows.h>
#include <wrl/client.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "bench/bench_stage_win.h"
#include "bench/bench_table.h"
#include "bench/heap_count_win.h"
#include "bench/rows.h"
#include "bench/screen.h"
#include "os/files_win.h"
#include "os/picture_decoder_win.h"
#include "os/utf16_win.h"
#include "pictures/picture.h"
#include "pictures/picture_loader.h"
#include "saver/surround.h"
#include "support/temporary_folder_win.h"
#include "support/wic_encoder_win.h"

namespace bench {

namespace {

using Microsoft::WRL::ComPtr;

void Check(HRESULT result) {
  if (FAILED(result)) throw std::runtime_error("the decoder refused a picture of the benchmark");
}

// Every pixel in the decoder's own format, a few rows at a time, so that nothing is paid for but decoding.
void DecodeAlone(const std::string& path) {
  ComPtr<IWICImagingFactory> factory;
  ComPtr<IWICBitmapDecoder> decoder;
  ComPtr<IWICBitmapFrameDecode> frame;
  Check(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&factory)));
  Check(factory->CreateDecoderFromFilename(os::ToWide(path).c_str(), nullptr, GENERIC_READ,
                                           WICDecodeMetadataCacheOnDemand, &decoder));
  Check(decoder->GetFrame(0, &frame));
  UINT width = 0;
  UINT height = 0;
  Check(frame->GetSize(&width, &height));
  constexpr UINT kRows = 16;
  std::vector<BYTE> rows(std::size_t{kRows} * width * 4);
  for (UINT top = 0; top < height; top += kRows) {
    const WICRect band{0, static_cast<INT>(top), static_cast<INT>(width),
                       static_cast<INT>(std::min(kRows, height - top))};
    Check(frame->CopyPixels(&band, width * 4, static_cast<UINT>(rows.size()), rows.data()));
  }
}

// The program's whole way of a file to the screen.
class Way {
 public:
  void show(const std::string& path) {
    const pictures::SharedPicture file = loader_.open(path);
    if (!file) throw std::runtime_error("a picture of the benchmark cannot be opened");
    const base::PixelSize size = file->size();
    const base::PixelSize shown{kScreen.height * size.width / size.height, kScreen.height};
    base::SharedBitmap drawn = file->drawnAt(shown);
    if (!drawn) throw std::runtime_error("a picture of the benchmark cannot be decoded");
    stage_.picture.setVisible(false);
    stage_.placePicture({(kScreen.width - shown.width) / 2, 0, shown.width, shown.height});
    stage_.picture.setVisible(true);
    stage_.picture.setPicture(pictures::MakePicture(std::move(drawn)));
    stage_.stage.flush();
  }

  void clear() {
    stage_.picture.setPicture(nullptr);
    stage_.stage.flush();
  }

  long long shownBytes() const {
    return stage_.picture.pixelRect().area() * static_cast<long long>(sizeof(base::Pixel));
  }

 private:
  os::FilesWin heads_;
  os::PictureDecoderWin decoder_;
  pictures::FilePictureLoader loader_{heads_, decoder_};
  BenchStage stage_{kScreen};
};

void BenchPhotograph(const std::string& name, base::PixelSize size) {
  const support::TemporaryFolder folder;
  const std::string path = folder.path() + "\\photograph.jpg";
  os::FilesWin().replace(path, support::Encode(PhotoLike(size), support::EncodedAs::jpeg));
  Way way;
  PrintRow("load, shrink and compose a " + name + " JPEG at 1920 x 1080", "the decoder alone, every pixel",
           TimeRatio([&] { way.show(path); }, [&] { DecodeAlone(path); }), "<= 1.25 times");
  way.clear();
  const long long before = HeldHeap();
  ResetPeakHeap();
  way.show(path);
  PrintRow("memory held at the peak of that, the decoder's own apart", "the pixels shown",
           static_cast<double>(PeakHeap() - before) / static_cast<double>(way.shownBytes()), "<= 3 times");
  const base::Bitmap shown = PhotoLike({kScreen.height * size.width / size.height, kScreen.height});
  PrintRow("a blurred surround at 1920 x 1080", "decoding a " + name + " JPEG, every pixel",
           TimeRatio([&] { saver::MakeSurround(shown, kScreen); }, [&] { DecodeAlone(path); }),
           "<= 0.2 times");
}

}  // namespace

void BenchPictures() {
  BenchPhotograph("12-megapixel", {4000, 3000});
  BenchPhotograph("48-megapixel", {8000, 6000});
}

}  // namespace bench

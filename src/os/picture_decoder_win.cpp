#include "os/picture_decoder_win.h"

#include <wincodec.h>
#include <windows.h>
#include <wrl/client.h>

#include "os/open_file_win.h"
#include "os/reduced_decoding_win.h"

namespace os {

namespace {

using Microsoft::WRL::ComPtr;

// A picture read through a converter to 32-bit pixels. The file stays open as long as the decoder may read.
class WicSource final : public PictureSource {
 public:
  WicSource(FileHandle file, ComPtr<IWICBitmapDecoder> decoder, ComPtr<IWICBitmapFrameDecode> frame,
            ComPtr<IWICFormatConverter> pixels, base::PixelSize size, bool hasAlpha)
      : file_(std::move(file)),
        decoder_(std::move(decoder)),
        pixels_(std::move(pixels)),
        size_(size),
        hasAlpha_(hasAlpha),
        reduced_(frame, size) {}

  base::PixelSize size() const override { return size_; }
  bool hasAlpha() const override { return hasAlpha_; }
  std::vector<int> reductions() const override { return reduced_.reductions(); }

  base::PixelSize reducedSize(int reduction) const override {
    return reduction == 1 ? size_ : reduced_.size(reduction);
  }

  bool readRows(int reduction, int top, int count, base::Pixel* pixels) override {
    if (reduction != 1) return reduced_.readRows(reduction, top, count, pixels);
    const WICRect rows{0, top, size_.width, count};
    const UINT stride = static_cast<UINT>(size_.width) * sizeof(base::Pixel);
    return SUCCEEDED(pixels_->CopyPixels(&rows, stride, stride * static_cast<UINT>(count),
                                         reinterpret_cast<BYTE*>(pixels)));
  }

 private:
  FileHandle file_;  // first, so that it is closed last
  ComPtr<IWICBitmapDecoder> decoder_;
  ComPtr<IWICFormatConverter> pixels_;
  base::PixelSize size_;
  bool hasAlpha_;
  ReducedDecoding reduced_;
};

// Formats with colours of their own for each picture carry transparency in those.
bool PaletteHasAlpha(IWICImagingFactory& factory, IWICBitmapFrameDecode& frame) {
  ComPtr<IWICPalette> palette;
  BOOL hasAlpha = FALSE;
  return SUCCEEDED(factory.CreatePalette(&palette)) && SUCCEEDED(frame.CopyPalette(palette.Get())) &&
         SUCCEEDED(palette->HasAlpha(&hasAlpha)) && hasAlpha != FALSE;
}

bool HasAlpha(IWICImagingFactory& factory, IWICBitmapFrameDecode& frame) {
  WICPixelFormatGUID format{};
  ComPtr<IWICComponentInfo> component;
  if (FAILED(frame.GetPixelFormat(&format)) || FAILED(factory.CreateComponentInfo(format, &component))) {
    return true;  // unknown: whoever reads the rows looks at every alpha
  }
  ComPtr<IWICPixelFormatInfo2> info;
  component.As(&info);
  BOOL transparent = TRUE;
  WICPixelFormatNumericRepresentation numbers = WICPixelFormatNumericRepresentationUnspecified;
  if (!info || FAILED(info->SupportsTransparency(&transparent))) return true;
  if (SUCCEEDED(info->GetNumericRepresentation(&numbers)) &&
      numbers == WICPixelFormatNumericRepresentationIndexed) {
    return PaletteHasAlpha(factory, frame);
  }
  return transparent != FALSE;
}

ComPtr<IWICFormatConverter> Convert(IWICImagingFactory& factory, IWICBitmapFrameDecode& frame,
                                    bool hasAlpha) {
  ComPtr<IWICFormatConverter> converter;
  const WICPixelFormatGUID& format = hasAlpha ? GUID_WICPixelFormat32bppBGRA : GUID_WICPixelFormat32bppBGR;
  if (FAILED(factory.CreateFormatConverter(&converter)) ||
      FAILED(converter->Initialize(&frame, format, WICBitmapDitherTypeNone, nullptr, 0,
                                   WICBitmapPaletteTypeCustom))) {
    return {};
  }
  return converter;
}

}  // namespace

std::unique_ptr<PictureSource> PictureDecoderWin::open(const std::string& path) {
  FileHandle file = OpenForReading(path);
  if (!file.isOpen()) return nullptr;
  ComPtr<IWICImagingFactory> factory;
  ComPtr<IWICBitmapDecoder> decoder;
  ComPtr<IWICBitmapFrameDecode> frame;
  UINT width = 0;
  UINT height = 0;
  if (FAILED(
          CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&factory))) ||
      FAILED(factory->CreateDecoderFromFileHandle(reinterpret_cast<ULONG_PTR>(file.get()), nullptr,
                                                  WICDecodeMetadataCacheOnDemand, &decoder)) ||
      FAILED(decoder->GetFrame(0, &frame)) || FAILED(frame->GetSize(&width, &height))) {
    return nullptr;
  }
  const bool hasAlpha = HasAlpha(*factory.Get(), *frame.Get());
  ComPtr<IWICFormatConverter> pixels = Convert(*factory.Get(), *frame.Get(), hasAlpha);
  if (!pixels) return nullptr;
  const base::PixelSize size{static_cast<int>(width), static_cast<int>(height)};
  return std::make_unique<WicSource>(std::move(file), std::move(decoder), std::move(frame), std::move(pixels),
                                     size, hasAlpha);
}

}  // namespace os

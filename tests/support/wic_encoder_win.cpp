#include "support/wic_encoder_win.h"

#include <wincodec.h>
#include <windows.h>
#include <wrl/client.h>

namespace support {

namespace {

using Microsoft::WRL::ComPtr;

std::string BytesOf(IStream& stream) {
  STATSTG facts{};
  stream.Stat(&facts, STATFLAG_NONAME);
  std::string bytes(static_cast<std::size_t>(facts.cbSize.QuadPart), '\0');
  stream.Seek({}, STREAM_SEEK_SET, nullptr);
  ULONG got = 0;
  stream.Read(bytes.data(), static_cast<ULONG>(bytes.size()), &got);
  bytes.resize(got);
  return bytes;
}

// Three or four bytes a pixel, as the encoder's format has them.
std::string Packed(const base::Bitmap& pixels, bool hasAlpha) {
  std::string bytes;
  for (int y = 0; y < pixels.size().height; ++y) {
    for (int x = 0; x < pixels.size().width; ++x) {
      for (int shift = 0; shift < (hasAlpha ? 32 : 24); shift += 8) {
        bytes += static_cast<char>(pixels.at(x, y) >> shift & 0xFF);
      }
    }
  }
  return bytes;
}

}  // namespace

std::string Encode(const base::Bitmap& pixels, EncodedAs kind) {
  const bool isPng = kind == EncodedAs::png;
  const GUID& container = isPng                     ? GUID_ContainerFormatPng
                          : kind == EncodedAs::tiff ? GUID_ContainerFormatTiff
                                                    : GUID_ContainerFormatJpeg;
  const UINT width = static_cast<UINT>(pixels.size().width);
  const UINT height = static_cast<UINT>(pixels.size().height);
  WICPixelFormatGUID format = isPng ? GUID_WICPixelFormat32bppBGRA : GUID_WICPixelFormat24bppBGR;
  std::string bytes = Packed(pixels, isPng);
  ComPtr<IWICImagingFactory> factory;
  ComPtr<IStream> stream;
  ComPtr<IWICBitmapEncoder> encoder;
  ComPtr<IWICBitmapFrameEncode> frame;
  const bool done =
      SUCCEEDED(
          CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&factory))) &&
      SUCCEEDED(CreateStreamOnHGlobal(nullptr, TRUE, &stream)) &&
      SUCCEEDED(factory->CreateEncoder(container, nullptr, &encoder)) &&
      SUCCEEDED(encoder->Initialize(stream.Get(), WICBitmapEncoderNoCache)) &&
      SUCCEEDED(encoder->CreateNewFrame(&frame, nullptr)) && SUCCEEDED(frame->Initialize(nullptr)) &&
      SUCCEEDED(frame->SetSize(width, height)) && SUCCEEDED(frame->SetPixelFormat(&format)) &&
      SUCCEEDED(frame->WritePixels(height, width * (isPng ? 4 : 3), static_cast<UINT>(bytes.size()),
                                   reinterpret_cast<BYTE*>(bytes.data()))) &&
      SUCCEEDED(frame->Commit()) && SUCCEEDED(encoder->Commit());
  return done ? BytesOf(*stream.Get()) : std::string();
}

ComScope::ComScope() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
ComScope::~ComScope() { CoUninitialize(); }

}  // namespace support

// The decoders' interface for shrinking while they decode, which the MinGW headers lack.
#pragma once

#include <wincodec.h>
#include <windows.h>

namespace os {

// IWICBitmapSourceTransform of the platform's documentation: the methods in the order of their table.
struct SourceTransform : public IUnknown {
  // The whole picture for a null rectangle, at a size that GetClosestSize gave; `transform` is a
  // WICBitmapTransformOptions value.
  virtual HRESULT STDMETHODCALLTYPE CopyPixels(const WICRect* area, UINT width, UINT height,
                                               WICPixelFormatGUID* format, int transform, UINT stride,
                                               UINT bufferSize, BYTE* buffer) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetClosestSize(UINT* width, UINT* height) = 0;
  virtual HRESULT STDMETHODCALLTYPE GetClosestPixelFormat(WICPixelFormatGUID* format) = 0;
  virtual HRESULT STDMETHODCALLTYPE DoesSupportTransform(int transform, BOOL* supported) = 0;

 protected:
  ~SourceTransform() = default;
};

}  // namespace os

__CRT_UUID_DECL(os::SourceTransform, 0x3B16811B, 0x6A43, 0x4EC9, 0xB7, 0x13, 0x3D, 0x5A, 0x0C, 0x13, 0xB9,
                0x40)

#include "os/picture_endings_win.h"

#include <objbase.h>
#include <wincodec.h>
#include <wrl/client.h>

#include <string_view>

#include "os/utf16_win.h"

namespace os {

namespace {

using Microsoft::WRL::ComPtr;

// The component system on a thread that may have it already.
class ComponentsOfThread {
 public:
  ComponentsOfThread() : began_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED))) {}
  ~ComponentsOfThread() {
    if (began_) CoUninitialize();
  }
  ComponentsOfThread(const ComponentsOfThread&) = delete;
  ComponentsOfThread& operator=(const ComponentsOfThread&) = delete;

 private:
  bool began_;
};

// Splits ".jpg,.jpeg". Not every system writes the commas that the documentation names.
void AppendEndings(std::vector<std::string>& endings, std::string_view list) {
  while (!list.empty()) {
    const std::size_t separator = list.find_first_of(",;");
    endings.emplace_back(list.substr(0, separator));
    list = separator == std::string_view::npos ? std::string_view() : list.substr(separator + 1);
  }
}

std::string EndingsOf(const ComPtr<IUnknown>& component) {
  ComPtr<IWICBitmapCodecInfo> codec;
  component.As(&codec);
  UINT size = 0;
  if (!codec || FAILED(codec->GetFileExtensions(0, nullptr, &size)) || size == 0) return {};
  std::wstring list(size, L'\0');
  if (FAILED(codec->GetFileExtensions(size, list.data(), &size))) return {};
  list.resize(list.find(L'\0'));
  return FromWide(list);
}

}  // namespace

std::vector<std::string> DecodersPictureEndings() {
  const ComponentsOfThread components;
  std::vector<std::string> endings;
  ComPtr<IWICImagingFactory> factory;
  ComPtr<IEnumUnknown> decoders;
  if (FAILED(
          CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&factory))) ||
      FAILED(factory->CreateComponentEnumerator(WICDecoder, WICComponentEnumerateDefault, &decoders))) {
    return endings;
  }
  for (;;) {
    ComPtr<IUnknown> component;
    ULONG fetched = 0;
    if (decoders->Next(1, &component, &fetched) != S_OK || fetched == 0) return endings;
    AppendEndings(endings, EndingsOf(component));
  }
}

}  // namespace os

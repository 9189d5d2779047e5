#include "support/fake_picture_decoder.h"

#include <algorithm>

#include "base/resample.h"

namespace support {

namespace {

class FakeSource : public os::PictureSource {
 public:
  FakeSource(FakePictureDecoder& decoder, FakeStoredPicture& picture) : decoder_(decoder), picture_(picture) {
    ++decoder_.openSources;
  }
  ~FakeSource() override { --decoder_.openSources; }

  base::PixelSize size() const override { return picture_.pixels.size(); }
  bool hasAlpha() const override { return picture_.hasAlpha; }
  std::vector<int> reductions() const override { return picture_.reductions; }

  base::PixelSize reducedSize(int reduction) const override {
    const base::PixelSize size = picture_.pixels.size();
    return {(size.width + reduction - 1) / reduction, (size.height + reduction - 1) / reduction};
  }

  bool readRows(int reduction, int top, int count, base::Pixel* pixels) override {
    picture_.reads.push_back({reduction, top, count});
    if (picture_.brokenReductions.contains(reduction)) return false;
    if (picture_.brokenFromRow >= 0 && top + count > picture_.brokenFromRow) return false;
    const base::Bitmap reduced = base::Resample(picture_.pixels, reducedSize(reduction));
    for (int y = top; y < top + count; ++y)
      pixels = std::copy_n(reduced.row(y), reduced.size().width, pixels);
    return true;
  }

 private:
  FakePictureDecoder& decoder_;
  FakeStoredPicture& picture_;
};

}  // namespace

std::unique_ptr<os::PictureSource> FakePictureDecoder::open(const std::string& path) {
  opened.push_back(path);
  const auto found = pictures.find(path);
  if (found == pictures.end()) return nullptr;
  return std::make_unique<FakeSource>(*this, found->second);
}

}  // namespace support

// A picture decoder with pictures in memory that remembers what was asked of it.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "os/picture_decoder.h"

namespace support {

// What one fake picture is like, with what was asked of it.
struct FakeStoredPicture {
  base::Bitmap pixels;  // straight
  bool hasAlpha = false;
  std::vector<int> reductions = {1};
  int brokenFromRow = -1;          // rows from here on cannot be decoded; -1: none is broken
  std::set<int> brokenReductions;  // these announce themselves and then fail

  struct Read {
    int reduction;
    int top;
    int count;
    bool operator==(const Read&) const = default;
  };
  std::vector<Read> reads;
};

class FakePictureDecoder : public os::PictureDecoder {
 public:
  std::unique_ptr<os::PictureSource> open(const std::string& path) override;

  std::map<std::string, FakeStoredPicture> pictures;
  std::vector<std::string> opened;
  int openSources = 0;  // sources that are alive
};

}  // namespace support

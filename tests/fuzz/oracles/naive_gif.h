// The blocks of a GIF file up to its first frame (GIF89a, sections 17 to 26), walked in the plainest way, and
// the colours of that frame's pixels.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

struct NaiveGif {
  int screenWidth = 0;
  int screenHeight = 0;
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool interlaced = false;
  std::string colors;    // of the frame, else of the file: red, green, blue
  int transparent = -1;  // the index of no colour, or -1
  std::size_t data = 0;  // offset of the code size before the pixels
  int codeSize = -1;     // -1 where the file ends
  std::string codes;     // the sub-blocks behind it, joined

  // What an index shows, straight alpha: black beyond the table, a grey where there is no table.
  std::uint32_t colorOf(std::uint8_t index) const;

  // The rows of the frame in the order in which the file has them, each as its distance from the frame's top.
  std::vector<int> rowsOfFile() const;
};

// Nothing where no frame with an area and all its colours is described. What the standard leaves open: zeros
// between blocks are passed over; of several graphic controls, and of several sub-blocks in one, the last
// with four bytes or more counts; every other extension is passed over, whatever its label.
std::optional<NaiveGif> NaiveFirstFrame(std::string_view file);

}  // namespace fuzz

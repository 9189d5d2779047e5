// What the headers of a program file say.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace e2e {

struct PeSection {
  std::string name;
  std::uint32_t characteristics = 0;
};

struct PeImage {
  std::uint16_t characteristics = 0;
  std::uint16_t dllCharacteristics = 0;
  std::uint32_t relocationBytes = 0;
  std::vector<PeSection> sections;
  std::vector<std::string> imports;  // names of libraries, in lower case, delayed ones too
};

// Of a program of 32 or 64 bits. Throws std::out_of_range for bytes that are none.
PeImage ReadPeImage(std::string_view bytes);

}  // namespace e2e

#include "e2e/pe_image.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace e2e {

namespace {

constexpr std::size_t kOptionalHeader = 24;  // from the signature
// The optional header of a program of 32 and of 64 bits: its mark, and where its directories begin.
constexpr unsigned kMark32 = 0x10B;
constexpr unsigned kMark64 = 0x20B;
constexpr std::size_t kDirectories32 = 96;
constexpr std::size_t kDirectories64 = 112;
constexpr std::size_t kSectionBytes = 40;
constexpr unsigned kImports = 1;
constexpr unsigned kRelocations = 5;
constexpr unsigned kDelayedImports = 13;

struct Section {
  std::uint32_t address;
  std::uint32_t size;
  std::uint32_t offset;
};

class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) {
    signature_ = number(0x3C, 4);
    const std::uint32_t mark = number(signature_ + kOptionalHeader, 2);
    if (bytes_.substr(signature_, 2) != "PE" || (mark != kMark32 && mark != kMark64))
      throw std::out_of_range("no program");
    directories_ = signature_ + kOptionalHeader + (mark == kMark64 ? kDirectories64 : kDirectories32);
  }

  PeImage read() {
    PeImage image;
    image.characteristics = static_cast<std::uint16_t>(number(signature_ + 22, 2));
    const std::size_t optional = signature_ + kOptionalHeader;
    image.dllCharacteristics = static_cast<std::uint16_t>(number(optional + 70, 2));
    const std::size_t table = optional + number(signature_ + 20, 2);
    for (std::size_t i = 0; i < number(signature_ + 6, 2); ++i) {
      const std::size_t at = table + i * kSectionBytes;
      image.sections.push_back({std::string(bytes_.substr(at, 8)), number(at + 36, 4)});
      sections_.push_back({number(at + 12, 4), number(at + 16, 4), number(at + 20, 4)});
    }
    image.relocationBytes = number(directory(kRelocations) + 4, 4);
    addImports(image, kImports, 20, 12);
    addImports(image, kDelayedImports, 32, 4);
    return image;
  }

 private:
  std::uint32_t number(std::size_t at, int size) const {
    std::uint32_t value = 0;
    for (int i = size - 1; i >= 0; --i) {
      value = value << 8 | static_cast<unsigned char>(bytes_.at(at + static_cast<std::size_t>(i)));
    }
    return value;
  }

  std::size_t directory(unsigned which) const { return directories_ + std::size_t{8} * which; }

  std::size_t offsetOf(std::uint32_t address) const {
    for (const Section& section : sections_) {
      if (address >= section.address && address - section.address < section.size)
        return address - section.address + section.offset;
    }
    throw std::out_of_range("an address in no section");
  }

  void addImports(PeImage& image, unsigned which, std::size_t entryBytes, std::size_t nameAt) const {
    const std::uint32_t address = number(directory(which), 4);
    if (address == 0) return;
    for (std::size_t at = offsetOf(address);; at += entryBytes) {
      const std::uint32_t nameAddress = number(at + nameAt, 4);
      if (nameAddress == 0) return;
      const std::size_t from = offsetOf(nameAddress);
      std::string name(bytes_.substr(from, bytes_.find('\0', from) - from));
      std::transform(name.begin(), name.end(), name.begin(),
                     [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
      image.imports.push_back(std::move(name));
    }
  }

  std::string_view bytes_;
  std::size_t signature_ = 0;
  std::size_t directories_ = 0;
  std::vector<Section> sections_;
};

}  // namespace

PeImage ReadPeImage(std::string_view bytes) { return Reader(bytes).read(); }

}  // namespace e2e

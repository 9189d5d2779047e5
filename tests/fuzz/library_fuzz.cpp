// The files in which the show remembers, of any bytes: taken whole or not at all.
#include <string>

#include "fuzz/input.h"
#include "fuzz/require.h"
#include "library/picture_index.h"
#include "library/show_state.h"

namespace {

void CheckSeal(std::string_view bytes) {
  const library::SealKind kind{'T', 1};
  if (const auto unsealed = library::Unseal(kind, bytes)) {
    fuzz::Require(library::Seal(kind, unsealed->serial, unsealed->payload) == bytes,
                  "what is taken is what would be written");
  }
  const std::string sealed = library::Seal(kind, 1, bytes);
  const auto unsealed = library::Unseal(kind, sealed);
  fuzz::Require(unsealed && unsealed->payload == bytes && unsealed->serial == 1, "any payload comes back");
  const std::size_t cut = bytes.empty() ? 0 : static_cast<unsigned char>(bytes[0]) % sealed.size();
  fuzz::Require(!library::Unseal(kind, std::string_view(sealed).substr(0, cut)), "a cut file is not taken");
}

void CheckPayloads(std::string_view payload) {
  if (const auto state = library::ShowStateOf(payload)) {
    fuzz::Require(library::PayloadOf(*state) == payload, "a state is written as it was read");
  }
  if (const auto listings = library::PictureIndexOf(payload)) {
    fuzz::Require(library::PictureIndexOf(library::PayloadOf(*listings)) == listings,
                  "an index reads back as it was read");
  }
}

// Paths between line ends come back, whatever they hold.
void CheckPaths(std::string_view text) {
  library::FolderListing listing{.folder = "C:\\", .subfolders = true, .pictures = {}};
  library::ShowState state;
  while (!text.empty()) listing.pictures.emplace_back(fuzz::TakeField(text, '\n'));
  state.hidden = listing.pictures;
  fuzz::Require(library::PictureIndexOf(library::PayloadOf(std::vector{listing})) == std::vector{listing},
                "listed pictures come back");
  fuzz::Require(library::ShowStateOf(library::PayloadOf(state)) == state, "hidden pictures come back");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = fuzz::Text(data, size);
  CheckSeal(bytes);
  CheckPayloads(bytes);
  CheckPaths(bytes);
  return 0;
}

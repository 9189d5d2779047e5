// Pictures as a shuffled deck: each comes once before any comes again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace library {

// Where a picture stands in the round with this seed. Paths that differ only in the case of A to Z are one
// picture's.
std::uint64_t PlaceInRound(std::uint64_t roundSeed, std::string_view path);

// How far a show has come: the picture that was shown last, and its round. The picture may be none, and may
// have been shown in no round.
struct DeckPosition {
  std::uint64_t roundSeed = 0;  // 0 = no round
  std::string lastPath;

  bool operator==(const DeckPosition&) const = default;
};

struct Dealt {
  std::size_t index = 0;  // of the picture in the list; the first, when the list has it several times
  std::uint64_t roundSeed = 0;
};

// The picture that comes after a position; nothing when the list has no picture. A round's order is that of
// the pictures' places in it, so it needs no list of its own: a picture that has gone leaves no gap, and a
// new one stands where its place is. When the round has ended a seed for the next one is drawn, whose first
// picture is not the one that was shown last as long as there is another. Empty paths are no pictures.
std::optional<Dealt> DealNext(std::span<const std::string> paths, const DeckPosition& position,
                              const std::function<std::uint64_t()>& drawSeed);

}  // namespace library

#include "library/deck.h"

#include "base/text.h"
#include "library/path_hash.h"

namespace library {

namespace {

// A seed that leads a round in with the last picture is drawn again; with two pictures that is one in two.
constexpr std::uint64_t kMostDraws = 64;

// A picture's card: ordered by its place, and by its name where two places should ever be the same.
struct Card {
  std::uint64_t place = 0;
  std::size_t index = 0;
};

int CompareNames(std::string_view a, std::string_view b) {
  return base::AsciiLower(a).compare(base::AsciiLower(b));
}

bool ComesBefore(const Card& card, std::string_view path, std::uint64_t place, std::string_view other) {
  return card.place != place ? card.place < place : CompareNames(path, other) < 0;
}

bool ComesAfter(const Card& card, std::string_view path, std::uint64_t place, std::string_view other) {
  return card.place != place ? card.place > place : CompareNames(path, other) > 0;
}

// The first picture of a round behind `last`; behind nothing when that is empty.
std::optional<std::size_t> FirstBehind(std::span<const std::string> paths, std::uint64_t roundSeed,
                                       std::string_view last) {
  const std::uint64_t lastPlace = PlaceInRound(roundSeed, last);
  std::optional<Card> first;
  for (std::size_t i = 0; i < paths.size(); ++i) {
    if (paths[i].empty()) continue;
    const Card card{PlaceInRound(roundSeed, paths[i]), i};
    if (!last.empty() && !ComesAfter(card, paths[i], lastPlace, last)) continue;
    if (!first || ComesBefore(card, paths[i], first->place, paths[first->index])) first = card;
  }
  return first ? std::optional(first->index) : std::nullopt;
}

}  // namespace

std::uint64_t PlaceInRound(std::uint64_t roundSeed, std::string_view path) {
  return Scramble(PathHash(path) ^ Scramble(roundSeed));
}

std::optional<Dealt> DealNext(std::span<const std::string> paths, const DeckPosition& position,
                              const std::function<std::uint64_t()>& drawSeed) {
  if (position.roundSeed != 0 && !position.lastPath.empty()) {
    if (const auto next = FirstBehind(paths, position.roundSeed, position.lastPath))
      return Dealt{*next, position.roundSeed};
  }
  std::optional<Dealt> dealt;
  for (std::uint64_t draw = 0; draw < kMostDraws; ++draw) {
    // The count goes in too, so that a source that repeats itself cannot bring the same round again.
    const std::uint64_t seed = Scramble(drawSeed() + draw);
    const auto first = FirstBehind(paths, seed, {});
    if (!first) return std::nullopt;
    dealt = Dealt{*first, seed};
    if (!base::EqualAsciiBlind(paths[*first], position.lastPath)) break;
    // Only one picture, however often the list has it: it follows itself.
    if (!FirstBehind(paths, seed, paths[*first])) break;
  }
  return dealt;
}

}  // namespace library

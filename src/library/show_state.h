// What the show remembers for the next one.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "library/deck.h"
#include "library/kept_file.h"
#include "library/sealed.h"

namespace library {

inline constexpr SealKind kShowStateKind{'S', 1};
inline constexpr const char* kShowStateName = "lumora.state";

struct ShowState {
  DeckPosition position;            // round and last picture
  std::uint32_t lastIndex = 0;      // where the last picture stood in the list, for when it has gone
  std::vector<std::string> hidden;  // paths of pictures that are not to be shown

  bool operator==(const ShowState&) const = default;
};

std::string PayloadOf(const ShowState& state);

// Nothing for a payload that no show wrote.
std::optional<ShowState> ShowStateOf(std::string_view payload);

// What the file of this name and kind holds; an empty state when no show has written one.
ShowState LoadShowState(KeptFile& file);

// Where the last picture stands in the first `count` of the list; `count` when it has gone. Of a list that
// has it several times the place where it was shown counts.
std::size_t IndexOfLast(const std::vector<std::string>& paths, std::size_t count, const ShowState& state);

// With which picture of the list a show goes on, in the order of the list: the one after the last; where the
// last has gone, the one that moved up into its place; behind the end, the first.
std::size_t IndexToGoOnWith(const std::vector<std::string>& paths, std::size_t count, const ShowState& state);

}  // namespace library

#include "library/show_state.h"

#include <algorithm>
#include <limits>

#include "base/text.h"

namespace library {

std::string PayloadOf(const ShowState& state) {
  PayloadWriter writer;
  writer.number(state.position.roundSeed);
  writer.text(state.position.lastPath);
  writer.number(state.lastIndex);
  writer.number(state.hidden.size());
  for (const std::string& path : state.hidden) writer.text(path);
  return writer.payload();
}

std::optional<ShowState> ShowStateOf(std::string_view payload) {
  PayloadReader reader(payload);
  ShowState state;
  state.position.roundSeed = reader.number();
  state.position.lastPath = reader.text();
  const std::uint64_t lastIndex = reader.number();
  if (lastIndex > std::numeric_limits<std::uint32_t>::max()) return std::nullopt;
  state.lastIndex = static_cast<std::uint32_t>(lastIndex);
  const std::uint64_t hidden = reader.number();
  for (std::uint64_t i = 0; i < hidden && reader.isWhole(); ++i) state.hidden.emplace_back(reader.text());
  if (!reader.isWhole() || !reader.isAtEnd()) return std::nullopt;
  return state;
}

std::size_t IndexToGoOnWith(const std::vector<std::string>& paths, std::size_t count,
                            const ShowState& state) {
  const std::string& last = state.position.lastPath;
  if (count == 0 || last.empty()) return 0;
  const auto isLast = [&](std::size_t i) { return i < count && base::EqualAsciiBlind(paths[i], last); };
  // The place first: a list may have a picture several times.
  std::size_t next = state.lastIndex;
  if (isLast(next)) {
    ++next;
  } else {
    const auto end = paths.begin() + static_cast<std::ptrdiff_t>(count);
    const auto found = std::find_if(
        paths.begin(), end, [&](const std::string& path) { return base::EqualAsciiBlind(path, last); });
    if (found != end) next = static_cast<std::size_t>(found - paths.begin()) + 1;
  }
  return next < count ? next : 0;
}

}  // namespace library

#include "library/show_state.h"

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

ShowState LoadShowState(KeptFile& file) {
  const std::optional<std::string> payload = file.load();
  return payload ? ShowStateOf(*payload).value_or(ShowState()) : ShowState();
}

std::size_t IndexOfLast(const std::vector<std::string>& paths, std::size_t count, const ShowState& state) {
  const auto isLast = [&](std::size_t i) { return base::EqualAsciiBlind(paths[i], state.position.lastPath); };
  if (state.position.lastPath.empty()) return count;
  if (state.lastIndex < count && isLast(state.lastIndex)) return state.lastIndex;
  std::size_t index = 0;
  while (index < count && !isLast(index)) ++index;
  return index;
}

std::size_t IndexToGoOnWith(const std::vector<std::string>& paths, std::size_t count,
                            const ShowState& state) {
  if (state.position.lastPath.empty()) return 0;
  const std::size_t last = IndexOfLast(paths, count, state);
  const std::size_t next = last < count ? last + 1 : state.lastIndex;
  return next < count ? next : 0;
}

}  // namespace library

#include "dialog/awaited_pictures.h"

#include <algorithm>
#include <utility>

namespace dialog {

AwaitedPictures::~AwaitedPictures() {
  for (const std::optional<Awaited>& awaited : places_) {
    if (awaited && awaited->ticket) loader_->drop(*awaited->ticket);
  }
}

bool AwaitedPictures::isFor(Place place, const std::string& path) const {
  const std::optional<Awaited>& awaited = places_[static_cast<std::size_t>(place)];
  return awaited && awaited->wish.path == path;
}

void AwaitedPictures::wish(Place place, pictures::AheadLoader& loader, pictures::Wish wish,
                           pictures::AheadLoader::Answer answer) {
  drop(place);
  loader_ = &loader;
  at(place).emplace(Awaited{std::move(wish), std::move(answer), std::nullopt});
  handOver();
}

void AwaitedPictures::drop(Place place) {
  const std::optional<Awaited> dropped = std::exchange(at(place), std::nullopt);
  if (!dropped || !dropped->ticket) return;
  loader_->drop(*dropped->ticket);
  handOver();
}

void AwaitedPictures::handOver() {
  const auto isHanded = [](const std::optional<Awaited>& awaited) { return awaited && awaited->ticket; };
  auto handed = static_cast<std::size_t>(std::ranges::count_if(places_, isHanded));
  for (std::size_t place = 0; place < kPlaces && handed < pictures::AheadLoader::kMostWishes; ++place) {
    std::optional<Awaited>& awaited = places_[place];
    if (!awaited || awaited->ticket) continue;
    awaited->ticket = loader_->wish(awaited->wish, [this, place](pictures::SharedPicture picture) {
      answered(place, std::move(picture));
    });
    ++handed;
  }
}

void AwaitedPictures::answered(std::size_t place, pictures::SharedPicture picture) {
  const auto answer = std::move(places_[place]->answer);
  places_[place].reset();
  handOver();
  answer(std::move(picture));
}

}  // namespace dialog

// The pictures that the parts of the dialog wait for.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "pictures/ahead_loader.h"

namespace dialog {

// One picture a place: what is wished later takes the turn of what was wished before. The loader gets no more
// of them at a time than it takes, so that none is pushed out. At its end nothing is waited for any more.
class AwaitedPictures {
 public:
  enum class Place { Viewer, Preview, Background };  // in the order of their turns

  AwaitedPictures() = default;
  ~AwaitedPictures();
  AwaitedPictures(const AwaitedPictures&) = delete;
  AwaitedPictures& operator=(const AwaitedPictures&) = delete;

  bool isFor(Place place, const std::string& path) const;

  // The loader is the same each time, and outlives this.
  void wish(Place place, pictures::AheadLoader& loader, pictures::Wish wish,
            pictures::AheadLoader::Answer answer);

  void drop(Place place);

 private:
  struct Awaited {
    pictures::Wish wish;
    pictures::AheadLoader::Answer answer;
    std::optional<pictures::AheadLoader::Ticket> ticket;  // nothing: the loader has not got it yet
  };
  static constexpr std::size_t kPlaces = 3;

  std::optional<Awaited>& at(Place place) { return places_[static_cast<std::size_t>(place)]; }
  void handOver();
  void answered(std::size_t place, pictures::SharedPicture picture);

  pictures::AheadLoader* loader_ = nullptr;
  std::array<std::optional<Awaited>, kPlaces> places_;
};

}  // namespace dialog

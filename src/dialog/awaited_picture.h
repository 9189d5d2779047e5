// A picture that a part of the dialog waits for.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "pictures/ahead_loader.h"

namespace dialog {

// One at a time: what is wished later takes the place of what was wished before. At its end nothing is waited
// for any more.
class AwaitedPicture {
 public:
  AwaitedPicture() = default;
  ~AwaitedPicture() { drop(); }
  AwaitedPicture(const AwaitedPicture&) = delete;
  AwaitedPicture& operator=(const AwaitedPicture&) = delete;

  bool isFor(const std::string& path) const { return awaited_ && awaited_->path == path; }

  // The loader outlives this.
  void wish(pictures::AheadLoader& loader, pictures::Wish wish, pictures::AheadLoader::Answer answer) {
    drop();
    std::string path = wish.path;
    const auto ticket = loader.wish(std::move(wish), [this, answer = std::move(answer)](auto picture) {
      awaited_.reset();
      answer(std::move(picture));
    });
    awaited_.emplace(Awaited{&loader, std::move(path), ticket});
  }

  void drop() {
    if (awaited_) awaited_->loader->drop(awaited_->ticket);
    awaited_.reset();
  }

 private:
  struct Awaited {
    pictures::AheadLoader* loader;
    std::string path;
    pictures::AheadLoader::Ticket ticket;
  };

  std::optional<Awaited> awaited_;
};

}  // namespace dialog

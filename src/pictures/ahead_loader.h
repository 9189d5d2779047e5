// Pictures that are made ready beside the user-interface thread.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "os/event_loop.h"
#include "os/worker.h"
#include "pictures/picture.h"

namespace pictures {

// A picture file, and what is to be made of it.
struct Wish {
  // Makes of the opened file what will be shown; null when that cannot be had. Runs on the loader's thread,
  // so it uses nothing but the picture and what it holds itself, and what it makes does not need the file.
  using Prepare = std::function<SharedPicture(const Picture& file)>;

  std::string path;
  base::PixelSize
      box;  // in which the picture will be shown: with the path, it says which wishes are the same
  Prepare prepare;

  bool isSameAs(const Wish& other) const { return path == other.path && box == other.box; }
};

// A picture of its own size that is drawn at `shown` already: asked for that size it gives those pixels,
// asked for another it resamples them. Never reads the file again: of its facts it has those that it is
// given. Null when the file cannot be drawn.
SharedPicture DrawAhead(const Picture& file, base::PixelSize shown, PictureFacts facts = {});

// Everything of it but the jobs runs on the user-interface thread, and so does every answer, from the event
// loop. One thread loads, one picture at a time. A thread that does not come back in time is left to itself,
// for it hangs in the system, and another takes its place; nothing ever waits for it.
class AheadLoader {
 public:
  // The picture as it was wished, or null when it cannot be had, or not in time.
  using Answer = std::function<void(SharedPicture picture)>;
  using Ticket = std::int64_t;

  static constexpr int kPatienceMs = 10'000;  // for one picture, from the moment when it is begun
  static constexpr std::size_t kMostWishes =
      2;  // that stand at a time, dropped ones aside, if no more are allowed
  static constexpr std::size_t kMostHanging = 8;  // threads left to themselves at a time

  // Whether there is a file at a path, whatever it holds.
  using IsThere = std::function<bool(const std::string& path)>;

  // The loader is used on the loading threads alone, and lives as long as one of them does; so is `isThere`,
  // which is asked about what cannot be opened, if there is one.
  AheadLoader(std::shared_ptr<PictureLoader> loader, os::EventLoop& loop, os::MakeWorker makeWorker,
              IsThere isThere = nullptr);
  ~AheadLoader();
  AheadLoader(const AheadLoader&) = delete;
  AheadLoader& operator=(const AheadLoader&) = delete;

  // Each wish is answered once, but for those that are dropped. When more would stand than are allowed, the
  // oldest of those that have not been begun is dropped.
  Ticket wish(Wish wish, Answer answer);

  // How many wishes may stand from now on, for more than one screen.
  void allowWishes(std::size_t most) { mostWishes_ = most; }

  // The wish is not answered any more. A picture that is being loaded for it is loaded to its end.
  void drop(Ticket ticket);

  // Nothing is begun, answered or passed over any more; wishes and drops are noted. A picture that is being
  // loaded is loaded to its end.
  void rest();

  // Goes on after a rest. The picture that is waited for gets its whole time anew: its disk may have slept
  // too.
  void goOn();

  // Told of what cannot be shown, before the answer of null.
  std::function<void(const std::string& path, PictureFailure failure)> onFailure;

 private:
  struct Standing {
    Ticket ticket;
    Wish wish;
    Answer answer;  // null: dropped
  };
  struct Made {
    SharedPicture picture;
    PictureFailure failure = PictureFailure::NotOpened;
  };
  struct Hanging {
    std::int64_t job;
    Wish wish;
    std::shared_ptr<Made> made;
    std::unique_ptr<os::Worker> worker;
  };
  struct Kept {
    Wish wish;
    SharedPicture picture;
  };

  // What the first wish waits for.
  enum class Waiting {
    Nothing,  // it has not been begun
    Job,      // the worker
    Hanging,  // a thread that hangs with the same wish
    Refusal,  // too many threads hang
    Kept,     // nothing more: the picture that was kept is its answer
  };

  void beginFirst();
  Waiting waitingForFirst() const;
  void startJob(const Wish& wish);
  void jobDone(std::int64_t job);
  void arrivedLate(const std::deque<Hanging>::iterator& hanging);
  void patienceEnded();
  void startPatience();
  void answerFirst(SharedPicture picture, PictureFailure failure);
  bool hangsWith(const Wish& wish) const;

  std::shared_ptr<PictureLoader> loader_;
  os::EventLoop& loop_;
  os::MakeWorker makeWorker_;
  IsThere isThere_;
  std::deque<Standing> standing_;
  Waiting waiting_ = Waiting::Nothing;
  std::optional<os::EventLoop::TimerId> patience_;
  std::unique_ptr<os::Worker> worker_;  // made when it is first needed
  std::shared_ptr<Made> made_;          // by the worker's job
  std::deque<Hanging> hanging_;
  std::optional<Kept> kept_;  // came too late for its wish, and waits for the next one
  std::size_t mostWishes_ = kMostWishes;
  bool rests_ = false;
  std::deque<std::int64_t> doneMeanwhile_;  // jobs whose end is to be told after the rest
  std::int64_t lastJob_ = 0;
  Ticket lastTicket_ = 0;
};

}  // namespace pictures

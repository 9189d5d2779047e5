#include "pictures/ahead_loader.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace pictures {

namespace {

constexpr int kAtOnceMs = 1;

class DrawnPicture final : public Picture {
 public:
  DrawnPicture(base::PixelSize size, base::SharedBitmap drawn, PictureFacts facts)
      : size_(size), drawn_(MakePicture(std::move(drawn))), facts_(std::move(facts)) {}

  base::PixelSize size() const override { return size_; }
  base::SharedBitmap drawnAt(base::PixelSize size) const override { return drawn_->drawnAt(size); }
  PictureFacts facts() const override { return facts_; }

 private:
  base::PixelSize size_;
  SharedPicture drawn_;
  PictureFacts facts_;
};

}  // namespace

SharedPicture DrawAhead(const Picture& file, base::PixelSize shown, PictureFacts facts) {
  base::SharedBitmap drawn = file.drawnAt(shown);
  return drawn ? std::make_shared<DrawnPicture>(file.size(), std::move(drawn), std::move(facts)) : nullptr;
}

AheadLoader::AheadLoader(std::shared_ptr<PictureLoader> loader, os::EventLoop& loop,
                         os::MakeWorker makeWorker, IsThere isThere)
    : loader_(std::move(loader)),
      loop_(loop),
      makeWorker_(std::move(makeWorker)),
      isThere_(std::move(isThere)) {}

AheadLoader::~AheadLoader() {
  if (patience_) loop_.stopTimer(*patience_);
}

AheadLoader::Ticket AheadLoader::wish(Wish wish, Answer answer) {
  const Ticket ticket = ++lastTicket_;
  const bool isUnderWay = waiting_ != Waiting::Nothing;
  if (isUnderWay && !standing_.front().answer && standing_.front().wish.isSameAs(wish)) {
    // Dropped and wished again meanwhile: what is being loaded is the answer.
    standing_.front().ticket = ticket;
    standing_.front().answer = std::move(answer);
    return ticket;
  }
  standing_.push_back({ticket, std::move(wish), std::move(answer)});
  const bool isDroppedUnderWay = isUnderWay && !standing_.front().answer;
  if (standing_.size() - (isDroppedUnderWay ? 1 : 0) > mostWishes_) {
    standing_.erase(standing_.begin() + (isUnderWay ? 1 : 0));
  }
  beginFirst();
  return ticket;
}

void AheadLoader::drop(Ticket ticket) {
  const auto dropped = std::ranges::find(standing_, ticket, &Standing::ticket);
  if (dropped == standing_.end()) return;
  if (dropped == standing_.begin() && waiting_ != Waiting::Nothing) {
    dropped->answer = nullptr;
  } else {
    standing_.erase(dropped);
  }
}

void AheadLoader::beginFirst() {
  if (rests_ || standing_.empty() || waiting_ != Waiting::Nothing) return;
  waiting_ = waitingForFirst();
  if (waiting_ == Waiting::Job) startJob(standing_.front().wish);
  startPatience();
}

void AheadLoader::startPatience() {
  const bool isAnswered = waiting_ == Waiting::Kept || waiting_ == Waiting::Refusal;
  patience_ = loop_.startTimer(isAnswered ? kAtOnceMs : kPatienceMs, [this] { patienceEnded(); });
}

void AheadLoader::rest() {
  rests_ = true;
  if (patience_) loop_.stopTimer(*std::exchange(patience_, std::nullopt));
}

void AheadLoader::goOn() {
  if (!std::exchange(rests_, false)) return;
  if (waiting_ != Waiting::Nothing) startPatience();
  // In whose answers it may be told to rest again.
  while (!rests_ && !doneMeanwhile_.empty()) {
    const std::int64_t job = doneMeanwhile_.front();
    doneMeanwhile_.pop_front();
    jobDone(job);
  }
  beginFirst();
}

AheadLoader::Waiting AheadLoader::waitingForFirst() const {
  const Wish& wish = standing_.front().wish;
  if (kept_ && kept_->wish.isSameAs(wish)) return Waiting::Kept;
  if (hangsWith(wish)) return Waiting::Hanging;
  if (!worker_ && hanging_.size() >= kMostHanging) return Waiting::Refusal;
  return Waiting::Job;
}

bool AheadLoader::hangsWith(const Wish& wish) const {
  return std::ranges::any_of(hanging_, [&](const Hanging& hanging) { return hanging.wish.isSameAs(wish); });
}

void AheadLoader::startJob(const Wish& wish) {
  if (!worker_) worker_ = makeWorker_();
  made_ = std::make_shared<Made>();
  const std::int64_t job = ++lastJob_;
  worker_->run(
      [loader = loader_, isThere = isThere_, path = wish.path, prepare = wish.prepare, made = made_] {
        try {
          const SharedPicture file = loader->open(path);
          if (!file) {
            if (isThere && !isThere(path)) made->failure = PictureFailure::Missing;
            return;
          }
          made->failure = PictureFailure::NotDrawn;
          made->picture = prepare(*file);
        } catch (const std::exception&) {
          made->picture = nullptr;  // too large for this machine at this moment
        }
      },
      [this, job] { jobDone(job); });
}

void AheadLoader::jobDone(std::int64_t job) {
  if (rests_) {
    doneMeanwhile_.push_back(job);
    return;
  }
  const auto late = std::ranges::find(hanging_, job, &Hanging::job);
  if (late != hanging_.end()) {
    arrivedLate(late);
    return;
  }
  const std::shared_ptr<Made> made = std::exchange(made_, nullptr);
  answerFirst(made->picture, made->failure);
}

void AheadLoader::arrivedLate(const std::deque<Hanging>::iterator& hanging) {
  Hanging back = std::move(*hanging);
  hanging_.erase(hanging);
  if (!worker_) worker_ = std::move(back.worker);
  const bool isAwaited = waiting_ == Waiting::Hanging && standing_.front().wish.isSameAs(back.wish);
  if (isAwaited) {
    answerFirst(back.made->picture, back.made->failure);
  } else if (back.made->picture) {
    kept_ = Kept{std::move(back.wish), back.made->picture};
  }
}

void AheadLoader::patienceEnded() {
  if (waiting_ == Waiting::Kept) {
    const SharedPicture picture = std::exchange(kept_, std::nullopt)->picture;
    answerFirst(picture, PictureFailure::Late);
    return;
  }
  if (waiting_ == Waiting::Job) {
    hanging_.push_back({lastJob_, standing_.front().wish, std::exchange(made_, nullptr), std::move(worker_)});
  }
  answerFirst(nullptr, PictureFailure::Late);
}

void AheadLoader::answerFirst(SharedPicture picture, PictureFailure failure) {
  loop_.stopTimer(*std::exchange(patience_, std::nullopt));
  const Standing answered = std::move(standing_.front());
  standing_.pop_front();
  waiting_ = Waiting::Nothing;
  beginFirst();
  // Whoever is told may wish again.
  if (!answered.answer) return;
  if (!picture && onFailure) onFailure(answered.wish.path, failure);
  answered.answer(std::move(picture));
}

}  // namespace pictures

#include "os/worker_thread.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <utility>

namespace os {

namespace {

std::atomic<int> threadsLeftBehind = 0;

}  // namespace

// What worker and thread share. Everything in it is guarded by the mutex but for what the thread alone uses.
struct WorkerThread::Desk {
  std::mutex mutex;
  std::condition_variable changed;
  std::function<void()> job;  // handed over, not begun
  std::function<void()> done;
  bool busy = false;  // from the handing over of a job to its end
  bool left = false;  // the worker is gone
  Post post;
  Surroundings surroundings;
};

WorkerThread::WorkerThread(Post post, Surroundings surroundings) : desk_(std::make_shared<Desk>()) {
  desk_->post = std::move(post);
  desk_->surroundings = std::move(surroundings);
  thread_ = std::jthread([desk = desk_] { work(desk); });
}

WorkerThread::~WorkerThread() {
  bool busy = false;
  {
    const std::lock_guard lock(desk_->mutex);
    desk_->left = true;
    desk_->job = nullptr;
    desk_->done = nullptr;  // given up on this thread, which it belongs to
    busy = desk_->busy;
    if (busy) ++threadsLeftBehind;
  }
  desk_->changed.notify_one();
  if (busy) thread_.detach();  // else it is only waiting, and ends at once
}

void WorkerThread::run(std::function<void()> job, std::function<void()> done) {
  {
    const std::lock_guard lock(desk_->mutex);
    desk_->job = std::move(job);
    desk_->done = std::move(done);
    desk_->busy = true;
  }
  desk_->changed.notify_one();
}

void WorkerThread::work(const std::shared_ptr<Desk>& desk) {
  const std::shared_ptr<void> surroundings = desk->surroundings ? desk->surroundings() : nullptr;
  std::unique_lock lock(desk->mutex);
  while (true) {
    desk->changed.wait(lock, [&] { return desk->left || desk->job; });
    if (desk->job) {
      std::function<void()> job = std::exchange(desk->job, nullptr);
      lock.unlock();
      job();
      job = nullptr;  // what it holds is given up on this thread
      lock.lock();
      if (!desk->left) desk->post([desk] { tellDone(*desk); });
    }
    if (desk->left) {
      if (desk->busy) --threadsLeftBehind;
      return;
    }
    desk->busy = false;
  }
}

// On the user-interface thread, where the worker may have been given up since the news was sent.
void WorkerThread::tellDone(Desk& desk) {
  std::function<void()> done;
  {
    const std::lock_guard lock(desk.mutex);
    done = std::exchange(desk.done, nullptr);
  }
  if (done) done();
}

int WorkerThread::leftBehind() { return threadsLeftBehind; }

}  // namespace os

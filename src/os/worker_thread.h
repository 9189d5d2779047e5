// A thread that waits for jobs.
#pragma once

#include <functional>
#include <memory>
#include <thread>

#include "os/worker.h"

namespace os {

class WorkerThread final : public Worker {
 public:
  // Hands an event to the user-interface thread, from any thread.
  using Post = std::function<void(std::function<void()> event)>;

  // What the thread needs as long as it lives, made and given up on the thread itself; may be null.
  using Surroundings = std::function<std::shared_ptr<void>()>;

  // `post` must be callable as long as the worker lives, and is not called after that.
  WorkerThread(Post post, Surroundings surroundings);
  ~WorkerThread() override;
  WorkerThread(const WorkerThread&) = delete;
  WorkerThread& operator=(const WorkerThread&) = delete;

  void run(std::function<void()> job, std::function<void()> done) override;

  // Threads whose worker is gone and whose job has not come to its end: the system holds them. A program that
  // wants to end must not wait for them.
  static int leftBehind();

 private:
  struct Desk;

  static void work(const std::shared_ptr<Desk>& desk);
  static void tellDone(Desk& desk);

  std::shared_ptr<Desk> desk_;  // shared with the thread, which may outlive the worker
  std::jthread thread_;
};

}  // namespace os

// Work beside the user-interface thread.
#pragma once

#include <functional>
#include <memory>

namespace os {

// Does one job at a time. Destroying it never waits: a job that is under way goes on by itself, and nobody is
// told of its end.
class Worker {
 public:
  virtual ~Worker() = default;

  // Runs `job` on a thread of the worker's own and then `done` in the event loop of the user-interface
  // thread. Not to be called again before `done`. The job throws nothing, and touches nothing that could be
  // given up while it runs.
  virtual void run(std::function<void()> job, std::function<void()> done) = 0;
};

using MakeWorker = std::function<std::unique_ptr<Worker>()>;

}  // namespace os

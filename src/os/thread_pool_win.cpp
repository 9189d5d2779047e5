#include "os/thread_pool_win.h"

#include <windows.h>

#include <algorithm>
#include <atomic>
#include <exception>
#include <memory>
#include <mutex>
#include <thread>

namespace os {

namespace {

// The parts of one piece of work, given out in their order.
class Parts {
 public:
  Parts(int count, const std::function<void(int part)>& run) : run_(run), count_(count) {}

  void takeAll() noexcept {
    try {
      for (int part = next_++; part < count_; part = next_++) run_(part);
    } catch (...) {
      const std::lock_guard lock(mutex_);
      error_ = std::current_exception();
    }
  }

  // When nobody takes any more.
  void throwError() const {
    if (error_) std::rethrow_exception(error_);
  }

 private:
  const std::function<void(int part)>& run_;
  int count_;
  std::atomic<int> next_ = 0;
  std::mutex mutex_;
  std::exception_ptr error_;
};

struct WorkCloser {
  void operator()(TP_WORK* work) const { CloseThreadpoolWork(work); }
};

void CALLBACK Help(PTP_CALLBACK_INSTANCE, void* parts, PTP_WORK) { static_cast<Parts*>(parts)->takeAll(); }

}  // namespace

void RunOnAllProcessors(int count, const std::function<void(int part)>& run) {
  static const int processors = static_cast<int>(std::thread::hardware_concurrency());
  const int helpers = std::min(processors, count) - 1;
  Parts parts(count, run);
  // Without memory for help, this thread does it all.
  const std::unique_ptr<TP_WORK, WorkCloser> work(helpers > 0 ? CreateThreadpoolWork(Help, &parts, nullptr)
                                                              : nullptr);
  for (int i = 0; work && i < helpers; ++i) SubmitThreadpoolWork(work.get());
  parts.takeAll();
  if (work) WaitForThreadpoolWorkCallbacks(work.get(), TRUE);
  parts.throwError();
}

}  // namespace os

#include "startup/workers_win.h"

#include <objbase.h>
#include <windows.h>

#include <memory>
#include <utility>

#include "os/mailbox_win.h"
#include "os/worker_thread.h"

namespace startup {

namespace {

// A component of the system is initialised by the thread that uses it.
class ComponentThread {
 public:
  ComponentThread() { CoInitializeEx(nullptr, COINIT_MULTITHREADED | COINIT_DISABLE_OLE1DDE); }
  ~ComponentThread() { CoUninitialize(); }
  ComponentThread(const ComponentThread&) = delete;
  ComponentThread& operator=(const ComponentThread&) = delete;
};

}  // namespace

os::MakeWorker MakeWorkers(os::EventLoop& loop) {
  return [mailbox = std::make_shared<os::MailboxWin>(loop)] {
    return std::make_unique<os::WorkerThread>(
        [box = mailbox.get()](std::function<void()> event) { box->post(std::move(event)); },
        [] { return std::make_shared<ComponentThread>(); });
  };
}

}  // namespace startup

#include "startup/loading_win.h"

#include <objbase.h>
#include <windows.h>

#include <utility>

#include "os/files_win.h"
#include "os/mailbox_win.h"
#include "os/picture_decoder_win.h"
#include "os/worker_thread.h"
#include "pictures/picture_loader.h"

namespace startup {

namespace {

// Owned by the jobs that use it: a thread that hangs keeps what it needs.
struct LoadingParts {
  os::FilesWin files;
  os::PictureDecoderWin decoder;
  pictures::FilePictureLoader loader{files, decoder};
};

// The decoder is a component of the system, initialised by the thread that uses it.
class ComponentThread {
 public:
  ComponentThread() { CoInitializeEx(nullptr, COINIT_MULTITHREADED | COINIT_DISABLE_OLE1DDE); }
  ~ComponentThread() { CoUninitialize(); }
  ComponentThread(const ComponentThread&) = delete;
  ComponentThread& operator=(const ComponentThread&) = delete;
};

}  // namespace

std::unique_ptr<pictures::AheadLoader> MakeAheadLoader(os::EventLoop& loop) {
  const auto parts = std::make_shared<LoadingParts>();
  const auto mailbox = std::make_shared<os::MailboxWin>(loop);  // goes with the loader
  const auto makeWorker = [mailbox] {
    return std::make_unique<os::WorkerThread>(
        [box = mailbox.get()](std::function<void()> event) { box->post(std::move(event)); },
        [] { return std::make_shared<ComponentThread>(); });
  };
  const std::shared_ptr<pictures::PictureLoader> loader(parts, &parts->loader);
  return std::make_unique<pictures::AheadLoader>(
      loader, loop, makeWorker, [parts](const std::string& path) { return parts->files.exists(path); });
}

void EndLoading(std::unique_ptr<pictures::AheadLoader> loader) {
  loader.reset();
  if (os::WorkerThread::leftBehind() > 0) TerminateProcess(GetCurrentProcess(), 0);
}

}  // namespace startup

#include "startup/loading_win.h"

#include <windows.h>

#include <utility>

#include "os/files_win.h"
#include "os/picture_decoder_win.h"
#include "os/worker_thread.h"
#include "pictures/picture_loader.h"
#include "startup/workers_win.h"

namespace startup {

namespace {

// Owned by the jobs that use it: a thread that hangs keeps what it needs.
struct LoadingParts {
  os::FilesWin files;
  os::PictureDecoderWin decoder;
  pictures::FilePictureLoader loader{files, decoder};
};

}  // namespace

std::unique_ptr<pictures::AheadLoader> MakeAheadLoader(os::EventLoop& loop) {
  const auto parts = std::make_shared<LoadingParts>();
  const std::shared_ptr<pictures::PictureLoader> loader(parts, &parts->loader);
  return std::make_unique<pictures::AheadLoader>(
      loader, loop, MakeWorkers(loop),
      [parts](const std::string& path) { return parts->files.exists(path); });
}

std::unique_ptr<pictures::AheadLoader> MakeThumbnailLoader(os::EventLoop& loop,
                                                           std::shared_ptr<pictures::Thumbnails> kept,
                                                           base::PixelSize small, base::PixelSize large) {
  const auto parts = std::make_shared<LoadingParts>();
  return std::make_unique<pictures::AheadLoader>(
      std::make_shared<pictures::ThumbnailLoader>(
          std::shared_ptr<pictures::PictureLoader>(parts, &parts->loader), std::move(kept), small, large),
      loop, MakeWorkers(loop));
}

void EndLoading(std::unique_ptr<pictures::AheadLoader> loader) {
  loader.reset();
  if (os::WorkerThread::leftBehind() > 0) TerminateProcess(GetCurrentProcess(), 0);
}

}  // namespace startup

#include "startup/try_out.h"

#include <exception>
#include <utility>

#include "os/inner_loop.h"
#include "os/paths.h"
#include "os/read_only_files.h"
#include "settings/settings_file.h"
#include "startup/cursor_rules.h"

namespace startup {

namespace {

constexpr int kKeyLookMs = 20;

// A desktop of which the show changes nothing but the cursor.
class CursorAlone final : public os::Desktop {
 public:
  explicit CursorAlone(os::Desktop& desktop) : desktop_(desktop) {}

  int showCursor(bool show) override { return desktop_.showCursor(show); }
  void moveCursor(int x, int y) override { desktop_.moveCursor(x, y); }
  std::intptr_t findTaskbar() override { return 0; }
  void hideTaskbar(std::intptr_t) override {}
  void showTaskbar(std::intptr_t) override {}
  std::intptr_t findMarkedTaskbar() override { return 0; }
  void setScreenSaverRunning(bool) override {}

 private:
  os::Desktop& desktop_;
};

// The machine is that of the show for as long as this lives.
class OnStage {
 public:
  OnStage(const TryOutServices& services, const std::string& settings)
      : services_(services), folder_(services.files.currentFolder()) {
    services_.files.enterFolder(services_.programFolder);
    services_.setFarewell([&services, path = os::JoinPath(services.programFolder, "zbfaone.bak"), settings] {
      services.files.replace(path, settings);
    });
  }
  ~OnStage() {
    services_.setFarewell(nullptr);
    services_.files.enterFolder(folder_);
  }
  OnStage(const OnStage&) = delete;
  OnStage& operator=(const OnStage&) = delete;

 private:
  const TryOutServices& services_;
  std::string folder_;
};

// Folders are followed without an index of theirs.
saver::LibraryServices WithoutIndex(const saver::LibraryServices& library) {
  if (!library.follow) return {};
  return {.follow =
              [follow = library.follow](library::FollowRequest request) {
                request.indexFolders.clear();
                request.makeIndexFolder = nullptr;
                return follow(std::move(request));
              },
          .userFolder = library.userFolder,
          .makeUserFolder = nullptr};
}

void AwaitKeys(const TryOutServices& services) {
  const std::int64_t deadline = services.clock.tickMs() + kKeyPatienceMs;
  while (services.isKeyDown() && services.clock.tickMs() < deadline && !services.loop.isQuitting()) {
    services.loop.waitUntil(services.clock.tickMs() + kKeyLookMs);
  }
}

}  // namespace

void TryOut(const TryOutServices& services, const std::string& settings) {
  AwaitKeys(services);
  if (services.loop.isQuitting()) return;
  os::InnerLoop loop(services.loop);
  os::ReadOnlyFiles files(services.files, settings::IniPath(services.programFolder), settings);
  const OnStage stage(services, settings);
  CursorAlone desktop(services.desktop);
  SystemRestore restore(desktop);
  HideCursor(restore);
  const std::shared_ptr<void> show =
      services.startShow({loop, files, WithoutIndex(services.library), restore});
  loop.run();
}

}  // namespace startup

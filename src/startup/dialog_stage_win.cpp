#include "startup/dialog_stage_win.h"

#include <windows.h>

#include <exception>
#include <utility>

#include "os/ansi_code_page_win.h"
#include "os/clock_win.h"
#include "os/date_text.h"
#include "os/event_loop_win.h"
#include "os/files_win.h"
#include "os/screen_win.h"
#include "os/text_renderer_win.h"
#include "pictures/thumbnails.h"
#include "startup/loading_win.h"

namespace startup {

namespace {

// The machine, as the thread sees it.
struct LittleMachine {
  os::ClockWin clock;
  os::EventLoopWin loop{clock};
  os::FilesWin files;
  os::AnsiCodePageWin ansi;
  os::ScreenWin screen;
  std::unique_ptr<os::DateText> dates = os::MakeDateText();
  std::shared_ptr<pictures::Thumbnails> kept = std::make_shared<pictures::Thumbnails>();

  saver::MiniatureServices services() {
    return {files,
            ansi,
            clock,
            loop,
            screen,
            *dates,
            [](int dpi) { return std::make_unique<os::TextRendererWin>(dpi); },
            [this](base::PixelSize small, base::PixelSize large) {
              return MakeThumbnailLoader(loop, kept, small, large);
            }};
  }
};

}  // namespace

DialogStageWin::DialogStageWin(os::EventLoop& loop, const os::Clock& clock, const os::Screen& screen,
                               std::function<void(const std::string& settings)> tryOut)
    : news_(loop),
      show_(
          {loop, clock, screen, [this](Order order) { give(std::move(order)); }, seen_, std::move(tryOut)}) {}

DialogStageWin::~DialogStageWin() {
  const std::lock_guard lock(mutex_);
  hasEnded_ = true;
  if (wake_) wake_();
}

void DialogStageWin::give(Order order) {
  const std::lock_guard lock(mutex_);
  orders_.push_back(std::move(order));
  if (wake_) wake_();
  if (!thread_.joinable()) thread_ = std::jthread([this] { work(); });
}

// Where the thread cannot have what it needs, the views stay empty.
void DialogStageWin::work() {
  SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_BELOW_NORMAL);
  try {
    LittleMachine machine;
    machine.loop.setErrorHandler([](const std::exception&) {});
    LittleStage stage(machine.services(), seen_, [this] { news_.post([this] { show_.takeNews(); }); });
    os::MailboxWin mailbox(machine.loop);
    {
      const std::lock_guard lock(mutex_);
      wake_ = [&] { mailbox.post([&] { doOrders(machine.loop, stage); }); };
      wake_();
    }
    machine.loop.run();
    const std::lock_guard lock(mutex_);
    wake_ = nullptr;
  } catch (const std::exception&) {
    return;
  }
}

void DialogStageWin::doOrders(os::EventLoop& loop, LittleStage& stage) {
  std::deque<Order> orders;
  {
    const std::lock_guard lock(mutex_);
    orders.swap(orders_);
    if (hasEnded_) loop.quit();
  }
  for (const Order& order : orders) order(stage);
}

}  // namespace startup

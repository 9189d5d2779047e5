// Puts the program together: every seam with its real side, every run mode with what it shows.
#include <objbase.h>
#include <windows.h>

#include <memory>

#include "base/twips.h"
#include "dialog/dialog_win.h"
#include "os/ansi_code_page_win.h"
#include "os/clock_win.h"
#include "os/date_text.h"
#include "os/desktop.h"
#include "os/event_loop_win.h"
#include "os/files_win.h"
#include "os/foreign_window.h"
#include "os/instance.h"
#include "os/machine_facts.h"
#include "os/passwords.h"
#include "os/paths.h"
#include "os/picture_decoder_win.h"
#include "os/program_resources_win.h"
#include "os/screen_win.h"
#include "os/shell.h"
#include "os/system_library_win.h"
#include "os/text_renderer_win.h"
#include "pictures/picture_loader.h"
#include "saver/stage_window_win.h"
#include "startup/caption_example.h"
#include "startup/command_line.h"
#include "startup/crash_guard_win.h"
#include "startup/dialog_stage_win.h"
#include "startup/library_services_win.h"
#include "startup/loading_win.h"
#include "startup/main.h"
#include "startup/preview.h"
#include "startup/show.h"
#include "startup/try_out.h"
#include "startup/workers_win.h"

namespace {

// The picture decoder is a component of the system, used on this thread.
class ComponentScope {
 public:
  ComponentScope() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE); }
  ~ComponentScope() { CoUninitialize(); }
  ComponentScope(const ComponentScope&) = delete;
  ComponentScope& operator=(const ComponentScope&) = delete;
};

// The machine, as the program sees it.
struct Machine {
  ComponentScope components;
  os::ClockWin clock;
  os::EventLoopWin loop{clock};
  os::FilesWin files;
  os::FilesWin savedFiles{os::kSavePatienceMs};  // for the dialog, which saves what the user typed
  os::AnsiCodePageWin ansi;
  os::ScreenWin screen;
  std::unique_ptr<os::MachineFacts> facts = os::MakeMachineFacts();
  std::unique_ptr<os::Desktop> desktop = os::MakeDesktop();
  std::unique_ptr<os::Passwords> passwords = os::MakePasswords();
  std::unique_ptr<os::Instance> only = os::MakeInstance("LumoraScreenSaver");
  std::unique_ptr<os::DateText> dates = os::MakeDateText();
  os::PictureDecoderWin decoder;
  pictures::FilePictureLoader pictures{files, decoder};
  std::unique_ptr<pictures::AheadLoader> ahead = startup::MakeAheadLoader(loop);
  std::string programFolder = os::FolderOf(facts->programPath());
};

// The show, from its window to its way out; the system's changes pass through what restores them.
class SaverMode {
 public:
  SaverMode(Machine& machine, const startup::TriedServices& own, const os::SystemFacts& facts)
      : ahead_(startup::MakeAheadLoader(own.loop)),
        window_(own.loop),
        text_(machine.screen.dpi()),
        stage_(window_, text_, base::TwipsPerPixelForDpi(machine.screen.dpi())),
        show_({own.files, machine.ansi, machine.pictures, *ahead_, machine.clock, own.loop, machine.screen,
               own.restore, *machine.dates, stage_, window_, own.library,
               [this](saver::StageWindow& window) {
                 return std::make_unique<saver::Stage>(window, text_, stage_.twipsPerPixel());
               }},
              {*machine.passwords, own.restore, machine.screen}, own.restore, facts, machine.programFolder,
              [&loop = own.loop] { return std::make_unique<saver::StageWindowWin>(loop); }) {
    show_.start();
  }

  void rememberAfterCrash() noexcept { show_.rememberAfterCrash(); }
  const std::string& pictureToOpen() const { return show_.pictureToOpen(); }

 private:
  std::unique_ptr<pictures::AheadLoader> ahead_;
  saver::StageWindowWin window_;
  os::TextRendererWin text_;
  saver::Stage stage_;
  startup::Show show_;
};

bool IsAnyKeyDown() {
  constexpr int kFirstKey = VK_BACK;  // below it are the mouse's buttons
  constexpr int kLastKey = 0xFE;
  for (int key = kFirstKey; key <= kLastKey; ++key) {
    if (GetAsyncKeyState(key) < 0) return true;
  }
  return false;
}

void TryOut(Machine& machine, startup::CrashGuard& guard, const std::string& settings) {
  startup::TryOut(
      {machine.loop, machine.clock, machine.files, *machine.desktop, machine.programFolder,
       startup::MakeLibraryServices(),
       [&](const startup::TriedServices& own) {
         return std::make_shared<SaverMode>(machine, own, os::SystemFacts());
       },
       [&](std::function<void()> farewell) { guard.setFarewell(std::move(farewell)); }, IsAnyKeyDown},
      settings);
}

void DrawPreview(Machine& machine, const std::string& commandText) {
  const std::unique_ptr<os::ForeignWindow> window = os::MakeForeignWindow();
  startup::DrawPreview(commandText, startup::PreviewImage(os::ProgramData(startup::kPreviewImageResource)),
                       startup::LivePreviewSetting(machine.files, machine.ansi, machine.programFolder),
                       {*window, machine.loop, machine.clock, *machine.only}, [&] { machine.loop.quit(); });
}

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
  os::LoadLibrariesFromSystemFolderOnly();
  Machine machine;
  startup::SystemRestore restore(*machine.desktop);
  startup::CrashGuard guard(restore);
  std::unique_ptr<SaverMode> saver;
  std::unique_ptr<startup::DialogStageWin> live;
  std::unique_ptr<dialog::SettingsDialogWin> settings;
  const startup::RunModes modes{
      .showSaver =
          [&](const os::SystemFacts& facts) {
            machine.files.enterFolder(machine.programFolder);
            saver = std::make_unique<SaverMode>(
                machine,
                startup::TriedServices{machine.loop, machine.files, startup::MakeLibraryServices(), restore},
                facts);
            guard.setFarewell([&show = *saver] { show.rememberAfterCrash(); });
          },
      .showDialog =
          [&] {
            live = std::make_unique<startup::DialogStageWin>(
                machine.loop, machine.clock, machine.screen,
                [&](const std::string& tried) { TryOut(machine, guard, tried); });
            settings = std::make_unique<dialog::SettingsDialogWin>(
                dialog::DialogMachineWin{
                    machine.loop, machine.savedFiles, machine.ansi, machine.pictures, machine.ahead.get(),
                    startup::MakeWorkers(machine.loop),
                    [&](std::string_view captionTemplate) {
                      return startup::CaptionExample(captionTemplate, *machine.dates, machine.ansi);
                    },
                    startup::MakeHiddenPictures(machine.files, machine.programFolder), &live->show()},
                machine.programFolder);
          },
      .drawPreview = [&](const std::string& text) { DrawPreview(machine, text); }};
  startup::Main(startup::TextAfterProgramName(machine.facts->commandLine(), machine.facts->programPath()),
                {*machine.facts, *machine.only, *machine.passwords, restore, machine.screen}, modes);
  if (saver || settings) machine.loop.run();
  guard.setFarewell(nullptr);
  const std::string picture = saver ? saver->pictureToOpen() : std::string();
  saver.reset();
  settings.reset();
  live.reset();
  restore.restore();
  if (!picture.empty()) os::MakeShell()->openFolderOf(picture);
  startup::EndLoading(std::move(machine.ahead));
  return 0;
}

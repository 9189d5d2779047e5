// Puts the program together: every seam with its real side, every run mode with what it shows.
#include <objbase.h>
#include <windows.h>

#include <memory>

#include "base/twips.h"
#include "dialog/dialog_win.h"
#include "os/ansi_code_page_win.h"
#include "os/clock_win.h"
#include "os/cursor_win.h"
#include "os/date_text_win.h"
#include "os/event_loop_win.h"
#include "os/file_head_win.h"
#include "os/files_win.h"
#include "os/foreign_window_win.h"
#include "os/instance_win.h"
#include "os/library_search_win.h"
#include "os/passwords_win.h"
#include "os/picture_decoder_win.h"
#include "os/program_win.h"
#include "os/registry_win.h"
#include "os/screen_win.h"
#include "os/system_flags_win.h"
#include "os/system_version_win.h"
#include "os/taskbar_win.h"
#include "os/text_renderer_win.h"
#include "pictures/picture_loader.h"
#include "saver/stage_window_win.h"
#include "settings/settings_file.h"
#include "startup/command_line.h"
#include "startup/crash_guard_win.h"
#include "startup/main.h"
#include "startup/preview.h"
#include "startup/preview_image.h"
#include "startup/show.h"

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
  explicit Machine(HINSTANCE module) : instance(module) {}

  HINSTANCE instance;
  ComponentScope components;
  os::ClockWin clock;
  os::EventLoopWin loop{clock};
  os::FilesWin files;
  os::AnsiCodePageWin ansi;
  os::ProgramWin program;
  os::ScreenWin screen;
  os::SystemFlagsWin flags;
  os::CursorWin cursor;
  os::TaskbarWin taskbar;
  os::PasswordsWin passwords;
  os::RegistryWin registry;
  os::SystemVersionWin version;
  os::InstanceWin only{"LumoraScreenSaver"};
  std::unique_ptr<os::DateText> dates = os::MakeDateText();
  os::FileHeadWin heads;
  os::PictureDecoderWin decoder;
  pictures::FilePictureLoader pictures{heads, decoder};
};

// The show, from its window to its way out; the system's changes pass through `restore`.
class SaverMode {
 public:
  SaverMode(Machine& machine, startup::SystemRestore& restore, const os::SystemFacts& facts)
      : machine_(machine),
        window_(machine.instance, guard()),
        text_(machine.screen.dpi()),
        stage_(window_, text_, base::TwipsPerPixelForDpi(machine.screen.dpi())),
        show_({machine.files, machine.ansi, machine.pictures, machine.clock, machine.loop, machine.screen,
               restore, *machine.dates, stage_, window_},
              {machine.passwords, restore, machine.screen, restore, restore}, restore, facts,
              machine.program.folder(),
              [this] { return std::make_unique<saver::StageWindowWin>(machine_.instance, guard()); }) {
    show_.start();
  }

 private:
  saver::StageWindowWin::Guard guard() {
    return [this](const std::function<void()>& handler) { machine_.loop.dispatchGuarded(handler); };
  }

  Machine& machine_;
  saver::StageWindowWin window_;
  os::TextRendererWin text_;
  saver::Stage stage_;
  startup::Show show_;
};

void DrawPreview(Machine& machine, const std::string& commandText) {
  const settings::IniDocument document =
      settings::OpenSettings(machine.files, machine.ansi, machine.program.folder());
  os::ForeignWindowWin window;
  startup::DrawPreview(commandText, startup::PreviewImage(),
                       settings::ReadIniValue(document, "extras", "livePreview"),
                       {window, machine.loop, machine.clock, machine.only}, [&] { machine.loop.quit(); });
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
  os::LoadLibrariesFromSystemFolderOnly();
  Machine machine(instance);
  startup::SystemRestore restore(machine.taskbar, machine.cursor, machine.flags);
  const startup::CrashGuard guard(restore);
  std::unique_ptr<SaverMode> saver;
  std::unique_ptr<dialog::SettingsDialogWin> settings;
  const startup::RunModes modes{
      .showSaver =
          [&](const os::SystemFacts& facts) {
            machine.program.enterFolder();
            saver = std::make_unique<SaverMode>(machine, restore, facts);
          },
      .showDialog =
          [&] {
            settings = std::make_unique<dialog::SettingsDialogWin>(
                dialog::DialogMachineWin{machine.loop, machine.files, machine.ansi, machine.pictures},
                machine.program.folder());
          },
      .drawPreview = [&](const std::string& text) { DrawPreview(machine, text); }};
  startup::Main(
      startup::TextAfterProgramName(machine.program.commandLine(), machine.program.path()),
      {machine.version, machine.registry, machine.only, machine.passwords, restore, restore, machine.screen},
      modes);
  if (saver || settings) machine.loop.run();
  return 0;
}

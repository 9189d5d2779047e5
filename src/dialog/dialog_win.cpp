#include "dialog/dialog_win.h"

#include "dialog/form2.h"
#include "forms/dialogs_win.h"
#include "forms/window_system_win.h"

namespace dialog {

int RunDialog(const DialogMachineWin& machine, const std::string& programFolder) {
  os::EventLoopWin& loop = machine.loop;
  forms::WindowSystemWin windows(
      loop, [&loop](const std::function<void()>& event) { loop.dispatchGuarded(event); });
  forms::DialogsWin dialogs([&windows] { return windows.activeWindow(); });
  Form2 form({machine.files, machine.ansi, machine.pictures, dialogs, windows}, programFolder);
  form.onUnload = [&loop] { loop.quit(); };
  const int filter =
      loop.addMessageFilter([&windows](MSG& message) { return windows.filterMessage(message); });
  windows.show(form);
  loop.run();
  loop.removeMessageFilter(filter);
  windows.unload(form);
  return 0;
}

}  // namespace dialog

#include "os/display_power_win.h"

#include <cstring>

#include "os/system_library_win.h"

namespace os {

namespace {

// GUID_CONSOLE_DISPLAY_STATE; its value is 0 off, 1 on, 2 dimmed.
constexpr GUID kConsoleDisplayState{
    0x6FE69556, 0x704A, 0x47A0, {0x8F, 0x24, 0xC2, 0x8D, 0x93, 0x6F, 0xDA, 0x47}};
constexpr DWORD kOff = 0;

}  // namespace

std::shared_ptr<void> AskForDisplayPower(HWND window) {
  using Register = HPOWERNOTIFY(WINAPI*)(HANDLE recipient, LPCGUID setting, DWORD flags);
  using Unregister = BOOL(WINAPI*)(HPOWERNOTIFY notification);
  const auto ask = FindFunction<Register>(L"user32.dll", "RegisterPowerSettingNotification");
  const auto end = FindFunction<Unregister>(L"user32.dll", "UnregisterPowerSettingNotification");
  if (!ask || !end) return nullptr;
  const HPOWERNOTIFY asked = ask(window, &kConsoleDisplayState, DEVICE_NOTIFY_WINDOW_HANDLE);
  return asked ? std::shared_ptr<void>(asked, end) : nullptr;
}

std::optional<bool> DisplayIsOn(WPARAM event, LPARAM setting) {
  if (event != PBT_POWERSETTINGCHANGE || !setting) return std::nullopt;
  const auto* told = reinterpret_cast<const POWERBROADCAST_SETTING*>(setting);
  DWORD state = kOff;
  if (!IsEqualGUID(told->PowerSetting, kConsoleDisplayState) || told->DataLength < sizeof(state)) {
    return std::nullopt;
  }
  std::memcpy(&state, told->Data, sizeof(state));
  return state != kOff;
}

}  // namespace os

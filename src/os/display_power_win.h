// News of the display being switched off and on.
#pragma once

#include <windows.h>

#include <memory>
#include <optional>

namespace os {

// Asks the system to send a window the display's state as WM_POWERBROADCAST, the present one at once, for as
// long as the result lives. Null where the system does not know how (before Windows 8 the state is none that
// it tells, before Vista it tells none at all).
std::shared_ptr<void> AskForDisplayPower(HWND window);

// What a WM_POWERBROADCAST message says of the display: on (a dimmed one too) or off. Nothing when it speaks
// of something else.
std::optional<bool> DisplayIsOn(WPARAM event, LPARAM setting);

}  // namespace os

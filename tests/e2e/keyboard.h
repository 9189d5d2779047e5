// The user's keyboard, and which window has it.
#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace e2e {

// Real input, for whatever window has the keyboard.
void PressKey(WORD virtualKey);
void PressWith(WORD held, WORD virtualKey);  // one key while another is down
void TypeText(const std::wstring& text);     // whatever its letters

// Gives a window the keyboard where nobody has it: a display without a window manager at times gives that of
// a window that goes, or that another one was over, to nobody, where a manager would give it to the window
// behind.
void TakeKeyboardOfNobody(HWND window);

// What has the keyboard in the program of a window; null when nothing has.
HWND FocusIn(HWND window);

// Waits until the window takes keys: what was open over it has gone. Says what has the keyboard instead.
testing::AssertionResult WaitForKeyboard(HWND window);

// Presses a key, with another one held unless that is 0, on a window once it takes keys, and waits for what
// comes of it. The key is pressed again only where the keyboard has gone to nobody meanwhile.
testing::AssertionResult PressUntil(HWND window, const std::function<bool()>& happened, WORD virtualKey,
                                    WORD held = 0);

}  // namespace e2e

#include "e2e/pointer.h"

#include "e2e/running_program.h"

namespace e2e {

namespace {

// The pointer moves to a place of the primary screen.
INPUT PointerAt(int x, int y) {
  const base::PixelSize screen = ScreenSize();
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
  // Absolute positions run from 0 to 65535; half a pixel more lands inside the pixel.
  input.mi.dx = static_cast<LONG>((static_cast<long long>(x) * 65536 + 32768) / screen.width);
  input.mi.dy = static_cast<LONG>((static_cast<long long>(y) * 65536 + 32768) / screen.height);
  return input;
}

// The left button goes down and up, in an event as this one each.
void Click(const INPUT& event) {
  INPUT input[] = {event, event};
  input[0].mi.dwFlags |= MOUSEEVENTF_LEFTDOWN;
  input[1].mi.dwFlags |= MOUSEEVENTF_LEFTUP;
  SendInput(2, input, sizeof(INPUT));
}

bool has_strayed = false;

LRESULT CALLBACK OnPointerEvent(int code, WPARAM message, LPARAM details) {
  const auto& event = *reinterpret_cast<const MSLLHOOKSTRUCT*>(details);
  if (code == HC_ACTION && (event.flags & LLMHF_INJECTED) == 0) has_strayed = true;
  return CallNextHookEx(nullptr, code, message, details);
}

}  // namespace

void ClickMouse() {
  INPUT event{};
  event.type = INPUT_MOUSE;
  Click(event);
}

void ClickAt(int x, int y) {
  MoveMouseTo(x, y);
  // The place goes with each event: a move that the display reports late cannot lead the click elsewhere.
  Click(PointerAt(x, y));
}

void MoveMouseTo(int x, int y) {
  INPUT input = PointerAt(x, y);
  SendInput(1, &input, sizeof(INPUT));
}

StrayMoves::StrayMoves()
    : hook_(SetWindowsHookExW(WH_MOUSE_LL, OnPointerEvent, GetModuleHandleW(nullptr), 0)) {
  has_strayed = false;
}

StrayMoves::~StrayMoves() { UnhookWindowsHookEx(hook_); }

bool StrayMoves::any() const { return has_strayed; }

}  // namespace e2e

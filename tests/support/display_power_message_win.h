// The message by which the system tells a window of a display that went on or off.
#pragma once

#include <windows.h>

#include <cstring>

namespace support {

struct DisplayPowerMessage {
  // 0 off, 1 on, 2 dimmed.
  explicit DisplayPowerMessage(DWORD state, GUID setting = kConsoleDisplayState) {
    auto* told = reinterpret_cast<POWERBROADCAST_SETTING*>(bytes);
    told->PowerSetting = setting;
    told->DataLength = sizeof(state);
    std::memcpy(told->Data, &state, sizeof(state));
  }

  static constexpr GUID kConsoleDisplayState{
      0x6fe69556, 0x704a, 0x47a0, {0x8f, 0x24, 0xc2, 0x8d, 0x93, 0x6f, 0xda, 0x47}};

  alignas(POWERBROADCAST_SETTING) unsigned char bytes[sizeof(POWERBROADCAST_SETTING) + sizeof(DWORD)] = {};
};

}  // namespace support

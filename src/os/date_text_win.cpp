#include "os/date_text.h"

#include <windows.h>

#include <array>
#include <string_view>

#include "os/utf16_win.h"

namespace os {

namespace {

SYSTEMTIME ToSystemTime(const LocalTime& moment) {
  const auto word = [](int value) { return static_cast<WORD>(value); };
  return {.wYear = word(moment.year),
          .wMonth = word(moment.month),
          .wDayOfWeek = 0,  // not read
          .wDay = word(moment.day),
          .wHour = word(moment.hour),
          .wMinute = word(moment.minute),
          .wSecond = word(moment.second),
          .wMilliseconds = word(moment.millisecond)};
}

// Longer than any form that the regional settings let the user write (80 characters).
using FormBuffer = std::array<wchar_t, 256>;

// `length` counts the closing null; 0 = the system refused.
std::string TextOf(const FormBuffer& buffer, int length) {
  return length > 0 ? FromWide(std::wstring_view(buffer.data(), static_cast<std::size_t>(length) - 1)) : "";
}

class WindowsDateText final : public DateText {
 public:
  std::string date(const LocalTime& moment) const override {
    const SYSTEMTIME time = ToSystemTime(moment);
    FormBuffer buffer{};
    return TextOf(buffer, GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr,
                                          buffer.data(), static_cast<int>(buffer.size()), nullptr));
  }

  std::string time(const LocalTime& moment) const override { return timeText(moment, 0); }

  std::string timeToTheMinute(const LocalTime& moment) const override {
    return timeText(moment, TIME_NOSECONDS);
  }

 private:
  static std::string timeText(const LocalTime& moment, DWORD flags) {
    const SYSTEMTIME time = ToSystemTime(moment);
    FormBuffer buffer{};
    return TextOf(buffer, GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, flags, &time, nullptr, buffer.data(),
                                          static_cast<int>(buffer.size())));
  }
};

}  // namespace

std::unique_ptr<DateText> MakeDateText() { return std::make_unique<WindowsDateText>(); }

}  // namespace os

// Dates in the form of the United States: 6/15/2026 1:05:09 PM.
#pragma once

#include <string>

#include "os/date_text.h"

namespace support {

class FakeDateText : public os::DateText {
 public:
  std::string date(const os::LocalTime& t) const override {
    return std::to_string(t.month) + '/' + std::to_string(t.day) + '/' + std::to_string(t.year);
  }

  std::string time(const os::LocalTime& t) const override {
    const int hour = t.hour % 12 == 0 ? 12 : t.hour % 12;
    return std::to_string(hour) + ':' + twoDigits(t.minute) + ':' + twoDigits(t.second) +
           (t.hour < 12 ? " AM" : " PM");
  }

  std::string timeToTheMinute(const os::LocalTime& t) const override {
    const std::string whole = time(t);
    return whole.substr(0, whole.rfind(':')) + whole.substr(whole.size() - 3);
  }

 private:
  static std::string twoDigits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }
};

}  // namespace support

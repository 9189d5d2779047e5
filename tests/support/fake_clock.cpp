#include "support/fake_clock.h"

#include <chrono>

namespace support {

void FakeClock::advance(std::int64_t ms) {
  using namespace std::chrono;
  tickMs_ += ms;
  const sys_days day = year{now_.year} / now_.month / now_.day;
  const auto moment = sys_time<milliseconds>(day) + hours{now_.hour} + minutes{now_.minute} +
                      seconds{now_.second} + milliseconds{now_.millisecond + ms};
  const auto days = floor<std::chrono::days>(moment);
  const year_month_day date{days};
  const hh_mm_ss<milliseconds> time{moment - days};
  now_ = {static_cast<int>(date.year()),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())),
          static_cast<int>(time.hours().count()),
          static_cast<int>(time.minutes().count()),
          static_cast<int>(time.seconds().count()),
          static_cast<int>(time.subseconds().count())};
}

}  // namespace support

#include "os/date_text.h"

namespace os {

std::string GeneralDate(const DateText& form, const LocalTime& moment) {
  const bool midnight = moment.hour == 0 && moment.minute == 0 && moment.second == 0;
  return midnight ? form.date(moment) : form.date(moment) + ' ' + form.time(moment);
}

}  // namespace os

// How long a day of show takes when its clock is turned by hand: what an idle show costs, seen from outside.
#include <string>

#include "bench/bench_table.h"
#include "bench/rows.h"
#include "support/show_stage.h"

namespace bench {

void BenchDayOfShow() {
  const double day = MedianMs([] {
    support::ShowStage show({320, 240});
    for (int i = 0; i < 5; ++i) show.addPicture({100, 80}, base::Rgb(200, 40 * i, 0), "Picture");
    show.set("image/timeInterval", "60");
    show.start();
    show.runFor(24LL * 3600 * 1000);
  });
  PrintRow("a day of show on a clock turned by hand", "a day", 24.0 * 3600 * 1000 / day,
           "(times faster; no bar)");
}

}  // namespace bench

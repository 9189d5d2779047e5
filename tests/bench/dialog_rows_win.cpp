// The settings dialog on long picture lists.
#include <string>

#include "bench/bench_table.h"
#include "bench/rows.h"
#include "support/real_dialog_win.h"

namespace bench {

namespace {

double OpenDialogMs(int pictures) {
  return MedianMs([&] {
    support::DialogMachine machine;
    machine.set("total", "total", std::to_string(pictures));
    machine.pictures.add("C:\\p\\0.jpg", {64, 48}, base::Rgb(200, 80, 0));  // the one that is shown
    for (int i = 0; i < pictures; ++i)
      machine.set("images", std::to_string(i), "C:\\p\\" + std::to_string(i) + ".jpg");
    machine.writeSettings();
    const support::RealDialog dialog(machine);
  });
}

}  // namespace

void BenchDialog() {
  PrintRow("show the dialog on 30,000 pictures", "on 10 pictures", OpenDialogMs(30000) / OpenDialogMs(10),
           "<= 3 times");
}

}  // namespace bench

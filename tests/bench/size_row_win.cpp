// How large the program is.
#include <windows.h>

#include "bench/bench_table.h"
#include "bench/rows.h"
#include "e2e/program_folder.h"

namespace bench {

void BenchProgramSize() {
  WIN32_FILE_ATTRIBUTE_DATA facts{};
  GetFileAttributesExW((e2e::builtFolder + L"\\Lumora.scr").c_str(), GetFileExInfoStandard, &facts);
  PrintRow("Lumora.scr, stripped", "1 MiB", static_cast<double>(facts.nFileSizeLow) / (1 << 20), "<= 1.5");
}

}  // namespace bench

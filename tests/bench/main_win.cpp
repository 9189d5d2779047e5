// Prints the benchmark table.
#include <windows.h>

#include <cstdio>
#include <string_view>

#include "bench/bare_window.h"
#include "bench/rows.h"
#include "e2e/program_folder.h"
#include "os/utf16_win.h"
#include "support/wic_encoder_win.h"

namespace {

struct Group {
  const char* name;
  void (*print)();
};

constexpr Group kGroups[] = {
    {"start", bench::BenchStartAndEnd},   {"idle", bench::BenchIdle},
    {"settings", bench::BenchSettings},   {"dialog", bench::BenchDialog},
    {"pictures", bench::BenchPictures},   {"shrinking", bench::BenchShrinking},
    {"drawing", bench::BenchDrawing},     {"frames", bench::BenchFrames},
    {"screens", bench::BenchScreens},     {"looks", bench::BenchLooks},
    {"loading", bench::BenchLoading},     {"first", bench::BenchFirstPicture},
    {"changes", bench::BenchManyChanges}, {"day", bench::BenchDayOfShow},
    {"size", bench::BenchProgramSize},    {"folders", bench::BenchFollowedFolders},
    {"live", bench::BenchLiveView},
};

bool IsWanted(std::string_view name, int argc, char** argv) {
  if (argc <= 2) return true;
  for (int i = 2; i < argc; ++i) {
    if (name == argv[i]) return true;
  }
  return false;
}

}  // namespace

// Arguments: the built program folder (Windows path); names of groups, all without any.
int main(int argc, char** argv) {
  if (argc > 1 && std::string_view(argv[1]) == "--bare") return bench::RunBareWindow();
  if (argc > 2 && std::string_view(argv[1]) == "--viewer") return bench::RunBareViewer(argv[2]);
  if (argc > 1) e2e::builtFolder = os::ToWide(argv[1]);
  const support::ComScope components;
  std::printf("%-58s | %-46s | %10s | %s\n", "work", "reference", "ratio", "bar");
  for (const Group& group : kGroups) {
    if (IsWanted(group.name, argc, argv)) group.print();
  }
  return 0;
}

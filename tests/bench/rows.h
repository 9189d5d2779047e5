// The rows of the benchmark's table, in groups.
#pragma once

namespace bench {

// These two start Lumora.scr: they need e2e::builtFolder.
void BenchStartAndEnd();
void BenchIdle();

void BenchSettings();
void BenchDialog();
void BenchPictures();
void BenchShrinking();
void BenchDrawing();
void BenchFrames();
void BenchScreens();
void BenchLooks();
void BenchManyChanges();
void BenchDayOfShow();

// Needs e2e::builtFolder.
void BenchProgramSize();

}  // namespace bench

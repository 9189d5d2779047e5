// The rows of the benchmark's table, in groups.
#pragma once

namespace bench {

// These start Lumora.scr: they need e2e::builtFolder.
void BenchStartAndEnd();
void BenchIdle();
void BenchFirstPicture();
void BenchLiveView();

void BenchSettings();
void BenchDialog();
void BenchPictures();
void BenchShrinking();
void BenchDrawing();
void BenchFrames();
void BenchLoading();
void BenchScreens();
void BenchLooks();
void BenchManyChanges();
void BenchDayOfShow();

// Needs e2e::builtFolder.
void BenchProgramSize();

// Folders that are followed. Needs e2e::builtFolder.
void BenchFollowedFolders();

}  // namespace bench

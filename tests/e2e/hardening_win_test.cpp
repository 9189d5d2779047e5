// The program in a hostile place: what its file promises the system, and what it takes from where.
#include <gtest/gtest.h>

#include <set>

#include "e2e/pe_image.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "os/handles_win.h"
#include "os/utf16_win.h"
#include "support/colors.h"

namespace {

using support::kBluePixel;
using support::kGreenPixel;

// Of those, every Windows keeps its own copies ready for all programs; comctl32 comes by the manifest.
const std::set<std::string> kAllowedImports = {"advapi32.dll", "comctl32.dll", "comdlg32.dll",
                                               "gdi32.dll",    "kernel32.dll", "msvcrt.dll",
                                               "ole32.dll",    "shell32.dll",  "user32.dll"};

// Libraries that programs of this kind are known to take from beside them. Under Wine those that the system's
// own libraries have loaded before (uxtheme, windowscodecs, mpr, winmm) are never looked for, so there they
// prove nothing; the import table above does.
constexpr const wchar_t* kPlanted[] = {L"uxtheme.dll",   L"windowscodecs.dll", L"mpr.dll",
                                       L"password.cpl",  L"dwmapi.dll",        L"propsys.dll",
                                       L"cryptbase.dll", L"textshaping.dll",   L"winmm.dll"};

std::string BytesOf(const std::wstring& path) {
  const os::OwnedHandle file(
      CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
  std::string bytes(GetFileSize(file.get(), nullptr), '\0');
  DWORD got = 0;
  ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr);
  bytes.resize(got);
  return bytes;
}

std::string ProgramBytes() { return BytesOf(e2e::builtFolder + L"\\Lumora.scr"); }

std::wstring StandIn() {
  wchar_t path[MAX_PATH];
  const std::wstring whole(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
  return whole.substr(0, whole.rfind(L'\\')) + L"\\marking_stand_in.dll";
}

bool Exists(const std::wstring& path) { return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

void Plant(const e2e::ProgramFolder& folder) {
  for (const wchar_t* name : kPlanted) {
    ASSERT_TRUE(CopyFileW(StandIn().c_str(), (folder.path() + L"\\" + name).c_str(), FALSE));
  }
}

// Which of the planted libraries were loaded; empty = none.
std::string Loaded(const e2e::ProgramFolder& folder) {
  return Exists(folder.path() + L"\\loaded.txt") ? BytesOf(folder.path() + L"\\loaded.txt") : std::string();
}

bool DialogComes(const e2e::RunningProgram& program) {
  return e2e::WaitFor([&] {
    const HWND window = FindWindowW(nullptr, L" Lumora Screen Saver");
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    return window && owner == program.processId() && IsWindowVisible(window);
  });
}

TEST(Hardening, TheProgramIsLaidAtRandomAddressesAndRunsNoData) {
  const e2e::PeImage image = e2e::ReadPeImage(ProgramBytes());
  EXPECT_TRUE(image.dllCharacteristics & IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE);
  EXPECT_EQ((image.dllCharacteristics & IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA) != 0, sizeof(void*) == 8);
  EXPECT_TRUE(image.dllCharacteristics & IMAGE_DLLCHARACTERISTICS_NX_COMPAT);
  EXPECT_FALSE(image.characteristics & IMAGE_FILE_RELOCS_STRIPPED);
  EXPECT_TRUE(image.characteristics & IMAGE_FILE_LARGE_ADDRESS_AWARE);
  EXPECT_GT(image.relocationBytes, 1000U) << "without relocations no address is random";
}

TEST(Hardening, NoSectionCanBeWrittenAndRun) {
  const e2e::PeImage image = e2e::ReadPeImage(ProgramBytes());
  ASSERT_GT(image.sections.size(), 3U);
  for (const e2e::PeSection& section : image.sections) {
    EXPECT_FALSE((section.characteristics & IMAGE_SCN_MEM_WRITE) &&
                 (section.characteristics & IMAGE_SCN_MEM_EXECUTE))
        << section.name;
  }
}

TEST(Hardening, TheStackIsGuarded) {
  EXPECT_NE(ProgramBytes().find("stack smashing detected"), std::string::npos)
      << "the guard's own message is in every program that has one";
}

TEST(Hardening, OnlyLibrariesThatTheSystemKeepsReadyAreImportedAndNoneOfTheNetwork) {
  const e2e::PeImage image = e2e::ReadPeImage(ProgramBytes());
  EXPECT_GE(image.imports.size(), 5U);
  for (const std::string& name : image.imports) EXPECT_TRUE(kAllowedImports.contains(name)) << name;
}

TEST(Hardening, NothingKeepsTheDisplayOrTheMachineAwake) {
  const std::string program = ProgramBytes();
  ASSERT_NE(program.find("RegisterPowerSettingNotification"), std::string::npos) << "names are to be found";
  for (const char* name : {"SetThreadExecutionState", "PowerCreateRequest", "PowerSetRequest"}) {
    EXPECT_EQ(program.find(name), std::string::npos) << name << ", imported or looked up";
  }
}

TEST(Hardening, TheStandInLeavesAMarkWhenItIsLoaded) {
  e2e::ProgramFolder folder;
  Plant(folder);
  const os::OwnedLibrary library(LoadLibraryW((folder.path() + L"\\password.cpl").c_str()));
  EXPECT_EQ(Loaded(folder), "password.cpl\n");
}

TEST(Hardening, LibrariesPlantedBesideTheProgramAreNotLoadedByTheShow) {
  e2e::ProgramFolder folder;
  folder.addPicture({600, 400}, base::Rgb(0, 255, 0), "caption");
  folder.set("image/timeDisplay", "1");
  folder.set("transitions/bFade", "1");
  folder.writeSettings();
  Plant(folder);
  e2e::RunningProgram show(folder.program(), L"/S", folder.path());
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(e2e::MiddleComesToBe(kGreenPixel));
  EXPECT_TRUE(show.endsByKey());
  EXPECT_EQ(Loaded(folder), "");
}

TEST(Hardening, NorByTheDialog) {
  e2e::ProgramFolder folder;
  folder.addPicture({600, 400}, base::Rgb(0, 255, 0));
  folder.writeSettings();
  Plant(folder);
  e2e::RunningProgram dialog(folder.program(), L"/c", folder.path());
  EXPECT_TRUE(DialogComes(dialog));
  EXPECT_EQ(Loaded(folder), "");
}

TEST(Hardening, NorByTheChangeOfThePassword) {
  e2e::ProgramFolder folder;
  folder.writeSettings();
  Plant(folder);
  e2e::RunningProgram change(folder.program(), L"/a 0", folder.path());
  EXPECT_TRUE(change.waitForEnd());
  EXPECT_EQ(Loaded(folder), "");
}

TEST(Hardening, APictureListedWithoutItsFolderLiesBesideTheProgram) {
  e2e::ProgramFolder decoy;
  decoy.writeBitmap("bare.bmp", {600, 400}, base::Rgb(0, 255, 0));
  e2e::ProgramFolder folder;
  folder.writeBitmap("bare.bmp", {600, 400}, base::Rgb(0, 0, 255));
  folder.set("images/0", "bare.bmp");
  folder.set("total/total", "1");
  folder.writeSettings();
  e2e::RunningProgram show(folder.program(), L"/S", decoy.path());
  ASSERT_NE(show.waitForShow(), nullptr);
  EXPECT_TRUE(e2e::WaitFor([] { return !e2e::BoundsOf(e2e::ReadScreen(), kBluePixel).isEmpty(); }));
  EXPECT_TRUE(show.endsByKey());
}

TEST(Hardening, NothingIsTakenFromTheCurrentFolder) {
  e2e::ProgramFolder decoy;
  decoy.set("background/newBackColor", "65280");
  decoy.addPicture({600, 400}, base::Rgb(0, 255, 0));
  decoy.writeSettings();
  decoy.writeBitmap("image1.gif", {600, 400}, base::Rgb(0, 255, 0));
  Plant(decoy);
  e2e::ProgramFolder folder;
  folder.set("background/newBackColor", "128");
  folder.set("firstrun/samples", "1");  // the two samples come first, whose files are not in this folder
  folder.set("total/total", "3");
  folder.set("images/2", folder.writeBitmap("blue.bmp", {600, 400}, base::Rgb(0, 0, 255)));
  folder.writeSettings();
  const std::string decoysSettings = decoy.readSettingsFile();
  e2e::RunningProgram show(folder.program(), L"/S", decoy.path());
  ASSERT_NE(show.waitForShow(), nullptr);
  ASSERT_TRUE(e2e::WaitFor([] { return e2e::ScreenPixel(2, 2) == support::kDarkRedPixel; }));
  bool sawGreen = false;
  EXPECT_TRUE(e2e::WaitFor([&] {
    const base::Bitmap seen = e2e::ReadScreen();
    sawGreen = sawGreen || !e2e::BoundsOf(seen, kGreenPixel).isEmpty();
    return !e2e::BoundsOf(seen, kBluePixel).isEmpty();
  })) << "the third picture comes after the samples";
  EXPECT_FALSE(sawGreen);
  EXPECT_TRUE(show.endsByKey());
  EXPECT_EQ(Loaded(decoy), "");
  EXPECT_EQ(decoy.readSettingsFile(), decoysSettings);
  EXPECT_NE(folder.readSettingsFile().find("\\image1.gif"), std::string::npos) << "the samples were listed";
}

}  // namespace

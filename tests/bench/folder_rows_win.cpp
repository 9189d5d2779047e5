// Followed folders with tens of thousands of pictures: how soon a show begins, what the listing costs.
#include <windows.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "bench/bench_table.h"
#include "bench/frames_in_time.h"
#include "bench/heap_count_win.h"
#include "bench/rows.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "library/folder_walk.h"
#include "library/followed_folders.h"
#include "os/clock_win.h"
#include "os/files_win.h"
#include "os/folder_reader_win.h"
#include "os/utf16_win.h"
#include "saver/picture_order.h"
#include "support/colors.h"
#include "support/temporary_folder_win.h"

namespace bench {

namespace {

using support::kRedPixel;

constexpr int kMany = 30'000;
constexpr int kInOneFolder =
    3'000;  // where names do not depend on their case, each new one looks at all others
constexpr int kFolders = 60;

// Empty files with the names of photos, in so many folders below `root`.
void MakeTree(const std::string& root, int files, int folders) {
  for (int folder = 0; folder < folders; ++folder) {
    const std::string path = root + "\\Holidays " + std::to_string(1980 + folder);
    CreateDirectoryW(os::ToWide(path).c_str(), nullptr);
    for (int i = 0; i < files / folders; ++i)
      support::WriteFileAt(path + "\\IMG_" + std::to_string(10'000 + i) + ".jpg");
  }
}

// The system's own calls for a tree: every name is seen, nothing is done with it.
int ListBare(const std::wstring& folder) {
  WIN32_FIND_DATAW found{};
  const HANDLE search = FindFirstFileExW((folder + L"\\*").c_str(), FindExInfoBasic, &found,
                                         FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
  if (search == INVALID_HANDLE_VALUE) return 0;
  int files = 0;
  do {
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
      ++files;
    } else if (found.cFileName[0] != L'.') {
      files += ListBare(folder + L'\\' + found.cFileName);
    }
  } while (FindNextFileW(search, &found) != FALSE);
  FindClose(search);
  return files;
}

std::size_t ListAsTheShowDoes(const std::string& folder) {
  os::FolderReaderWin reader;
  library::FolderWalk walk(
      reader, folder,
      {.subfolders = true, .names = library::PictureNames(), .choice = library::DayChoice(0)});
  while (walk.step()) {
  }
  return walk.pictures().size();
}

// A show of a tree of pictures, of which the first can be loaded.
class FollowingShow {
 public:
  explicit FollowingShow(const std::string& tree) {
    const std::string first = folder_.writeBitmap("0.bmp", {400, 300}, base::Rgb(255, 0, 0));
    CopyFileW(os::ToWide(first).c_str(), os::ToWide(tree + "\\0.bmp").c_str(), FALSE);
    folder_.set("folders/0", tree);
    folder_.set("extras/subfolders", "1");
    folder_.set("image/timeInterval", "60");
    folder_.writeSettings();
  }

  // From the start of the process to the picture on the screen.
  double firstPictureMs() const {
    const auto isRed = [] { return e2e::MiddlePixel() == kRedPixel; };
    const double start = NowMs();
    e2e::RunningProgram show(folder_.program(), L"/S");
    e2e::WaitFor(isRed, 60'000);
    const double passed = NowMs() - start;
    show.endsByKey();
    e2e::WaitFor([&] { return !isRed(); }, 3000);
    return passed;
  }

  void waitForIndex() const {
    e2e::RunningProgram show(folder_.program(), L"/S");
    e2e::WaitFor(
        [&] {
          return GetFileAttributesW((folder_.path() + L"\\lumora.index").c_str()) != INVALID_FILE_ATTRIBUTES;
        },
        60'000);
    show.endsByKey();
  }

 private:
  e2e::ProgramFolder folder_;
};

void BenchFirstPicture(const std::string& tree) {
  const support::TemporaryFolder small;
  MakeTree(small.path(), 2, 2);
  const FollowingShow two(small.path());
  const FollowingShow many(tree);
  const double first = many.firstPictureMs();  // nothing is known of the folder
  PrintRow("first picture with 30,000 followed ones, never listed", "with 2", first / two.firstPictureMs(),
           "<= 1.2 times");
  many.waitForIndex();
  two.waitForIndex();
  std::vector<double> few;
  std::vector<double> all;
  for (int i = 0; i < 5; ++i) {
    few.push_back(two.firstPictureMs());
    all.push_back(many.firstPictureMs());
  }
  std::sort(few.begin(), few.end());
  std::sort(all.begin(), all.end());
  PrintRow("first picture with 30,000 followed ones, known", "with 2", all[2] / few[2], "<= 1.2 times");
}

// The pictures of one folder as the show has them, and the show's list of them.
class Followed {
 public:
  explicit Followed(const std::string& folder) : order_(settings_, *files_, place_.path(), services()) {
    settings_.record.subfolders = "1";
    settings_.folders = {folder};
    settings_.imageFiles = {""};
    settings_.imageCaptions = {""};
    settings_.lastImageIndex = -1;
    order_.begin();
  }

  void takeNews() { order_.takeNews(); }
  bool hasAll() const { return settings_.lastImageIndex >= kMany - 1; }
  void waitForAll() {
    while (!hasAll()) {
      takeNews();
      Sleep(1);
    }
  }

 private:
  saver::LibraryServices services() {
    return {.follow =
                [this](library::FollowRequest request) {
                  return std::make_unique<library::FollowedFolders>(
                      library::FollowedFolders::Services{
                          files_, std::make_shared<os::FolderReaderWin>(), std::make_shared<os::ClockWin>(),
                          [] { SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_BELOW_NORMAL); }},
                      std::move(request));
                },
            .userFolder = {},
            .makeUserFolder = nullptr};
  }

  support::TemporaryFolder place_;
  std::shared_ptr<os::FilesWin> files_ = std::make_shared<os::FilesWin>();
  settings::SaverSettings settings_;
  saver::PictureOrder order_;
};

void BenchListing(const std::string& name, const std::string& folder) {
  PrintRow("list " + name, "the system's calls alone",
           TimeRatio([&] { ListAsTheShowDoes(folder); }, [&] { ListBare(os::ToWide(folder)); }, [] {}, 5),
           "<= 1.5 times");
}

void BenchMemory(const std::string& tree) {
  const long long before = HeldHeap();
  Followed followed(tree);
  followed.waitForAll();
  Sleep(500);  // the listing itself is over a moment after its news
  PrintRow("memory of 10,000 followed pictures, MiB", "1 MiB",
           static_cast<double>(HeldHeap() - before) * 10'000 / kMany / (1 << 20), "<= 3");
}

// The show takes the news of the listing over while its effect runs, which it does not even do.
void BenchFramesBesideListing(const std::string& tree) {
  const auto beside = [&](os::EventLoop& loop) {
    const auto followed = std::make_shared<Followed>(tree);
    loop.startTimer(500, [followed] { followed->takeNews(); });
    return followed;
  };
  // In turns, so that whatever else the machine does takes frames from both.
  std::vector<double> alone;
  std::vector<double> listing;
  for (int i = 0; i < 5; ++i) {
    alone.push_back(FramesInTime(5, nullptr));
    listing.push_back(FramesInTime(5, beside));
  }
  std::sort(alone.begin(), alone.end());
  std::sort(listing.begin(), listing.end());
  PrintRow("frames done within 16.7 ms beside the first listing", "those without a listing",
           listing[2] / alone[2], ">= 0.99");
  const double start = NowMs();
  Followed followed(tree);
  followed.waitForAll();
  PrintRow("first listing of 30,000 files, with all in the show's list", "5 seconds",
           (NowMs() - start) / 5000, "<= 1");
}

}  // namespace

void BenchFollowedFolders() {
  const support::TemporaryFolder tree;
  const support::TemporaryFolder flat;
  MakeTree(tree.path(), kMany, kFolders);
  MakeTree(flat.path(), kInOneFolder, 1);
  BenchFramesBesideListing(tree.path());
  BenchListing("30,000 files in 60 folders", tree.path());
  BenchListing("3,000 files in one folder", flat.path());
  BenchMemory(tree.path());
  BenchFirstPicture(tree.path());
}

}  // namespace bench

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "e2e/held_resources_win.h"
#include "e2e/program_folder.h"
#include "e2e/running_program.h"
#include "e2e/soak.h"

namespace e2e {

namespace {

constexpr int kSampleMs = 30'000;
constexpr std::size_t kMemorySlack = 4U << 20;  // bytes; pictures of several sizes come and go
constexpr DWORD kHandleSlack = 4;

void LayLivelyShow(ProgramFolder& folder) {
  for (const char* effect : {"bStandard", "bLeftWipe", "bRightWipe", "bRightandLeftWipe", "bUpAndDown",
                             "bCenter", "bHorizontalBlinds", "bVerticalBlinds", "bFade"}) {
    folder.set(std::string("transitions/") + effect, "1");
  }
  folder.set("extras/loadAhead", "1");
  folder.set("image/picRandom", "rand");
  folder.set("image/picSpeed", "5");
  folder.set("image/randomPick", "1");
  folder.set("image/timeDisplay", "1");
  folder.set("background/backEffect", "3");
  folder.set("background/redBackground", "200");
  folder.set("font/scroll", "0");
  constexpr base::PixelSize kSizes[] = {{300, 200}, {1600, 1200}, {900, 1400}, {64, 64}, {2400, 600}};
  int number = 0;
  for (const base::PixelSize size : kSizes) {
    ++number;
    folder.addPicture(size, base::Rgb(40 * number, 255 - 40 * number, 90),
                      "Caption " + std::to_string(number));
  }
  folder.writeSettings();
}

// The largest of each kind among a part of the samples.
HeldResources MostOf(const std::vector<HeldResources>& samples, std::size_t from, std::size_t to) {
  HeldResources most;
  for (std::size_t i = from; i < to; ++i) {
    most.privateBytes = std::max(most.privateBytes, samples[i].privateBytes);
    most.kernelHandles = std::max(most.kernelHandles, samples[i].kernelHandles);
    most.gdiObjects = std::max(most.gdiObjects, samples[i].gdiObjects);
    most.userObjects = std::max(most.userObjects, samples[i].userObjects);
  }
  return most;
}

void Write(const char* what, const HeldResources& held) {
  std::printf("%-8s private %7zu KiB, handles %4lu, GDI %4lu, USER %4lu\n", what, held.privateBytes >> 10,
              held.kernelHandles, held.gdiObjects, held.userObjects);
  std::fflush(stdout);
}

bool IsFlat(const std::vector<HeldResources>& samples) {
  const std::size_t count = samples.size();
  const HeldResources early = MostOf(samples, count / 4, count / 2);
  const HeldResources late = MostOf(samples, count - count / 4, count);
  Write("early", early);
  Write("late", late);
  return late.privateBytes <= early.privateBytes + kMemorySlack &&
         late.kernelHandles <= early.kernelHandles + kHandleSlack &&
         late.gdiObjects <= early.gdiObjects + kHandleSlack &&
         late.userObjects <= early.userObjects + kHandleSlack;
}

int Fail(const char* reason) {
  std::printf("soak failed: %s\n", reason);
  return 1;
}

}  // namespace

int RunSoak(int minutes) {
  ProgramFolder folder(L"soak");
  LayLivelyShow(folder);
  RunningProgram show(folder.program(), L"/S");
  if (!show.waitForShow()) return Fail("no show");
  const int sampleCount = std::max(8, minutes * 60'000 / kSampleMs);
  const int sampleMs = minutes * 60'000 / sampleCount;
  std::vector<HeldResources> samples;
  for (int i = 0; i < sampleCount; ++i) {
    if (show.waitForEnd(sampleMs)) return Fail("the show ended by itself");
    samples.push_back(ReadHeldResources(show.process(), show.processId()));
    Write(std::to_string(i + 1).c_str(), samples.back());
  }
  if (samples.back().privateBytes == 0 || samples.back().kernelHandles == 0 || samples.back().gdiObjects == 0)
    return Fail("nothing could be read");
  if (!IsFlat(samples)) return Fail("what the show holds has grown");
  if (!show.endsByKey()) return Fail("a key did not end the show");
  std::printf("soak passed: %d minutes\n", minutes);
  return 0;
}

}  // namespace e2e

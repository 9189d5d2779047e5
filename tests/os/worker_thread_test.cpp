#include "os/worker_thread.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "support/posted_events.h"

namespace os {
namespace {

using support::Door;
using support::PostedEvents;

bool NobodyIsLeftBehind() {
  const auto end = std::chrono::steady_clock::now() + support::kThreadLimit;
  while (WorkerThread::leftBehind() > 0 && std::chrono::steady_clock::now() < end) std::this_thread::yield();
  return WorkerThread::leftBehind() == 0;
}

TEST(WorkerThread, AJobRunsOnAnotherThreadAndItsEndIsToldOnThisOne) {
  PostedEvents events;
  WorkerThread worker(events.poster(), nullptr);
  std::thread::id jobThread;
  std::thread::id doneThread;
  worker.run([&] { jobThread = std::this_thread::get_id(); },
             [&] { doneThread = std::this_thread::get_id(); });
  ASSERT_TRUE(events.runOne());
  EXPECT_NE(jobThread, std::this_thread::get_id());
  EXPECT_EQ(doneThread, std::this_thread::get_id());
}

TEST(WorkerThread, ManyJobsRunOneAfterTheOtherOnOneThread) {
  PostedEvents events;
  WorkerThread worker(events.poster(), nullptr);
  std::vector<std::thread::id> threads;  // touched by the thread alone while a job runs
  for (int i = 0; i < 500; ++i) {
    worker.run([&] { threads.push_back(std::this_thread::get_id()); }, [] {});
    ASSERT_TRUE(events.runOne());
  }
  EXPECT_EQ(threads, std::vector<std::thread::id>(500, threads.front()));
}

TEST(WorkerThread, SurroundingsAreMadeAndGivenUpOnTheThreadItself) {
  PostedEvents events;
  std::thread::id made;
  std::thread::id jobThread;
  std::thread::id givenUp;
  {
    WorkerThread worker(events.poster(), [&]() -> std::shared_ptr<void> {
      made = std::this_thread::get_id();
      return {nullptr, [&](void*) { givenUp = std::this_thread::get_id(); }};
    });
    worker.run([&] { jobThread = std::this_thread::get_id(); }, [] {});
    ASSERT_TRUE(events.runOne());
  }
  EXPECT_EQ(made, jobThread);
  EXPECT_EQ(givenUp, jobThread);
}

TEST(WorkerThread, GivingUpAWorkerDoesNotWaitForItsJob) {
  PostedEvents events;
  const auto begun = std::make_shared<Door>();
  const auto goOn = std::make_shared<Door>();
  const auto done = std::make_shared<bool>(false);
  std::optional<WorkerThread> worker(std::in_place, events.poster(), nullptr);
  worker->run(
      [begun, goOn] {
        begun->open();
        goOn->wait();
      },
      [done] { *done = true; });
  ASSERT_TRUE(begun->wait());
  worker.reset();
  EXPECT_EQ(WorkerThread::leftBehind(), 1);
  goOn->open();
  EXPECT_TRUE(NobodyIsLeftBehind());
  EXPECT_FALSE(*done);
}

TEST(WorkerThread, AnEndThatWasSentBeforeTheWorkerWasGivenUpIsNotTold) {
  PostedEvents events;
  const auto done = std::make_shared<bool>(false);
  const auto ran = std::make_shared<Door>();
  std::optional<WorkerThread> worker(std::in_place, events.poster(), nullptr);
  worker->run([ran] { ran->open(); }, [done] { *done = true; });
  ASSERT_TRUE(ran->wait());
  worker.reset();
  EXPECT_TRUE(NobodyIsLeftBehind());
  events.runAll();
  EXPECT_FALSE(*done);
}

TEST(WorkerThread, WorkersMayBeGivenUpAtAnyMoment) {
  PostedEvents events;
  const auto count = std::make_shared<std::atomic<int>>(0);
  for (int round = 0; round < 500; ++round) {
    WorkerThread worker(events.poster(), nullptr);
    worker.run([count] { ++*count; }, [] {});
    if (round % 3 == 0) std::this_thread::yield();
  }
  EXPECT_TRUE(NobodyIsLeftBehind());
  EXPECT_LE(*count, 500);
}

}  // namespace
}  // namespace os

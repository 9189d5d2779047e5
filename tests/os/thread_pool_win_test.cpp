#include "os/thread_pool_win.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <stdexcept>
#include <thread>
#include <vector>

namespace {

TEST(ThreadPool, EachPartRunsOnce) {
  for (const int count : {0, 1, 2, 3, 1000}) {
    std::vector<std::atomic<int>> runs(static_cast<std::size_t>(count));
    os::RunOnAllProcessors(count, [&](int part) { ++runs[static_cast<std::size_t>(part)]; });
    for (const std::atomic<int>& ran : runs) EXPECT_EQ(ran, 1);
  }
}

TEST(ThreadPool, TwoProcessorsWorkAtTheSameTime) {
  if (std::thread::hardware_concurrency() < 2) GTEST_SKIP() << "this machine has one processor";
  // Each of the two parts waits for the other one to have begun.
  std::atomic<int> begun = 0;
  std::atomic<int> met = 0;
  os::RunOnAllProcessors(2, [&](int) {
    ++begun;
    const ULONGLONG end = GetTickCount64() + 10'000;
    while (begun < 2 && GetTickCount64() < end) SwitchToThread();
    if (begun == 2) ++met;
  });
  EXPECT_EQ(met, 2);
}

TEST(ThreadPool, WhatAPartThrowsIsThrownWhenNoPartRunsAnyMore) {
  std::atomic<int> running = 0;
  const auto run = [&](int part) {
    ++running;
    if (part == 3) {
      --running;
      throw std::runtime_error("part 3");
    }
    --running;
  };
  EXPECT_THROW(os::RunOnAllProcessors(50, run), std::runtime_error);
  EXPECT_EQ(running, 0);
}

}  // namespace

#include "base/average_row.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace base {
namespace {

TEST(AverageRow, WithVectorsAndWithoutTheLevelsAreTheSame) {
  std::uint32_t state = 7;
  for (const int source : {1, 2, 3, 10, 64, 101, 1000}) {
    for (const int target : {1, 2, 3, 9, 10, 63, 100, 999, 1000}) {
      if (target > source) continue;
      std::vector<std::uint16_t> sums(static_cast<std::size_t>(source + 1) * 4);
      for (std::size_t i = 0; i + 4 < sums.size(); ++i) {
        state = state * 1664525 + 1013904223;
        sums[i] = static_cast<std::uint16_t>((state >> 16) % (kGreatestColumnSum + 1));
      }
      const RowPlan plan(source, target);
      const float scale =
          255.0F * static_cast<float>(target) / static_cast<float>(source) / kGreatestColumnSum;
      std::vector<std::uint8_t> fast(static_cast<std::size_t>(target) * 4);
      std::vector<std::uint8_t> plain(fast.size());
      AverageRow(fast.data(), sums.data(), plan, scale);
      AverageRowPlain(plain.data(), sums.data(), plan, scale);
      EXPECT_EQ(fast, plain) << source << " to " << target;
    }
  }
}

TEST(AverageRow, EveryPixelIsTakenOnceInAll) {
  for (const int source : {1, 7, 100, 65535}) {
    for (const int target : {1, 2, 7, 33, 100}) {
      if (target > source) continue;
      const RowPlan plan(source, target);
      int next = 0;
      for (std::size_t i = 0; i < plan.count(); ++i) {
        next += plan.everyone() + (plan.part(i).another == 0 ? 0 : 1);
        ASSERT_EQ(next, plan.border(i)) << source << " to " << target;
        ++next;
      }
      EXPECT_EQ(plan.border(plan.count() - 1), source);
    }
  }
}

}  // namespace
}  // namespace base

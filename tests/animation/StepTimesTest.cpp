#include "animation/format/StepTimes.h"

#include <gtest/gtest.h>
#include <numeric>

namespace gp::test {
namespace {

using Times = std::vector<std::uint32_t>;

TEST(StepTimes, SixtyJiffiesAreASecondHoweverTheyAreParted) {
  EXPECT_EQ(delaysOf(Times{1, 1, 1, 1}), (Times{17, 16, 17, 17}));
  for (const std::uint32_t part : {1U, 2U, 3U, 4U, 5U, 6U, 10U, 30U}) {
    const Times delays = delaysOf(Times(60 / part, part));
    EXPECT_EQ(std::accumulate(delays.begin(), delays.end(), 0U), 1000U) << part;
  }
}

TEST(StepTimes, DelaysBecomeTheNearestJiffiesAndTheRestIsCarried) {
  EXPECT_EQ(jiffiesOf(Times{50, 100, 200, 500}), (Times{3, 6, 12, 30}));
  EXPECT_EQ(jiffiesOf(Times{30, 30, 30, 30, 30}), (Times{2, 2, 1, 2, 2}));
}

TEST(StepTimes, NoStepHasLessThanOneJiffyAndALongOneKeepsItsTime) {
  Times delays(100, 1);
  delays.push_back(1000);
  Times jiffies(100, 1);
  jiffies.push_back(60);
  EXPECT_EQ(jiffiesOf(delays), jiffies);
  // What a lifted step has already got is not carried to the next: 41 ms are 2.46 jiffies.
  EXPECT_EQ(jiffiesOf(Times{1, 1, 1, 1, 1, 1, 1, 1, 41}), (Times{1, 1, 1, 1, 1, 1, 1, 1, 2}));
  EXPECT_EQ(delaysOf(Times{0}), Times{17});
  EXPECT_EQ(jiffiesOf(Times{0}), Times{1});
}

TEST(StepTimes, HugeTimesAreLimitedAndDoNotReachTheNextStep) {
  EXPECT_EQ(delaysOf(Times{0xFFFFFFFF, 3}), (Times{2147483633, 50}));
  EXPECT_EQ(jiffiesOf(Times{0xFFFFFFFF, 50}), (Times{128849019, 3}));
}

TEST(StepTimes, JiffiesComeBackFromTheirDelays) {
  for (std::uint32_t jiffies = 1; jiffies < 300; ++jiffies) {
    const Times steps{jiffies, 1, jiffies, 2, 90, jiffies};
    EXPECT_EQ(jiffiesOf(delaysOf(steps)), steps) << jiffies;
  }
}

}  // namespace
}  // namespace gp::test

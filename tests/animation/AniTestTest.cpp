#include "animation/AniFrames.h"
#include "animation/AniTest.h"
#include "animation/FilmBuilder.h"
#include "support/FakeEditor.h"
#include "support/FakeTimer.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

class AniTestTest : public testing::Test {
 protected:
  AniFrames frames{{plainFrame(1, 30), plainFrame(2, 1), plainFrame(3, 0)}};
  FakeTimer timer;
  RecordingDisplay display;
  AniTest test{frames, timer, display};

  Color shown() const { return test.picANITest().GetPixel(16, 16); }
};

TEST_F(AniTestTest, TheFirstFrameComesAfterThreeHundredMilliseconds) {
  test.start();
  EXPECT_TRUE(test.isRunning());
  EXPECT_EQ(test.frame(), 0);
  EXPECT_EQ(timer.milliseconds, 300);
  EXPECT_EQ(shown(), kWhite);
  timer.tick();
  EXPECT_EQ(test.frame(), 1);
  EXPECT_EQ(shown(), 1);
}

TEST_F(AniTestTest, AJiffyIsTenMillisecondsOfTheFrameThatIsShown) {
  test.start();
  timer.tick();
  EXPECT_EQ(timer.milliseconds, 300) << "30 jiffies";
  timer.tick();
  EXPECT_EQ(timer.milliseconds, 10) << "1 jiffy";
  EXPECT_EQ(shown(), 2);
  timer.tick();
  EXPECT_EQ(timer.milliseconds, 100) << "no jiffies";
  EXPECT_EQ(shown(), 3);
}

TEST_F(AniTestTest, StartsAgainAfterTheLastFrame) {
  test.start();
  for (const int expected : {1, 2, 3, 1, 2}) {
    timer.tick();
    EXPECT_EQ(test.frame(), expected);
    EXPECT_EQ(shown(), expected);
  }
}

TEST_F(AniTestTest, StopsAndClearsThePicture) {
  test.start();
  timer.tick();
  display.parts.clear();
  test.stop();
  EXPECT_FALSE(test.isRunning());
  EXPECT_FALSE(timer.isRunning());
  EXPECT_EQ(test.frame(), 0);
  EXPECT_EQ(shown(), kWhite);
  EXPECT_TRUE(display.hasChanged(DisplayPart::AniTest));
  EXPECT_TRUE(display.hasChanged(DisplayPart::AniPane)) << "the caption of the button";
}

TEST_F(AniTestTest, AStopWithoutATestDoesNothing) {
  test.stop();
  EXPECT_EQ(timer.stops, 0);
  EXPECT_TRUE(display.parts.empty());
}

TEST_F(AniTestTest, StopsWhenThereAreNoFrames) {
  test.start();
  frames = AniFrames();
  timer.tick();
  EXPECT_FALSE(test.isRunning());
  EXPECT_FALSE(timer.isRunning());
}

TEST_F(AniTestTest, WrapsInAFilmThatHasBecomeShorter) {
  test.start();
  for (int i = 0; i < 3; ++i) timer.tick();
  frames = AniFrames({plainFrame(7), plainFrame(8)});
  timer.tick();
  EXPECT_EQ(shown(), 7);
}

TEST_F(AniTestTest, EachTickIsReported) {
  test.start();
  EXPECT_EQ(display.count(DisplayPart::AniTest), 0);
  timer.tick(), timer.tick();
  EXPECT_EQ(display.count(DisplayPart::AniTest), 2);
}

}  // namespace
}  // namespace gp::test

#include "shell/FormPlacement.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

constexpr int kScreenWidth = 1280 * kTwipsPerPixel;
constexpr int kScreenHeight = 1024 * kTwipsPerPixel;

StoredPlace stored(int left, int top, int width, int height) { return {left, top, width, height, std::nullopt}; }

void expectDefault(const FormStart& start) {
  EXPECT_EQ(start.left, 0);
  EXPECT_EQ(start.top, 0);
  EXPECT_EQ(start.mStartWidth, 11895);
  EXPECT_EQ(start.mStartHeight, 8640);
}

TEST(FormPlacement, WithNothingStoredTheFormStartsAtTheDefaultPlace) {
  const FormStart start = startOfForm({}, kScreenWidth, kScreenHeight);
  expectDefault(start);
  EXPECT_FALSE(start.mLastMaximized);
}

TEST(FormPlacement, AStoredPlaceIsTaken) {
  const FormStart start = startOfForm(stored(300, 450, 12000, 9000), kScreenWidth, kScreenHeight);
  EXPECT_EQ(start.left, 300);
  EXPECT_EQ(start.top, 450);
  EXPECT_EQ(start.mStartWidth, 12000);
  EXPECT_EQ(start.mStartHeight, 9000);
}

TEST(FormPlacement, TheFormComesUpInItsSmallestSizeWhateverWasStored) {
  const FormPlace place = startOfForm(stored(300, 450, 12000, 9000), kScreenWidth, kScreenHeight).place();
  EXPECT_EQ(place.left, 300);
  EXPECT_EQ(place.top, 450);
  EXPECT_EQ(place.width, 11895);
  EXPECT_EQ(place.height, 8640);
  EXPECT_FALSE(place.maximized);
}

TEST(FormPlacement, AStoredWidthOf100IsRaisedToTheSmallest) {
  const FormStart start = startOfForm(stored(0, 0, 100, 100), kScreenWidth, kScreenHeight);
  EXPECT_EQ(start.mStartWidth, 11895);
  EXPECT_EQ(start.mStartHeight, 8640);
}

TEST(FormPlacement, AStoredSizeIsCutDownToTheScreen) {
  const FormStart start = startOfForm(stored(0, 0, 90000, 90000), kScreenWidth, kScreenHeight);
  EXPECT_EQ(start.mStartWidth, kScreenWidth);
  EXPECT_EQ(start.mStartHeight, kScreenHeight);
}

TEST(FormPlacement, ANegativeLeftBecomesZeroAndTopStays) {
  const FormStart start = startOfForm(stored(-5, 450, 12000, 9000), kScreenWidth, kScreenHeight);
  EXPECT_EQ(start.left, 0);
  EXPECT_EQ(start.top, 450);
}

TEST(FormPlacement, APlaceBeyondThreeQuartersOfTheScreenBecomesZero) {
  const FormStart edge = startOfForm(stored(14400, 11520, 12000, 9000), kScreenWidth, kScreenHeight);
  EXPECT_EQ(edge.left, 14400);
  EXPECT_EQ(edge.top, 11520);
  const FormStart beyond = startOfForm(stored(14401, 11521, 12000, 9000), kScreenWidth, kScreenHeight);
  EXPECT_EQ(beyond.left, 0);
  EXPECT_EQ(beyond.top, 0);
}

TEST(FormPlacement, ALeftWithoutATopFallsBackToTheDefaults) {
  StoredPlace place;
  place.left = 300;
  place.width = 12000;
  place.height = 9000;
  place.maximized = true;
  const FormStart start = startOfForm(place, kScreenWidth, kScreenHeight);
  expectDefault(start);
  EXPECT_TRUE(start.mLastMaximized);
}

TEST(FormPlacement, OnAScreenBelow800x600ThePlaceIsTheDefault) {
  expectDefault(startOfForm(stored(300, 450, 12000, 9000), 799 * kTwipsPerPixel, kScreenHeight));
  expectDefault(startOfForm(stored(300, 450, 12000, 9000), kScreenWidth, 599 * kTwipsPerPixel));
  EXPECT_EQ(startOfForm(stored(300, 450, 11895, 8640), 800 * kTwipsPerPixel, 600 * kTwipsPerPixel).left, 300);
}

TEST(FormPlacement, StoredExtremesDoNoHarm) {
  const FormStart start = startOfForm(stored(INT32_MAX, INT32_MIN, INT32_MAX, INT32_MIN), kScreenWidth, kScreenHeight);
  EXPECT_EQ(start.left, 0);
  EXPECT_EQ(start.top, 0);
  EXPECT_EQ(start.mStartWidth, kScreenWidth);
  EXPECT_EQ(start.mStartHeight, 8640);
}

struct StartScreenCase {
  StartScreen option;
  bool lastMaximized;
  bool maximized;
  int width;
};

TEST(FormPlacement, TheStartScreenOptionDecidesOnSizeAndMaximising) {
  const StartScreenCase cases[] = {
      {StartScreen::DefaultSize, false, false, 11895},
      {StartScreen::DefaultSize, true, false, 11895},
      {StartScreen::DefaultUnlessMaximized, false, false, 11895},
      {StartScreen::DefaultUnlessMaximized, true, true, 11895},
      {StartScreen::PerLastSession, false, false, 15000},
      {StartScreen::PerLastSession, true, true, 11895},
  };
  for (const StartScreenCase& row : cases) {
    const FormStart start{300, 450, 15000, 9000, row.lastMaximized};
    const FormPlace place = applyStartScreen(start.place(), row.option, start);
    EXPECT_EQ(place.maximized, row.maximized);
    EXPECT_EQ(place.width, row.width);
    EXPECT_EQ(place.left, 300);
    EXPECT_EQ(place.top, 450);
  }
}

TEST(FormPlacement, AMinimisedFormIsLeftAsItIs) {
  const FormStart start{300, 450, 15000, 9000, true};
  FormPlace place = start.place();
  place.minimized = true;
  EXPECT_FALSE(applyStartScreen(place, StartScreen::PerLastSession, start).maximized);
}

}  // namespace
}  // namespace gp

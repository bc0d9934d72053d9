#include "animation/AniFrames.h"
#include "animation/FilmBuilder.h"

#include <gmock/gmock.h>

namespace gp::test {
namespace {

using testing::ElementsAre;

AniFrames film(int count, int current = 1) {
  AniFrames frames(numberedFrames(count));
  frames.select(current);
  return frames;
}

void expectLikeFirst(const FilmFrame& frame) {
  EXPECT_TRUE(samePicture(frame.picture, FramePicture()));
  EXPECT_EQ(frame.jiffies, 42);
  EXPECT_EQ(frame.hotspotX, 3);
  EXPECT_EQ(frame.hotspotY, 4);
  EXPECT_EQ(frame.imageIndex, 0);
}

AniFrames filmWithFirst() {
  std::vector<FilmFrame> frames = numberedFrames(2);
  frames[0].jiffies = 42, frames[0].hotspotX = 3, frames[0].hotspotY = 4, frames[0].imageIndex = 5;
  return AniFrames(frames);
}

TEST(AniFramesTest, WithoutFramesThereIsNoCurrentOne) {
  EXPECT_EQ(AniFrames().current(), 0);
  EXPECT_EQ(AniFrames(std::vector<FilmFrame>()).current(), 0);
  EXPECT_EQ(AniFrames(numberedFrames(3)).current(), 1);
}

TEST(AniFramesTest, SelectsOnlyFramesThatAreThere) {
  AniFrames frames = film(3, 2);
  for (const int n : {0, 4, -1}) frames.select(n);
  EXPECT_EQ(frames.current(), 2);
  frames.select(3);
  EXPECT_EQ(frames.current(), 3);
}

TEST(AniFramesTest, TheFrameBelowIsBlankAndBecomesCurrent) {
  AniFrames frames = filmWithFirst();
  frames.addBelow();
  EXPECT_EQ(frames.current(), 2);
  EXPECT_THAT(colorsOf(frames.all()), ElementsAre(1, kWhite, 2));
  expectLikeFirst(frames.frame(2));
  EXPECT_EQ(frames.frame(1).imageIndex, 5);
}

TEST(AniFramesTest, TheFrameAboveIsBlankAndTheNumberStays) {
  AniFrames frames = filmWithFirst();
  frames.addAbove();
  EXPECT_EQ(frames.current(), 1);
  EXPECT_THAT(colorsOf(frames.all()), ElementsAre(kWhite, 1, 2));
  expectLikeFirst(frames.frame(1));
}

TEST(AniFramesTest, SeventyFramesAreFull) {
  AniFrames frames = film(69);
  EXPECT_FALSE(frames.isFull());
  frames.addBelow();
  EXPECT_EQ(frames.count(), 70);
  EXPECT_TRUE(frames.isFull());
}

TEST(AniFramesTest, AfterARemovalTheNextFrameIsCurrent) {
  AniFrames frames = film(3, 2);
  frames.removeCurrent();
  EXPECT_THAT(colorsOf(frames.all()), ElementsAre(1, 3));
  EXPECT_EQ(frames.current(), 2);
  frames.removeCurrent();
  EXPECT_EQ(frames.current(), 1);
  frames.removeCurrent();
  EXPECT_EQ(frames.count(), 0);
  EXPECT_EQ(frames.current(), 0);
  frames.removeCurrent();
  EXPECT_EQ(frames.count(), 0);
}

TEST(AniFramesTest, AShiftedFrameStaysCurrentAndKeepsItsTime) {
  AniFrames frames = film(3, 2);
  frames.shiftUp();
  EXPECT_THAT(colorsOf(frames.all()), ElementsAre(2, 1, 3));
  EXPECT_EQ(frames.frame(1).jiffies, 2);
  EXPECT_EQ(frames.current(), 1);
  frames.shiftUp();
  EXPECT_EQ(frames.current(), 1);
  frames.shiftDown(), frames.shiftDown();
  EXPECT_THAT(colorsOf(frames.all()), ElementsAre(1, 3, 2));
  EXPECT_EQ(frames.frame(3).jiffies, 2);
  EXPECT_EQ(frames.current(), 3);
  frames.shiftDown();
  EXPECT_EQ(frames.current(), 3);
  EXPECT_THAT(colorsOf(frames.all()), ElementsAre(1, 3, 2));
}

TEST(AniFramesTest, ShiftsOfAnEmptyFilmDoNothing) {
  AniFrames frames;
  frames.shiftUp(), frames.shiftDown();
  EXPECT_EQ(frames.current(), 0);
}

TEST(AniFramesTest, SetsTimesOfAllOrOfOne) {
  AniFrames frames = film(2, 2);
  frames.setJiffiesOfCurrent(7);
  EXPECT_EQ(frames.frame(1).jiffies, 1);
  EXPECT_EQ(frames.frame(2).jiffies, 7);
  frames.setJiffies(9);
  EXPECT_EQ(frames.frame(1).jiffies, 9);
  EXPECT_EQ(frames.frame(2).jiffies, 9);
}

TEST(AniFramesTest, SetsTheHotSpotOfAll) {
  AniFrames frames = film(2);
  frames.setHotspot(5, 6);
  for (const FilmFrame& frame : frames.all()) {
    EXPECT_EQ(frame.hotspotX, 5);
    EXPECT_EQ(frame.hotspotY, 6);
  }
}

TEST(AniFramesTest, OnlyAPictureFromAFileClearsTheImageIndex) {
  std::vector<FilmFrame> numbered = numberedFrames(2);
  numbered[1].imageIndex = 1;
  AniFrames frames(numbered);
  frames.select(2);
  frames.setPicture(plainPicture(9));
  EXPECT_EQ(frames.currentFrame().imageIndex, 1);
  EXPECT_THAT(colorsOf(frames.all()), ElementsAre(1, 9));
  frames.loadPicture(plainPicture(8));
  EXPECT_EQ(frames.currentFrame().imageIndex, 0);
  EXPECT_EQ(frames.currentFrame().jiffies, 2);
  EXPECT_THAT(colorsOf(frames.all()), ElementsAre(1, 8));
}

}  // namespace
}  // namespace gp::test

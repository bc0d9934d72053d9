#include "platform/gdi/GoldenFile.h"
#include "platform/gdi/Pens.h"
#include "platform/gdi/Surface.h"

#include <gtest/gtest.h>
#include <random>

namespace gp {
namespace {

using test::samePixels;

TEST(Surface, ReadingOutsideTellsNoColor) {
  const Surface s(3, 2);
  EXPECT_EQ(s.GetPixel(2, 1), kWhite);
  EXPECT_EQ(s.GetPixel(-1, 0), -1);
  EXPECT_EQ(s.GetPixel(0, -1), -1);
  EXPECT_EQ(s.GetPixel(3, 0), -1);
  EXPECT_EQ(s.GetPixel(0, 2), -1);
}

TEST(Surface, WritingOutsideDoesNothing) {
  Surface s(2, 2);
  const Surface before = s;
  s.SetPixelV(2, 0, kBlack);
  s.SetPixelV(0, -1, kBlack);
  EXPECT_TRUE(samePixels(s, before));
}

TEST(Surface, TheFourthByteIsNoPartOfAColour) {
  Surface s(1, 1);
  s.rowForWriting(0, 0, 1)[0] = 0xFF123456;
  EXPECT_EQ(s.GetPixel(0, 0), 0x123456);
  s.SetPixelV(0, 0, kNoColor);
  EXPECT_EQ(s.pixels()[0], 0x00FFFFFFu);
}

TEST(Surface, NegativeSizesCountAsZero) {
  const Surface s(-5, 3);
  EXPECT_EQ(s.width(), 0);
  EXPECT_EQ(s.height(), 3);
  EXPECT_EQ(s.GetPixel(0, 0), kNoColor);
}

TEST(Surface, ResizingLosesPictureAndDrawing) {
  Surface s(2, 2, kGround);
  s.fill(kBlack);
  s.makePersistent();
  s.resize(3, 1);
  EXPECT_EQ(s.width(), 3);
  EXPECT_EQ(s.height(), 1);
  EXPECT_FALSE(s.hasPicture());
  EXPECT_EQ(s.GetPixel(0, 0), kGround);
}

TEST(Surface, ClearingTheDrawingBringsThePictureBack) {
  Surface s(4, 4);
  s.SetPixelV(1, 1, kBlack);
  s.makePersistent();
  s.SetPixelV(1, 1, kGround);
  s.SetPixelV(3, 3, kGround);
  s.clearDrawing();
  EXPECT_EQ(s.GetPixel(1, 1), kBlack);
  EXPECT_EQ(s.GetPixel(3, 3), kWhite);
}

TEST(Surface, WithoutAPictureClearingGivesTheBackColour) {
  Surface s(2, 2, kGround);
  s.SetPixelV(0, 1, kBlack);
  s.clearDrawing();
  EXPECT_EQ(s.GetPixel(0, 1), kGround);
}

TEST(Surface, ANewBackColourShowsAtTheNextClearing) {
  Surface s(2, 2, kGround);
  s.backColor = kBlack;
  s.SetPixelV(0, 0, kWhite);
  EXPECT_EQ(s.GetPixel(1, 1), kGround);
  s.clearDrawing();
  EXPECT_EQ(s.GetPixel(0, 0), kBlack);
  EXPECT_EQ(s.GetPixel(1, 1), kBlack);
}

TEST(Surface, ClearingThePictureGivesTheBackColourForGood) {
  Surface s(2, 2);
  s.fill(kBlack);
  s.makePersistent();
  s.clearPicture();
  EXPECT_FALSE(s.hasPicture());
  EXPECT_EQ(s.GetPixel(0, 0), kWhite);
  s.clearDrawing();
  EXPECT_EQ(s.GetPixel(0, 0), kWhite);
}

TEST(Surface, FillingKeepsThePicture) {
  Surface s(2, 2);
  s.makePersistent();
  s.fill(kBlack);
  EXPECT_EQ(s.GetPixel(1, 1), kBlack);
  s.clearDrawing();
  EXPECT_EQ(s.GetPixel(1, 1), kWhite);
}

// Only what changed is copied; this one copies everything.
struct WholeCopies {
  Surface drawing, picture;
  bool hasPicture = false;
};

TEST(Surface, CopyingOnlyWhatChangedEqualsCopyingEverything) {
  std::mt19937 random(5);
  std::uniform_int_distribution<int> position(-3, 24);
  std::uniform_int_distribution<int> action(0, 9);
  Surface s(20, 17);
  WholeCopies slow{s, s};
  for (int i = 0; i < 4000; ++i) {
    const int what = action(random);
    if (what == 0) {
      s.makePersistent();
      slow.picture = slow.drawing;
      slow.hasPicture = true;
    } else if (what == 1) {
      s.clearDrawing();
      slow.drawing = slow.hasPicture ? slow.picture : Surface(20, 17);
    } else if (what == 2 && i % 7 == 0) {
      s.clearPicture();
      slow.drawing = Surface(20, 17);
      slow.hasPicture = false;
    } else {
      const int box[] = {position(random), position(random), position(random), position(random)};
      FillBox(s, box[0], box[1], box[2], box[3], i);
      FillBox(slow.drawing, box[0], box[1], box[2], box[3], i);
    }
    ASSERT_TRUE(samePixels(s, slow.drawing)) << "round " << i;
  }
}

}  // namespace
}  // namespace gp

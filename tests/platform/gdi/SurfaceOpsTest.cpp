#include "platform/gdi/GoldenFile.h"
#include "platform/gdi/SurfaceOps.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

using test::samePixels;

Surface checkered(int width, int height) {
  Surface s(width, height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x)
      if ((x + y) % 2 == 0) s.SetPixelV(x, y, kBlack);
  return s;
}

TEST(SurfaceOps, MakeSameSizeTakesTheSizeAndKeepsTheBorder) {
  Surface target(2, 2);
  target.border = 4;
  target.makePersistent();
  MakeSameSize(Surface(7, 5), target);
  EXPECT_EQ(target.width(), 7);
  EXPECT_EQ(target.height(), 5);
  EXPECT_EQ(target.border, 4);
  EXPECT_FALSE(target.hasPicture());
}

TEST(SurfaceOps, MakePicSizeLosesThePicture) {
  Surface s(2, 2);
  s.fill(kBlack);
  s.makePersistent();
  MakePicSize(s, 2, 2);
  EXPECT_FALSE(s.hasPicture());
  EXPECT_EQ(s.GetPixel(0, 0), kWhite);
}

TEST(SurfaceOps, BitbltPicCopiesAndMakesPersistent) {
  const Surface source = checkered(3, 3);
  Surface target(5, 2, kGround);
  target.fill(kBlack);
  EXPECT_TRUE(BitbltPic(source, target));
  EXPECT_EQ(target.GetPixel(1, 0), kWhite);
  EXPECT_EQ(target.GetPixel(2, 0), kBlack);
  EXPECT_EQ(target.GetPixel(3, 0), kGround);
  target.fill(kWhite);
  target.clearDrawing();
  EXPECT_EQ(target.GetPixel(2, 0), kBlack);
  EXPECT_EQ(target.width(), 5);
}

TEST(SurfaceOps, StretchbltPicStretchesTheWholeAndRestoresTheMode) {
  const Surface source = checkered(2, 2);
  Surface target(1, 1);
  target.stretchMode = StretchMode::BlackOnWhite;
  EXPECT_TRUE(StretchbltPic(source, target, true));
  EXPECT_EQ(target.stretchMode, StretchMode::BlackOnWhite);
  EXPECT_EQ(target.GetPixel(0, 0), rgb(128, 128, 128));
  EXPECT_TRUE(target.hasPicture());
  EXPECT_TRUE(StretchbltPic(source, target, false));
  EXPECT_EQ(target.GetPixel(0, 0), kBlack);
}

TEST(SurfaceOps, SizesDifferInWidthOrHeight) {
  EXPECT_FALSE(SurfaceSizeDiffers(Surface(3, 4), Surface(3, 4)));
  EXPECT_TRUE(SurfaceSizeDiffers(Surface(3, 4), Surface(4, 4)));
  EXPECT_TRUE(SurfaceSizeDiffers(Surface(3, 4), Surface(3, 3)));
}

TEST(SurfaceOps, MakeMaskCopiesTheDrawingThroughMemory) {
  const Surface source = checkered(4, 4);
  Surface target(4, 4);
  EXPECT_TRUE(MakeMask_viaMemoryDC(source, target));
  EXPECT_TRUE(samePixels(source, target));
  EXPECT_FALSE(target.hasPicture());
}

TEST(SurfaceOps, TilesCoverTheTargetFromTheTopLeft) {
  const Surface source = checkered(3, 2);
  Surface target(8, 7, kGround);
  TilePicture(source, target);
  for (int y = 0; y < 7; ++y)
    for (int x = 0; x < 8; ++x) EXPECT_EQ(target.GetPixel(x, y), source.GetPixel(x % 3, y % 2));
}

TEST(SurfaceOps, AnEmptyTileLaysNothing) {
  Surface target(3, 3);
  TilePicture(Surface(0, 4), target);
  EXPECT_EQ(target.GetPixel(1, 1), kWhite);
}

}  // namespace
}  // namespace gp

// The pictures of the alpha screen.
#include "alpha/AlphaCanvas.h"
#include "alpha/AlphaShade.h"
#include "document/AlphaCompositing.h"
#include "document/IconSizes.h"
#include "document/Magnifier.h"
#include "platform/gdi/RasterOps.h"
#include "platform/gdi/SurfaceOps.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace gp::test {
namespace {

bool sameSurface(const Surface& a, const Surface& b) { return std::ranges::equal(a.pixels(), b.pixels()); }

IconImage randomIcon(int size, std::mt19937& numbers) {
  const auto below = [&numbers](int end) { return static_cast<int>(numbers() % static_cast<unsigned>(end)); };
  IconImage icon = transparentIcon(size);
  icon.alpha = AlphaMatrix(size, size, 255);
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x) {
      // Some of these pixels are transparent and not black, as in files that invert the screen.
      if (below(4) != 0) icon.image.SetPixelV(x, y, rgb(below(256), below(256), below(256)));
      if (below(3) != 0) icon.mask.SetPixelV(x, y, kBlack);
      icon.alpha.at(x, y) = static_cast<std::uint8_t>(below(256));
    }
  return icon;
}

// The pictures, made as a whole from an icon with alpha values.
Surface composed(const IconImage& icon) {
  Surface picture(icon.width(), icon.height(), kGround);
  composeAlpha(icon.mask, icon.image, icon.alpha, picture);
  return picture;
}
Surface shaded(const IconImage& icon) {
  Surface picture(icon.width(), icon.height(), kWhite);
  shadeAlpha(icon.mask, icon.alpha, picture);
  return picture;
}
Surface shown(const IconImage& icon, Color gridColor) {
  const int factor = AlphaCanvas::kSide / icon.width();
  Surface picture = enlarged(composed(icon), factor);
  const Surface lines = gridAlone(icon.width(), icon.height(), factor, gridOf(gridColor));
  if (gridColor != kNoGrid) BitBlt(picture, 0, 0, picture.width(), picture.height(), lines, 0, 0, RasterOp::SRCAND);
  return picture;
}

void expectPicturesOf(const IconImage& icon, const AlphaCanvas& canvas, Color gridColor) {
  EXPECT_TRUE(sameSurface(canvas.picIconAlpha(), composed(icon)));
  EXPECT_TRUE(sameSurface(canvas.picMaskAlpha(), shaded(icon)));
  EXPECT_TRUE(sameSurface(canvas.picDisp(), shown(icon, gridColor)));
}

TEST(AlphaCanvas, PicturesOfEverySizeAndGridAreThoseOfTheWholeIcon) {
  std::mt19937 numbers(1);
  for (const int size : kIconSides)
    for (const Color grid : kGridColors) {
      SCOPED_TRACE(testing::Message() << size << " grid " << grid);
      const IconImage icon = randomIcon(size, numbers);
      const AlphaCanvas canvas(icon, gridOf(grid));
      EXPECT_EQ(canvas.magnification(), 384 / size);
      EXPECT_EQ(canvas.picDisp().width(), 384);
      EXPECT_EQ(canvas.picDisp().height(), 384);
      expectPicturesOf(icon, canvas, grid);
    }
}

TEST(AlphaCanvas, TheyFollowEachValue) {
  std::mt19937 numbers(2);
  for (const int size : kIconSides)
    for (const Color grid : {kGridColors[0], kDottedGrid, kNoGrid, Color{-2}}) {
      IconImage icon = randomIcon(size, numbers);
      AlphaCanvas canvas(icon, gridOf(grid));
      for (int i = 0; i < 100; ++i) {
        const int x = static_cast<int>(numbers() % static_cast<unsigned>(size));
        const int y = static_cast<int>(numbers() % static_cast<unsigned>(size));
        const auto alpha = static_cast<std::uint8_t>(numbers());
        const bool isPainted = icon.mask.GetPixel(x, y) == kBlack;
        EXPECT_EQ(canvas.setAlpha(x, y, alpha), isPainted);
        if (isPainted) icon.alpha.at(x, y) = alpha;
      }
      expectPicturesOf(icon, canvas, grid);
      EXPECT_EQ(canvas.icon().alpha, icon.alpha);
    }
}

// One painted pixel at (3, 2), of a colour.
IconImage onePixel(Color color, int alpha) {
  IconImage icon = transparentIcon(16);
  icon.image.SetPixelV(3, 2, color);
  icon.mask.SetPixelV(3, 2, kBlack);
  icon.alpha = AlphaMatrix(16, 16, static_cast<std::uint8_t>(alpha));
  return icon;
}

TEST(AlphaCanvas, AlphaZeroShowsTheGroundAndStaysPainted) {
  AlphaCanvas canvas(onePixel(rgb(10, 20, 30), 255), Grid());
  EXPECT_EQ(canvas.picIconAlpha().GetPixel(3, 2), rgb(10, 20, 30));
  EXPECT_EQ(canvas.picMaskAlpha().GetPixel(3, 2), kBlack);
  EXPECT_TRUE(canvas.setAlpha(3, 2, 0));
  EXPECT_EQ(canvas.picIconAlpha().GetPixel(3, 2), kGround);
  EXPECT_EQ(canvas.picMaskAlpha().GetPixel(3, 2), kWhite);
  EXPECT_EQ(canvas.icon().mask.GetPixel(3, 2), kBlack);
  EXPECT_EQ(canvas.icon().image.GetPixel(3, 2), rgb(10, 20, 30));
  EXPECT_EQ(canvas.icon().alpha.at(3, 2), 0);
}

TEST(AlphaCanvas, TwoLooksLikeZeroAnd255IsTheExactColor) {
  for (const int alpha : {0, 1, 2}) {
    EXPECT_EQ(AlphaCanvas(onePixel(rgb(10, 20, 30), alpha), Grid()).picIconAlpha().GetPixel(3, 2), kGround) << alpha;
    EXPECT_EQ(AlphaCanvas(onePixel(rgb(10, 20, 30), alpha), Grid()).picMaskAlpha().GetPixel(3, 2), kWhite) << alpha;
  }
  EXPECT_EQ(AlphaCanvas(onePixel(rgb(10, 20, 30), 3), Grid()).picIconAlpha().GetPixel(3, 2), rgb(190, 190, 190));
  EXPECT_EQ(AlphaCanvas(onePixel(rgb(10, 20, 30), 255), Grid()).picIconAlpha().GetPixel(3, 2), rgb(10, 20, 30));
}

TEST(AlphaCanvas, ATransparentPixelGetsNoValue) {
  IconImage icon = onePixel(rgb(10, 20, 30), 255);
  icon.alpha.at(4, 4) = 60;  // disagrees with the Mask
  icon.image.SetPixelV(5, 5, kWhite);
  AlphaCanvas canvas(icon, Grid());
  canvas.takeChanged();
  for (const auto& [x, y] : {std::pair{4, 4}, {5, 5}, {-1, 2}, {3, -1}, {16, 2}, {3, 16}})
    EXPECT_FALSE(canvas.setAlpha(x, y, 7)) << x << " " << y;
  EXPECT_EQ(canvas.icon().alpha, icon.alpha);
  EXPECT_TRUE(canvas.takeChanged().isEmpty());
  EXPECT_EQ(canvas.picIconAlpha().GetPixel(5, 5), kGround) << "no pixel is inverted";
  EXPECT_EQ(canvas.picMaskAlpha().GetPixel(4, 4), kWhite);
}

TEST(AlphaCanvas, WithoutAlphaValuesAllIsOpaque) {
  IconImage icon = onePixel(rgb(10, 20, 30), 255);
  icon.alpha = AlphaMatrix();
  const AlphaCanvas canvas(icon, Grid());
  EXPECT_EQ(canvas.icon().alpha, AlphaMatrix(16, 16, 255));
  EXPECT_EQ(canvas.picIconAlpha().GetPixel(3, 2), rgb(10, 20, 30));
}

TEST(AlphaCanvas, TheIconIsBlendedOverThreeGrounds) {
  AlphaCanvas canvas(onePixel(rgb(200, 100, 0), 255), Grid());
  constexpr Color kExpected[] = {rgb(227, 177, 127), rgb(196, 146, 96), rgb(132, 82, 32)};
  for (std::size_t i = 0; i < AlphaCanvas::kGrounds.size(); ++i) {
    EXPECT_EQ(canvas.onGround(i).GetPixel(3, 2), rgb(200, 100, 0));
    EXPECT_EQ(canvas.onGround(i).GetPixel(0, 0), AlphaCanvas::kGrounds[i]);
  }
  canvas.setAlpha(3, 2, 128);
  for (std::size_t i = 0; i < AlphaCanvas::kGrounds.size(); ++i)
    EXPECT_EQ(canvas.onGround(i).GetPixel(3, 2), kExpected[i]) << i;
  canvas.setAlpha(3, 2, 0);
  for (std::size_t i = 0; i < AlphaCanvas::kGrounds.size(); ++i)
    EXPECT_EQ(canvas.onGround(i).GetPixel(3, 2), AlphaCanvas::kGrounds[i]);
}

TEST(AlphaCanvas, ChangesAreReportedOnce) {
  IconImage icon = transparentIcon(16);
  icon.mask.fill(kBlack);
  AlphaCanvas canvas(icon, Grid());
  canvas.takeChanged();
  canvas.setAlpha(3, 7, 60);
  canvas.setAlpha(5, 2, 60);
  EXPECT_EQ(canvas.takeChanged(), (PixelBox{3, 2, 6, 8}));
  EXPECT_TRUE(canvas.takeChanged().isEmpty());
  canvas.setAlpha(3, 7, 60);
  EXPECT_TRUE(canvas.takeChanged().isEmpty()) << "the value was there already";
  canvas.replaceAlpha(AlphaMatrix(16, 16, 255));
  EXPECT_EQ(canvas.takeChanged(), (PixelBox{3, 2, 6, 8}));
}

TEST(AlphaCanvas, AllZeroAndAll255AreShown) {
  IconImage icon = transparentIcon(48);
  icon.image.fill(rgb(1, 2, 3));
  icon.mask.fill(kBlack);
  icon.alpha = AlphaMatrix(48, 48, 0);
  EXPECT_TRUE(sameSurface(AlphaCanvas(icon, Grid()).picIconAlpha(), Surface(48, 48, kGround)));
  icon.alpha = AlphaMatrix(48, 48, 255);
  EXPECT_TRUE(sameSurface(AlphaCanvas(icon, Grid()).picIconAlpha(), icon.image));
}

}  // namespace
}  // namespace gp::test

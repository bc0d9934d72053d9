// Alpha values as shades of grey, and icons that get or lose them.
#include "alpha/AlphaConversion.h"
#include "alpha/AlphaShade.h"
#include "document/AlphaCompositing.h"
#include "document/Containers.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace gp::test {
namespace {

constexpr int kIconsPerSize = 60;  // 240 in all

// The percentage of an alpha value by whole numbers alone.
int percentOf(int alpha) { return alpha * 100 / 255; }

IconImage generated(int size, int number) {
  std::mt19937 numbers(static_cast<unsigned>(size * 1000 + number));
  const auto below = [&numbers](int end) { return static_cast<int>(numbers() % static_cast<unsigned>(end)); };
  IconImage icon = transparentIcon(size);
  icon.alpha = AlphaMatrix(size, size, 255);
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x) {
      if (below(4) != 0) icon.image.SetPixelV(x, y, rgb(below(256), below(256), below(256)));
      if (below(10) < number % 11) icon.mask.SetPixelV(x, y, kBlack);
      icon.alpha.at(x, y) = static_cast<std::uint8_t>(number % 3 == 0 ? below(4) : below(256));
    }
  return icon;
}

bool sameSurface(const Surface& a, const Surface& b) { return std::ranges::equal(a.pixels(), b.pixels()); }

TEST(Alpha, APercentageIsTheWholePart) {
  EXPECT_EQ(alphaPercent(255), 100);
  EXPECT_EQ(alphaPercent(254), 99);
  EXPECT_EQ(alphaPercent(128), 50);
  EXPECT_EQ(alphaPercent(3), 1);
  EXPECT_EQ(alphaPercent(2), 0);
  EXPECT_EQ(alphaPercent(0), 0);
  for (int alpha = 0; alpha <= 255; ++alpha) EXPECT_EQ(alphaPercent(alpha), percentOf(alpha)) << alpha;
}

TEST(Alpha, OpaqueIsBlackAndTransparentWhite) {
  EXPECT_EQ(shadeOf(255), 0);
  EXPECT_EQ(shadeOf(254), 3);
  EXPECT_EQ(shadeOf(128), 128);
  EXPECT_EQ(shadeOf(2), 255);
  EXPECT_EQ(shadeOf(0), 255);
}

TEST(Alpha, OnlyPaintedPixelsAreShaded) {
  for (const int size : kIconSides)
    for (int number = 0; number < kIconsPerSize; ++number) {
      const IconImage icon = generated(size, number);
      Surface shades(size, size, rgb(1, 2, 3));
      shadeAlpha(icon.mask, icon.alpha, shades);
      for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
          const int tenfold = (100 - percentOf(icon.alpha.at(x, y))) * 255;
          const int level = tenfold % 100 == 50 ? tenfold / 100 + tenfold / 100 % 2 : (tenfold + 50) / 100;
          const Color expected = icon.mask.GetPixel(x, y) == kBlack ? rgb(level, level, level) : rgb(1, 2, 3);
          ASSERT_EQ(shades.GetPixel(x, y), expected) << size << " " << number;
        }
    }
}

TEST(AlphaConversion, PaintedPixelsKeepTheirLookOnTheGround) {
  for (const int size : kIconSides)
    for (int number = 0; number < kIconsPerSize; ++number) {
      const IconImage icon = generated(size, number);
      const IconImage converted = convertRetainAlpha(icon);
      EXPECT_FALSE(converted.hasAlphaValues());
      for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
          const int percent = percentOf(icon.alpha.at(x, y));
          const bool isVisible = icon.mask.GetPixel(x, y) == kBlack && percent > 0;
          const Color color = icon.image.GetPixel(x, y);
          const auto mixed = [percent](int channel) { return ((100 - percent) * 192 + percent * channel) / 100; };
          ASSERT_EQ(converted.mask.GetPixel(x, y), isVisible ? kBlack : kWhite) << size << " " << number;
          ASSERT_EQ(converted.image.GetPixel(x, y),
                    isVisible ? rgb(mixed(redOf(color)), mixed(greenOf(color)), mixed(blueOf(color))) : kBlack)
              << size << " " << number;
        }
    }
}

TEST(AlphaConversion, APixelOfAlpha2BecomesTransparentAndOneOf255KeepsItsColor) {
  IconImage icon{Surface(16, 16, rgb(10, 20, 30)), Surface(16, 16, kBlack), AlphaMatrix(16, 16, 255)};
  icon.alpha.at(3, 4) = 2;
  icon.alpha.at(5, 6) = 3;
  const IconImage converted = convertRetainAlpha(icon);
  EXPECT_EQ(converted.mask.GetPixel(3, 4), kWhite);
  EXPECT_EQ(converted.image.GetPixel(3, 4), kBlack);
  EXPECT_EQ(converted.image.GetPixel(5, 6), rgb(190, 190, 190));
  EXPECT_EQ(converted.image.GetPixel(0, 0), rgb(10, 20, 30));
}

TEST(AlphaConversion, TheRecordBecomesTrueColorOrThePalettesDepth) {
  IconContainerRec record = recordWithAlpha(NewRecord());
  EXPECT_EQ(record.depth(), (ColorDepth{kTrueColor, 32}));
  EXPECT_EQ(record.headerDepth(), (ColorDepth{kTrueColor, 32}));
  EXPECT_TRUE(record.hasAlpha);
  const IconImage plain = transparentIcon(16);
  const IconContainerRec trueColor = recordWithoutAlpha(record, plain, false);
  EXPECT_EQ(trueColor.depth(), (ColorDepth{kTrueColor, 24}));
  EXPECT_EQ(trueColor.headerDepth(), (ColorDepth{kTrueColor, 24}));
  EXPECT_FALSE(trueColor.hasAlpha);
  EXPECT_EQ(recordWithoutAlpha(record, plain, true).depth(), kMonoDepth);
}

TEST(AlphaConversion, AnIconWithoutAlphaBecomesOpaqueAndOthersKeepTheirValues) {
  const IconImage plain = transparentIcon(24);
  EXPECT_EQ(withAlphaValues(plain).alpha, AlphaMatrix(24, 24, 255));
  IconImage icon = generated(24, 5);
  EXPECT_EQ(withAlphaValues(icon).alpha, icon.alpha);
  EXPECT_TRUE(sameSurface(withAlphaValues(icon).image, icon.image));
}

}  // namespace
}  // namespace gp::test

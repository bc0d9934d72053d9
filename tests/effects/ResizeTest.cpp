// The icon at another size: exact pixels, and a slow model on many icons of every size.
#include "effects/EffectCases.h"
#include "effects/Pictures.h"
#include "effects/Resize.h"

#include <cmath>
#include <gtest/gtest.h>

namespace gp::test {
namespace {

constexpr int kIconsPerPair = 20;  // for each of the twelve pairs of sizes: 240 results of each kind
constexpr Color kTeal = rgb(0, 128, 128);

// The share of source pixel `from` in target pixel `to`, whose sides are in the ratio of the sizes.
double shareOf(int from, int to, int source, int target) {
  if (target < source) {
    const double begin = to * 1.0 * source / target, end = (to + 1) * 1.0 * source / target;
    return std::fmax(0, std::fmin(end, from + 1) - std::fmax(begin, from));
  }
  const double centre = std::fmin(std::fmax((to + 0.5) * source / target - 0.5, 0), source - 1);
  return std::fmax(0, 1 - std::fabs(centre - from));
}

// The source pixel that stays: the last column and the first row of those whose centres are in the target pixel; when
// the icon grows, the one under the target pixel's centre.
int keptOf(int to, int source, int target, bool isColumn) {
  int kept = -1;
  for (int from = 0; from < source; ++from) {
    if (target > source) {
      // On the line between two pixels the first one is kept.
      const int centre = (2 * to + 1) * source;
      if (2 * target * from < centre && centre <= 2 * target * (from + 1)) return from;
      continue;
    }
    // The centre of `from` in halves of target pixels; on a line it belongs to the pixel before it.
    const int centre = (2 * from + 1) * target;
    const bool isInside = 2 * source * to < centre && centre <= 2 * source * (to + 1);
    if (isInside && (isColumn || kept < 0)) kept = from;
  }
  return kept;
}

Color meanOfPainted(const IconImage& icon, int x, int y, int size) {
  double sum[3] = {0, 0, 0}, weight = 0;
  for (int fromY = 0; fromY < icon.height(); ++fromY)
    for (int fromX = 0; fromX < icon.width(); ++fromX) {
      const double share = shareOf(fromX, x, icon.width(), size) * shareOf(fromY, y, icon.height(), size);
      if (share <= 0 || icon.mask.GetPixel(fromX, fromY) != kBlack) continue;
      const Color color = icon.image.GetPixel(fromX, fromY);
      for (int channel = 0; channel < 3; ++channel) sum[channel] += share * (color >> 8 * channel & 255);
      weight += share;
    }
  // A hair above a half counts as the half that exact arithmetic gives.
  const auto rounded = [weight](double total) { return static_cast<int>(std::floor(total / weight + 0.5 + 1e-9)); };
  return rgb(rounded(sum[0]), rounded(sum[1]), rounded(sum[2]));
}

IconImage slowlyResized(const IconImage& icon, int size, bool isSoftened) {
  IconImage result{Surface(size, size, kBlack), Surface(size, size, kWhite), {}};
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x) {
      const int keptX = keptOf(x, icon.width(), size, true), keptY = keptOf(y, icon.height(), size, false);
      const Color mask = icon.mask.GetPixel(keptX, keptY);
      result.mask.SetPixelV(x, y, mask);
      if (!isSoftened) result.image.SetPixelV(x, y, icon.image.GetPixel(keptX, keptY));
      if (isSoftened && mask == kBlack) result.image.SetPixelV(x, y, meanOfPainted(icon, x, y, size));
    }
  return result;
}

// Icons of one size in 2, 16, 256 or many colours.
IconImage generated(int size, int number) {
  std::mt19937 numbers(static_cast<unsigned>(size * 1000 + number));
  const auto below = [&numbers](int end) { return static_cast<int>(numbers() % static_cast<unsigned>(end)); };
  const int levels[] = {1, 2, 6, 255};
  const int top = levels[number % 4], paintedTenths = number % 11;
  IconImage icon = transparentIcon(size);
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x) {
      const bool isPainted = below(10) < paintedTenths;
      const auto level = [&] { return below(top + 1) * 255 / top; };
      if (isPainted || below(5) == 0) icon.image.SetPixelV(x, y, rgb(level(), level(), level()));
      if (isPainted) icon.mask.SetPixelV(x, y, kBlack);
    }
  return icon;
}

TEST(Resize, EveryPairOfSizesEqualsASlowModel) {
  for (const int from : kIconSides)
    for (const int to : kIconSides) {
      if (from == to) continue;
      for (int number = 0; number < kIconsPerPair; ++number) {
        const IconImage icon = generated(from, number);
        for (const bool isSoftened : {true, false})
          ASSERT_TRUE(samePixels(resizedIcon(icon, to, isSoftened), slowlyResized(icon, to, isSoftened)))
              << from << " to " << to << ", icon " << number << (isSoftened ? " softened" : " plain");
      }
    }
}

TEST(Resize, SofteningDoesNotDarkenTheRim) {
  // Teal in the left five columns of sixteen: the target pixel over the rim has painted and transparent ones under it.
  IconImage icon = transparentIcon(48);
  for (int y = 0; y < 48; ++y)
    for (int x = 0; x < 17; ++x) {
      icon.image.SetPixelV(x, y, kTeal);
      icon.mask.SetPixelV(x, y, kBlack);
    }
  for (const int to : {16, 24, 32}) {
    const IconImage small = resizedIcon(icon, to, true);
    for (int y = 0; y < to; ++y)
      for (int x = 0; x < to; ++x)
        ASSERT_EQ(small.image.GetPixel(x, y), small.mask.GetPixel(x, y) == kBlack ? kTeal : kBlack) << to;
  }
}

TEST(Resize, AveragesAreRounded) {
  // Three of nine pixels are 1, six are 2: 15 / 9 is 2; one of 2 and eight of 1: 10 / 9 is 1.
  IconImage icon{Surface(48, 48, rgb(2, 1, 1)), Surface(48, 48, kBlack), {}};
  for (int y = 0; y < 48; ++y)
    for (int x = 0; x < 48; x += 3) icon.image.SetPixelV(x, y, rgb(1, y % 3 == 0 ? 2 : 1, 1));
  EXPECT_EQ(resizedIcon(icon, 16, true).image.GetPixel(5, 5), rgb(2, 1, 1));
}

TEST(Resize, InvertingPixelsStillInvertWhenPlainAndAreTransparentWhenSoftened) {
  IconImage icon = transparentIcon(16);
  icon.image.fill(kWhite);
  const IconImage plain = resizedIcon(icon, 32, false), softened = resizedIcon(icon, 32, true);
  EXPECT_EQ(plain.image.GetPixel(9, 9), kWhite);
  EXPECT_EQ(plain.mask.GetPixel(9, 9), kWhite);
  EXPECT_EQ(softened.image.GetPixel(9, 9), kBlack);
  EXPECT_EQ(softened.mask.GetPixel(9, 9), kWhite);
}

TEST(Resize, IconsOfOneColorAndEmptyOnesKeepTheirLook) {
  for (const int from : kIconSides)
    for (const int to : kIconSides)
      for (const bool isSoftened : {true, false}) {
        const IconImage full{Surface(from, from, kTeal), Surface(from, from, kBlack), {}};
        EXPECT_TRUE(
            samePixels(resizedIcon(full, to, isSoftened), {Surface(to, to, kTeal), Surface(to, to, kBlack), {}}));
        EXPECT_TRUE(samePixels(resizedIcon(transparentIcon(from), to, isSoftened), transparentIcon(to)));
      }
}

TEST(Resize, TheRecordGetsSizeAndDepthOfTheNewPicture) {
  IconContainerRec record;
  record.used = record.present = true;
  record.size = 16;
  record.setDepth({kTrueColor, 24});
  record.setHeaderDepth({16, 4});
  record.path = "app.ico";
  const IconContainerRec after = recordOfResized(record, {Surface(48, 48, rgb(1, 2, 3)), Surface(48, 48, kBlack), {}});
  EXPECT_EQ(after.size, 48);
  EXPECT_EQ(after.depth(), kPaletteDepth);
  EXPECT_EQ(after.headerDepth(), kPaletteDepth);
  EXPECT_EQ(after.path.trimmed(), "app.ico");
  EXPECT_EQ(recordOfResized(record, transparentIcon(24)).depth(), kMonoDepth);
}

}  // namespace
}  // namespace gp::test

#include "animation/AniFilm.h"
#include "animation/FilmBuilder.h"

#include <cmath>
#include <gtest/gtest.h>

namespace gp::test {
namespace {

AniFrames film(int count, int current = 1) {
  AniFrames frames(numberedFrames(count));
  frames.select(current);
  return frames;
}

Surface cellOf(const AniFilm& film, int n) {
  Surface cell(AniFilm::kCellWidth, AniFilm::kCellHeight);
  for (int y = 0; y < cell.height(); ++y)
    for (int x = 0; x < cell.width(); ++x)
      cell.SetPixelV(x, y, film.picFilm().GetPixel(x, (n - 1) * AniFilm::kCellHeight + y));
  return cell;
}
// True for a position of the picture.
bool isOfPicture(int x, int y) { return x >= 13 && x < 45 && y >= 8 && y < 40; }
bool isSameOutside(const Surface& a, const Surface& b) {
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x)
      if (!isOfPicture(x, y) && a.GetPixel(x, y) != b.GetPixel(x, y)) return false;
  return true;
}

double linear(int part) {
  const double value = part / 255.0;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}
double luminance(Color color) {
  return 0.2126 * linear(redOf(color)) + 0.7152 * linear(greenOf(color)) + 0.0722 * linear(blueOf(color));
}
double contrast(Color a, Color b) {
  const double first = luminance(a) + 0.05, second = luminance(b) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

TEST(AniFilmTest, HasACellForEachFrame) {
  AniFilm strip;
  strip.redraw(film(3));
  EXPECT_EQ(strip.picFilm().width(), 60);
  EXPECT_EQ(strip.picFilm().height(), 150);
  for (int n = 1; n <= 3; ++n)
    for (int y = 8; y < 40; ++y)
      for (int x = 13; x < 45; ++x) EXPECT_EQ(strip.picFilm().GetPixel(x, 50 * (n - 1) + y), n);
}

TEST(AniFilmTest, WithoutFramesHasOneEmptyCell) {
  AniFilm strip;
  strip.redraw(film(3));
  strip.redraw({});
  EXPECT_EQ(strip.picFilm().height(), 50);
  EXPECT_EQ(strip.picFilm().GetPixel(13, 8), kWhite);
  EXPECT_TRUE(std::ranges::equal(strip.picFilm().pixels(), AniFilm().picFilm().pixels()));
}

TEST(AniFilmTest, ShowsAPictureOnWhiteWithoutItsMask) {
  FilmFrame frame;
  frame.picture.image.SetPixelV(5, 6, 0x123456);
  AniFilm strip;
  strip.redraw(AniFrames({frame}));
  EXPECT_EQ(strip.picFilm().GetPixel(13 + 5, 8 + 6), 0x123456);
  EXPECT_EQ(strip.picFilm().GetPixel(13 + 6, 8 + 6), kWhite);
}

TEST(AniFilmTest, OnlyTheCurrentCellIsSelected) {
  AniFilm strip;
  strip.redraw(film(3, 2));
  EXPECT_TRUE(isSameOutside(cellOf(strip, 1), cellOf(strip, 3)));
  EXPECT_FALSE(isSameOutside(cellOf(strip, 1), cellOf(strip, 2)));
}

TEST(AniFilmTest, ASelectedCellHasAFrameThatIsPlainlyVisible) {
  AniFilm strip;
  strip.redraw(film(2));
  // All around the picture.
  for (const auto& [x, y] : {std::pair{10, 24}, {47, 24}, {29, 5}, {29, 42}, {10, 5}, {47, 42}})
    EXPECT_GE(contrast(strip.picFilm().GetPixel(x, y), strip.picFilm().GetPixel(x, 50 + y)), 3.0) << x << " " << y;
  // It is a shape, apart from the picture and from the holes.
  for (const int x : {12, 8})
    EXPECT_GE(contrast(strip.picFilm().GetPixel(10, 24), strip.picFilm().GetPixel(x, 24)), 3.0);
}

TEST(AniFilmTest, AMovedSelectionLooksLikeARedrawnFilm) {
  AniFilm moved, redrawn;
  moved.redraw(film(3, 1));
  moved.moveSelection(film(3, 3), 1, 3);
  redrawn.redraw(film(3, 3));
  EXPECT_TRUE(std::ranges::equal(moved.picFilm().pixels(), redrawn.picFilm().pixels()));
}

TEST(AniFilmTest, TheBarReachesTwoPixelsBeyondTheFilm) {
  AniFilm strip;
  strip.setVisibleHeight(120);
  strip.redraw(film(5));
  EXPECT_EQ(strip.scrollMaximum(), 250 - 120 + 2);
  EXPECT_EQ(strip.smallStep(), 50);
  EXPECT_EQ(strip.largeStep(), 120);
  strip.setVisibleHeight(252);
  EXPECT_EQ(strip.scrollMaximum(), 0);
  strip.setVisibleHeight(300);
  EXPECT_EQ(strip.scrollMaximum(), 0);
}

TEST(AniFilmTest, TheBarStaysInItsRange) {
  AniFilm strip;
  strip.setVisibleHeight(120);
  strip.redraw(film(5));
  strip.scrollTo(1000);
  EXPECT_EQ(strip.scroll(), 132);
  strip.scrollTo(-1);
  EXPECT_EQ(strip.scroll(), 0);
  strip.scrollTo(132);
  strip.redraw(film(4));
  EXPECT_EQ(strip.scroll(), 82) << "the film has become shorter";
  strip.setVisibleHeight(180);
  EXPECT_EQ(strip.scroll(), 22) << "the pane has become higher";
}

TEST(AniFilmTest, AFrameComesIntoViewAtThePanesBottom) {
  AniFilm strip;
  strip.setVisibleHeight(120);
  strip.redraw(film(5));
  strip.scrollIntoView(3);
  EXPECT_EQ(strip.scroll(), 30);
  strip.scrollIntoView(5);
  EXPECT_EQ(strip.scroll(), 130);
  strip.scrollIntoView(2);
  EXPECT_EQ(strip.scroll(), 0);
}

TEST(AniFilmTest, AFrameWhoseBottomIsAtThePanesBottomIsInView) {
  AniFilm strip;
  strip.setVisibleHeight(100);
  strip.redraw(film(5));
  strip.scrollTo(20);
  strip.scrollIntoView(2);
  EXPECT_EQ(strip.scroll(), 0);
}

TEST(AniFilmTest, CellsAreCountedFromOne) {
  EXPECT_EQ(AniFilm::frameAt(0), 1);
  EXPECT_EQ(AniFilm::frameAt(49), 1);
  EXPECT_EQ(AniFilm::frameAt(50), 2);
  EXPECT_EQ(AniFilm::frameAt(2450), 50);
}

}  // namespace
}  // namespace gp::test

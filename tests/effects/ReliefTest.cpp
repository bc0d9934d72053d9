#include "effects/Pictures.h"
#include "effects/Relief.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

constexpr Color kMarkedShadow = rgb(255, 1, 2);  // 'r'
constexpr ReliefKind kKinds[] = {ReliefKind::Embossed, ReliefKind::Engraved, ReliefKind::Raised, ReliefKind::Shadowed};

Rows reliefOf(ReliefKind kind, const Rows& rows, Color shadow = kBlack) {
  const IconImage icon = iconOf(rows);
  return rowsOf(relief(icon.image, icon.mask, {kind, shadow}));
}
Rows embossed(const Rows& rows) { return reliefOf(ReliefKind::Embossed, rows); }
Rows engraved(const Rows& rows) { return reliefOf(ReliefKind::Engraved, rows); }
Rows raised(const Rows& rows) { return reliefOf(ReliefKind::Raised, rows); }
Rows shadowed(const Rows& rows, Color shadow = kMarkedShadow) { return reliefOf(ReliefKind::Shadowed, rows, shadow); }

const Rows kOnePixel{".....", ".....", "..o..", ".....", "....."};

TEST(Relief, ASinglePixelLiesBetweenLightAndDarkOnADiagonal) {
  EXPECT_EQ(embossed(kOnePixel), (Rows{".....", ".w...", "..o..", "...g.", "....."}));
  EXPECT_EQ(raised(kOnePixel), (Rows{".....", ".w...", "..o..", "...b.", "....."}));
}

TEST(Relief, EngravedOnlySwapsTheColorsOfEmbossed) {
  EXPECT_EQ(engraved(kOnePixel), (Rows{".....", ".g...", "..o..", "...w.", "....."}));
  for (const Rows& rows : randomIcons(60)) {
    // Pictures in the two colours of the edges would be swapped as well.
    Rows plain = rows;
    for (std::string& row : plain)
      for (char& letter : row)
        if (letter == 'w' || letter == 'g') letter = 'o';
    Rows swapped = embossed(plain);
    for (std::string& row : swapped)
      for (char& letter : row) letter = letter == 'w' ? 'g' : letter == 'g' ? 'w' : letter;
    EXPECT_EQ(engraved(plain), swapped);
  }
}

TEST(Relief, AShadowLiesToTheBottomRightOnly) {
  EXPECT_EQ(shadowed(kOnePixel), (Rows{".....", ".....", "..o..", "...r.", "....."}));
  EXPECT_EQ(shadowed(kOnePixel, kBlack), (Rows{".....", ".....", "..o..", "...b.", "....."}));
}

TEST(Relief, AShadowIsBlackUnlessTold) {
  const IconImage icon = iconOf(kOnePixel);
  const Rows rows = rowsOf(relief(icon.image, icon.mask, {.kind = ReliefKind::Shadowed}));
  EXPECT_EQ(rows, (Rows{".....", ".....", "..o..", "...b.", "....."}));
}

TEST(Relief, TheShadowsColorIsNothingToTheOtherKinds) {
  for (const ReliefKind kind : {ReliefKind::Embossed, ReliefKind::Engraved, ReliefKind::Raised})
    EXPECT_EQ(reliefOf(kind, kOnePixel, kMarkedShadow), reliefOf(kind, kOnePixel, kBlack));
}

TEST(Relief, WhatWouldLeaveTheIconIsLost) {
  struct Case {
    Rows before, embossed, shadowed;
  };
  const Case cases[] = {
      {{"o..", "...", "..."}, {"o..", ".g.", "..."}, {"o..", ".r.", "..."}},
      {{".o.", "...", "..."}, {".o.", "..g", "..."}, {".o.", "..r", "..."}},
      {{"..o", "...", "..."}, {"..o", "...", "..."}, {"..o", "...", "..."}},
      {{"...", "o..", "..."}, {"...", "o..", ".g."}, {"...", "o..", ".r."}},
      {{"...", "..o", "..."}, {".w.", "..o", "..."}, {"...", "..o", "..."}},
      {{"...", "...", "o.."}, {"...", "...", "o.."}, {"...", "...", "o.."}},
      {{"...", "...", ".o."}, {"...", "w..", ".o."}, {"...", "...", ".o."}},
      {{"...", "...", "..o"}, {"...", ".w.", "..o"}, {"...", "...", "..o"}},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(embossed(c.before), c.embossed);
    EXPECT_EQ(shadowed(c.before), c.shadowed);
  }
}

TEST(Relief, LightLiesOverDarkWhereTheyMeet) {
  // The first pixel's dark edge and the second one's light edge fall together.
  const Rows apart{".....", ".o...", ".....", "...o.", "....."};
  EXPECT_EQ(embossed(apart), (Rows{"w....", ".o...", "..w..", "...o.", "....g"}));
  EXPECT_EQ(engraved(apart), (Rows{"g....", ".o...", "..g..", "...o.", "....w"}));
  EXPECT_EQ(raised(apart), (Rows{"w....", ".o...", "..w..", "...o.", "....b"}));
  EXPECT_EQ(shadowed(apart), (Rows{".....", ".o...", "..r..", "...o.", "....r"}));
}

TEST(Relief, ThePictureLiesOverItsEdges) {
  EXPECT_EQ(embossed({"....", ".o..", "..p.", "...."}), (Rows{"w...", ".o..", "..p.", "...g"}));
  EXPECT_EQ(shadowed({"....", ".o..", "..p.", "...."}), (Rows{"....", ".o..", "..p.", "...r"}));
  EXPECT_EQ(embossed({"....", ".op.", "....", "...."}), (Rows{"ww..", ".op.", "..gg", "...."}));
  EXPECT_EQ(embossed({"....", ".o..", ".p..", "...."}), (Rows{"w...", "wo..", ".pg.", "..g."}));
  EXPECT_EQ(embossed({"....", "..o.", ".p..", "...."}), (Rows{".w..", "w.o.", ".p.g", "..g."}));
}

TEST(Relief, APaintedBlackPixelIsPainted) { EXPECT_EQ(embossed({"...", ".b.", "..."}), (Rows{"w..", ".b.", "..g"})); }

TEST(Relief, AnIconThatIsPaintedAllOverStays) {
  const Rows full{"opop", "popo", "bwgs"};
  for (const ReliefKind kind : kKinds) EXPECT_EQ(reliefOf(kind, full, kMarkedShadow), full);
}

TEST(Relief, AnIconWithoutAPaintedPixelBecomesEmpty) {
  for (const ReliefKind kind : kKinds) {
    EXPECT_EQ(reliefOf(kind, flatRows(4, 3, '.')), flatRows(4, 3, '.'));
    // Inverting pixels are not painted.
    EXPECT_EQ(reliefOf(kind, {".^.", "~^.", "..."}), flatRows(3, 3, '.'));
  }
}

TEST(Relief, PixelsOfAMaskThatIsNotBlackAreNotPainted) {
  EXPECT_EQ(embossed({".....", ".^.~.", "..o..", "./...", "....."}),
            (Rows{".....", ".w...", "..o..", "...g.", "....."}));
}

TEST(Relief, IconsOfAnySizeKeepIt) {
  for (const auto& [width, height] : kOddSizes)
    for (const ReliefKind kind : kKinds)
      for (const char letter : {'.', 'o'})
        EXPECT_EQ(reliefOf(kind, flatRows(width, height, letter)), flatRows(width, height, letter))
            << width << ' ' << height;
  EXPECT_EQ(embossed({"..o.."}), Rows{"..o.."});
  EXPECT_EQ(embossed({".", "o", "."}), (Rows{".", "o", "."}));
  EXPECT_EQ(embossed({".......", "..o....", "......."}), (Rows{".w.....", "..o....", "...g..."}));
}

TEST(Relief, TheFourthByteOfAPixelIsNoPartOfIt) {
  IconImage icon = iconOf(kOnePixel);
  for (Surface* surface : {&icon.image, &icon.mask})
    for (int y = 0; y < surface->height(); ++y)
      for (int x = 0; x < surface->width(); ++x) surface->rowForWriting(y, x, x + 1)[x] |= 0xFF000000U;
  const IconImage result = relief(icon.image, icon.mask, {});
  EXPECT_EQ(rowsOf(result), embossed(kOnePixel));
  for (const std::uint32_t pixel : result.image.pixels()) EXPECT_EQ(pixel & 0xFF000000U, 0U);
}

// The rules once more, pixel by pixel and seen from the result: what does each place get?
IconImage slowRelief(const IconImage& icon, ReliefKind kind, Color shadow) {
  const bool hasLight = kind != ReliefKind::Shadowed;
  const Color light = kind == ReliefKind::Engraved ? rgb(128, 128, 128) : kWhite;
  const Color dark = kind == ReliefKind::Embossed   ? rgb(128, 128, 128)
                     : kind == ReliefKind::Engraved ? kWhite
                     : kind == ReliefKind::Raised   ? kBlack
                                                    : shadow;
  IconImage result = icon;
  const auto painted = [&icon](int x, int y) { return icon.mask.GetPixel(x, y) == kBlack; };
  for (int y = 0; y < icon.image.height(); ++y)
    for (int x = 0; x < icon.image.width(); ++x) {
      const Color color = painted(x, y)                       ? icon.image.GetPixel(x, y)
                          : hasLight && painted(x + 1, y + 1) ? light
                          : painted(x - 1, y - 1)             ? dark
                                                              : kNoColor;
      result.image.SetPixelV(x, y, color == kNoColor ? kBlack : color);
      result.mask.SetPixelV(x, y, color == kNoColor ? kWhite : kBlack);
    }
  return result;
}

TEST(Relief, EqualsWhatEachPlaceGetsByItsNeighbours) {
  for (const Rows& rows : randomIcons(300)) {
    const IconImage icon = iconOf(rows);
    for (const ReliefKind kind : kKinds)
      EXPECT_EQ(reliefOf(kind, rows, kMarkedShadow), rowsOf(slowRelief(icon, kind, kMarkedShadow)));
  }
}

}  // namespace
}  // namespace gp::test

// A line of text in its five styles: exact pixels, and a slow model of them.
#include "effects/EffectCases.h"
#include "effects/WriteText.h"
#include "support/FakeTextDrawing.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace gp::test {
namespace {

using Rows = std::vector<std::string>;

constexpr Color kRed = rgb(255, 0, 0), kBlue = rgb(0, 0, 255);
constexpr Color kGrey = 0x808080, kLight = 0xFFEEFF;
constexpr const char* kRelief =
    "Cannot use this color for text of Embossed/Engraved style,\nplease choose another color (e.g. one near it).";
constexpr const char* kShadowed =
    "Cannot use this color for text of Shadowed style,\nplease choose another color (e.g. one near it).";

Surface lineOf(const Rows& rows) {
  Surface line(static_cast<int>(rows.front().size()), static_cast<int>(rows.size()));
  for (int y = 0; y < line.height(); ++y)
    for (int x = 0; x < line.width(); ++x)
      if (rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] == '#') line.SetPixelV(x, y, kBlack);
  return line;
}

// 't' is the red text, 'g' and 'l' are the colours of relief, '.' is transparent.
Rows rowsOf(const IconImage& content) {
  Rows rows(static_cast<std::size_t>(content.height()));
  for (int y = 0; y < content.height(); ++y)
    for (int x = 0; x < content.width(); ++x) {
      const Color image = content.image.GetPixel(x, y), mask = content.mask.GetPixel(x, y);
      const bool isTransparent = mask == kWhite && image == kBlack;
      rows[static_cast<std::size_t>(y)] += isTransparent     ? '.'
                                           : mask != kBlack  ? '?'
                                           : image == kRed   ? 't'
                                           : image == kGrey  ? 'g'
                                           : image == kLight ? 'l'
                                                             : '?';
    }
  return rows;
}

const Rows kCorner{"##", "#."};

Rows written(TextStyle style, int angle = 0, const Rows& rows = kCorner) {
  return rowsOf(writtenText(lineOf(rows), {style, kRed, angle}, 16, 16));
}

TEST(WriteText, OrdinaryAndHollowAreTheLettersInTheColor) {
  EXPECT_EQ(written(TextStyle::Ordinary), (Rows{"tt", "t."}));
  EXPECT_EQ(written(TextStyle::Hollow), (Rows{"tt", "t."}));
}

TEST(WriteText, HollowAloneIsDrawnByItsOutline) {
  for (const TextStyle style : {TextStyle::Ordinary, TextStyle::Embossed, TextStyle::Engraved, TextStyle::Shadowed})
    EXPECT_EQ(lookOf(style), TextLook::Filled);
  EXPECT_EQ(lookOf(TextStyle::Hollow), TextLook::Outline);
}

TEST(WriteText, EmbossedHasItsLightUpLeftAndEngravedDownRight) {
  EXPECT_EQ(written(TextStyle::Embossed), (Rows{"ll..", "ltt.", ".tgg", "..g."}));
  EXPECT_EQ(written(TextStyle::Engraved), (Rows{"gg..", "gtt.", ".tll", "..l."}));
}

TEST(WriteText, ShadowedHasItsShadowDownRight) { EXPECT_EQ(written(TextStyle::Shadowed), (Rows{"tt.", "tgg", ".g."})); }

TEST(WriteText, ThePicturesBoxIsThatOfItsPixels) {
  EXPECT_EQ(written(TextStyle::Ordinary, 0, {".....", "..#..", "..##.", "....."}), (Rows{"t.", "tt"}));
  EXPECT_TRUE(writtenText(lineOf({"...", "..."}), {TextStyle::Embossed, kRed, 0}, 16, 16).isEmpty());
  EXPECT_TRUE(writtenText(lineOf({"..."}), {TextStyle::Ordinary, kRed, 33}, 16, 16).isEmpty());
  EXPECT_TRUE(writtenText(Surface(0, 0), {TextStyle::Ordinary, kRed, 0}, 16, 16).isEmpty());
}

TEST(WriteText, ATextInPureWhiteComesOutWhite) {
  for (int style = 0; style < kTextStyles; ++style)
    for (const int angle : {0, 45}) {
      const IconImage text = writtenText(lineOf(kCorner), {static_cast<TextStyle>(style), kWhite, angle}, 16, 16);
      int white = 0;
      for (int y = 0; y < text.height(); ++y)
        for (int x = 0; x < text.width(); ++x) {
          EXPECT_NE(text.image.GetPixel(x, y), kBlue);
          white += text.image.GetPixel(x, y) == kWhite && text.mask.GetPixel(x, y) == kBlack ? 1 : 0;
        }
      EXPECT_GE(white, angle == 0 ? 3 : 1) << style;
    }
}

TEST(WriteText, AnyOtherColorIsKeptAlsoTheOneInPlaceOfWhiteAndThatOfTheGround) {
  for (const Color color : {kBlue, kBlack, kGround, Color{0xFFFFFE}, kGrey, kLight}) {
    const IconImage text = writtenText(lineOf(kCorner), {TextStyle::Ordinary, color, 0}, 16, 16);
    EXPECT_EQ(text.image.GetPixel(0, 0), color);
    EXPECT_EQ(text.mask.GetPixel(0, 0), kBlack);
    EXPECT_EQ(text.mask.GetPixel(1, 1), kWhite);
    EXPECT_EQ(text.image.GetPixel(1, 1), kBlack);
  }
}

TEST(WriteText, QuarterTurnsKeepEveryPixel) {
  const Rows letter{"####", "#...", "##..", "#..."};
  EXPECT_EQ(written(TextStyle::Ordinary, 0, letter), (Rows{"tttt", "t...", "tt..", "t..."}));
  EXPECT_EQ(written(TextStyle::Ordinary, 90, letter), (Rows{"t...", "t...", "t.t.", "tttt"}));
  EXPECT_EQ(written(TextStyle::Ordinary, -90, letter), (Rows{"tttt", ".t.t", "...t", "...t"}));
  EXPECT_EQ(written(TextStyle::Ordinary, 180, letter), (Rows{"...t", "..tt", "...t", "tttt"}));
  EXPECT_EQ(written(TextStyle::Ordinary, -180, letter), written(TextStyle::Ordinary, 180, letter));
}

TEST(WriteText, ColorsThatAStyleDrawsAreRefused) {
  const auto refusal = [](TextStyle style, Color color) {
    const char* text = refusalOfColor(style, color);
    return std::string(text ? text : "");
  };
  for (const TextStyle style : {TextStyle::Embossed, TextStyle::Engraved}) {
    EXPECT_EQ(refusal(style, kGrey), kRelief);
    EXPECT_EQ(refusal(style, kLight), kRelief);
  }
  EXPECT_EQ(refusal(TextStyle::Shadowed, kGrey), kShadowed);
  EXPECT_EQ(refusal(TextStyle::Shadowed, kLight), "");
  for (const TextStyle style : {TextStyle::Ordinary, TextStyle::Hollow})
    for (const Color color : {kGrey, kLight, kBlack}) EXPECT_EQ(refusal(style, color), "");
  for (int style = 0; style < kTextStyles; ++style)
    for (const Color color : {kBlack, kWhite, kRed, kBlue, Color{0x808081}, kGround})
      EXPECT_EQ(refusal(static_cast<TextStyle>(style), color), "");
}

TEST(WriteText, ACapitalLetterFillsThreeQuartersAHalfAndAThirdOfTheIcon) {
  struct Case {
    int icon, normal, small, tiny;
  };
  for (const Case& row : {Case{16, 12, 8, 5}, {24, 18, 12, 8}, {32, 24, 16, 11}, {48, 36, 24, 16}}) {
    EXPECT_EQ(capitalHeightOf(TextSize::Normal, row.icon), row.normal);
    EXPECT_EQ(capitalHeightOf(TextSize::Small, row.icon), row.small);
    EXPECT_EQ(capitalHeightOf(TextSize::Tiny, row.icon), row.tiny);
  }
}

TEST(WriteText, TheSizeOfTheFontFollowsFromItsCapitalLetters) {
  FakeTextDrawing drawing;
  // Its capital letters are three quarters of the font.
  for (const auto& [capital, pixels] : {std::pair{36, 48}, {24, 32}, {16, 21}, {5, 7}, {0, 1}})
    EXPECT_EQ(fontPixels(drawing, {.family = "Block", .pixels = 3}, capital), pixels) << capital;
}

TEST(WriteText, AFontWithoutCapitalLettersHasASizeWithinTheLimits) {
  struct FlatFont : FakeTextDrawing {
    int height = 0;
    int capitalHeight(const TextFont&) override { return height; }
  } drawing;
  for (const int height : {0, -5, 1, 1000000}) {
    drawing.height = height;
    const int pixels = fontPixels(drawing, {.family = "Block"}, 36);
    EXPECT_GE(pixels, 1) << height;
    EXPECT_LE(pixels, 100) << height;
  }
}

// A picture as a list of pixels, every step by itself.
struct Model {
  int width, height;
  std::vector<Color> pixels;

  Model(int w, int h) : width(w), height(h), pixels(static_cast<std::size_t>(w * h), kWhite) {}
  bool has(int x, int y) const { return x >= 0 && y >= 0 && x < width && y < height; }
  Color& at(int x, int y) {
    return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
  }
  void printAt(const Surface& line, int x, int y, Color color) {
    for (int row = 0; row < line.height(); ++row)
      for (int column = 0; column < line.width(); ++column)
        if (line.GetPixel(column, row) != kWhite) at(x + column, y + row) = color;
  }
};

Model styled(const Surface& line, int style, Color color, int icon) {
  Model model(std::max(icon, line.width() + 2), std::max(icon, line.height() + 2));
  const int x = 1, y = 1;
  if (style == 2 || style == 3) {
    model.printAt(line, x + 1, y + 1, style == 2 ? kGrey : kLight);
    model.printAt(line, x - 1, y - 1, style == 2 ? kLight : kGrey);
  }
  if (style == 4) model.printAt(line, x + 1, y + 1, kGrey);
  model.printAt(line, x, y, color);
  return model;
}

// By four quarter turns of one angle, whose sources are rounded to the nearest pixel.
Model rotated(Model source, int angle) {
  if (angle == 0) return source;
  const double pi = 3.14159265359, turn = angle / 360.0 * 2 * pi;
  const double diagonal = std::sqrt(source.width * source.width + source.height * source.height);
  const int side = static_cast<int>(diagonal + 2);
  Model target(side, side);
  const int reach = static_cast<int>(std::nearbyint(diagonal) + 2) / 2;
  const int middleX = source.width / 2, middleY = source.height / 2;
  const auto copy = [&](double fromX, double fromY, int x, int y) {
    const int sourceX = static_cast<int>(std::nearbyint(middleX + fromX));
    const int sourceY = static_cast<int>(std::nearbyint(middleY + fromY));
    if (!source.has(sourceX, sourceY) || source.at(sourceX, sourceY) == kWhite) return;
    if (target.has(side / 2 + x, side / 2 + y)) target.at(side / 2 + x, side / 2 + y) = source.at(sourceX, sourceY);
  };
  for (int x = 0; x <= reach; ++x)
    for (int y = 0; y <= reach; ++y) {
      const double start = x == 0 ? pi / 2 : std::atan(double(y) / x);
      const double r = std::sqrt(double(x * x + y * y));
      const double u = r * std::cos(turn + start), v = r * std::sin(turn + start);
      copy(u, v, x, y);
      copy(-u, -v, -x, -y);
      copy(v, -u, y, -x);
      copy(-v, u, -y, x);
    }
  return target;
}

IconImage modelText(const Surface& line, int style, Color color, int angle, int icon) {
  const Color drawn = color == kWhite ? kBlue : color;
  Model picture = rotated(styled(line, style, drawn, icon), angle);
  int left = picture.width, top = picture.height, right = -1, bottom = -1;
  for (int y = 0; y < picture.height; ++y)
    for (int x = 0; x < picture.width; ++x)
      if (picture.at(x, y) != kWhite) {
        left = std::min(left, x), right = std::max(right, x);
        top = std::min(top, y), bottom = std::max(bottom, y);
      }
  if (right < 0) return {};
  IconImage content{Surface(right - left + 1, bottom - top + 1), Surface(right - left + 1, bottom - top + 1), {}};
  for (int y = top; y <= bottom; ++y)
    for (int x = left; x <= right; ++x) {
      const Color pixel = picture.at(x, y);
      const bool isMarker = style >= 2 && pixel != drawn;
      content.image.SetPixelV(x - left, y - top, pixel == kWhite ? kBlack : isMarker ? pixel : color);
      content.mask.SetPixelV(x - left, y - top, pixel == kWhite ? kWhite : kBlack);
    }
  return content;
}

TEST(WriteText, ItEqualsASlowModelForEveryStyleColorAngleAndSize) {
  int compared = 0;
  for (const int icon : kIconSides)
    for (int style = 0; style < kTextStyles; ++style)
      for (const int angle : {0, 1, 30, 45, 90, 137, 180, -1, -77, -180})
        for (const Color color : {kBlack, kWhite, kBlue, kGround, rgb(200, 17, 99)})
          for (const char* words : {"A", "Gx9", "Some more"}) {
            const TextFont font{.family = "Block", .pixels = icon / 2, .italic = style == 1};
            const auto look = style == 1 ? TextLook::Outline : TextLook::Filled;
            const Surface line = FakeTextDrawing::pictureOf(words, font, look, 3 * icon);
            const TextSettings settings{static_cast<TextStyle>(style), color, angle};
            ASSERT_TRUE(samePixels(writtenText(line, settings, icon, icon), modelText(line, style, color, angle, icon)))
                << words << " style " << style << " angle " << angle << " color " << color << " icon " << icon;
            ++compared;
          }
  EXPECT_EQ(compared, 3000);
}

TEST(WriteText, TheEffectBelongsToThePanelAndIsNoneOfGpicon) {
  EXPECT_EQ(findEffect(0), &kText);
  EXPECT_EQ(findEffect("text"), nullptr);
  EXPECT_EQ(findEffect("Text"), nullptr);
  for (const EffectRow* effect : commandLineEffects()) EXPECT_NE(effect, &kText);
}

}  // namespace
}  // namespace gp::test

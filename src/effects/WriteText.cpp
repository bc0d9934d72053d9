#include "effects/WriteText.h"

#include "drawing/RotateSurface.h"
#include "effects/EffectTable.h"
#include "effects/TextPanel.h"
#include "platform/gdi/RasterOps.h"
#include "platform/text/Numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace gp {
namespace {

// The letters are drawn one pixel off the edge, so that relief has room at all sides.
constexpr int kMargin = 1;
// The text is drawn on white, so a white one is drawn in this colour.
constexpr Color kInPlaceOfWhite = rgb(0, 0, 255);
// In a table: the colour of the text.
constexpr Color kTextColor = kNoColor;

// One print of the letters, moved by so many pixels to the right and down.
struct Print {
  int offset;
  Color color;
};

constexpr Print kPlain[] = {{0, kTextColor}};
constexpr Print kEmboss[] = {{1, kReliefGrey}, {-1, kReliefLight}, {0, kTextColor}};
constexpr Print kEngrave[] = {{1, kReliefLight}, {-1, kReliefGrey}, {0, kTextColor}};
constexpr Print kShadow[] = {{1, kReliefGrey}, {0, kTextColor}};

constexpr const char* kRefusedByRelief =
    "Cannot use this color for text of Embossed/Engraved style,\nplease choose another color (e.g. one near it).";
constexpr const char* kRefusedByShadow =
    "Cannot use this color for text of Shadowed style,\nplease choose another color (e.g. one near it).";

struct StyleRow {
  TextLook look;
  std::span<const Print> prints;  // one over the other
  const char* refusal;            // of the colours that the prints have; null for a style without them
};

constexpr std::array<StyleRow, kTextStyles> kStyles{{{TextLook::Filled, kPlain, nullptr},
                                                     {TextLook::Outline, kPlain, nullptr},
                                                     {TextLook::Filled, kEmboss, kRefusedByRelief},
                                                     {TextLook::Filled, kEngrave, kRefusedByRelief},
                                                     {TextLook::Filled, kShadow, kRefusedByShadow}}};

const StyleRow& rowOf(TextStyle style) { return kStyles.at(static_cast<std::size_t>(style)); }

struct Fraction {
  int numerator, denominator;
};
constexpr std::array<Fraction, kTextSizes> kCapitals{{{3, 4}, {1, 2}, {1, 3}}};

void print(const Surface& line, int at, Color color, Surface& target) {
  for (int y = 0; y < line.height(); ++y)
    for (int x = 0; x < line.width(); ++x)
      if (line.GetPixel(x, y) == kBlack) target.SetPixelV(x + at, y + at, color);
}

Surface printed(const Surface& line, TextStyle style, Color color, int leastWidth, int leastHeight) {
  Surface picture(std::max(line.width() + 2 * kMargin, leastWidth), std::max(line.height() + 2 * kMargin, leastHeight));
  for (const Print& each : rowOf(style).prints)
    print(line, kMargin + each.offset, each.color == kTextColor ? color : each.color, picture);
  return picture;
}

// At the angle 0 the letters stay as they are.
Surface turned(Surface picture, int angle) {
  if (angle == 0) return picture;
  constexpr int kReserve = 2;
  const int side = static_cast<int>(std::hypot(picture.width(), picture.height())) + kReserve;
  Surface result(side, side);
  rotateSurface(picture, result,
                {.angleDegrees = static_cast<double>(angle), .skipBackground = true, .backgroundColor = kWhite});
  return result;
}

struct Box {
  int left, top, right, bottom;  // right and bottom are outside
};

Box usedBox(const Surface& picture) {
  Box box{picture.width(), picture.height(), 0, 0};
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.GetPixel(x, y) == kWhite) continue;
      box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1), std::max(box.bottom, y + 1)};
    }
  return box;
}

Surface cut(const Surface& picture, const Box& box) {
  const int width = std::max(0, box.right - box.left), height = std::max(0, box.bottom - box.top);
  Surface part(width, height);
  BitBlt(part, 0, 0, width, height, picture, box.left, box.top, RasterOp::SRCCOPY);
  return part;
}

// White becomes transparent, the colour in place of the text's own becomes that one again.
IconImage separated(const Surface& picture, Color drawn, Color color) {
  IconImage content{picture, Surface(picture.width(), picture.height()), {}};
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) {
      const Color pixel = picture.GetPixel(x, y);
      if (pixel == kWhite) {
        content.image.SetPixelV(x, y, kBlack);
        continue;
      }
      content.mask.SetPixelV(x, y, kBlack);
      if (pixel == drawn) content.image.SetPixelV(x, y, color);
    }
  return content;
}

}  // namespace

TextLook lookOf(TextStyle style) { return rowOf(style).look; }

const char* refusalOfColor(TextStyle style, Color color) {
  const StyleRow& row = rowOf(style);
  return std::ranges::find(row.prints, color, &Print::color) == row.prints.end() ? nullptr : row.refusal;
}

int capitalHeightOf(TextSize size, int iconHeight) {
  const auto& [numerator, denominator] = kCapitals.at(static_cast<std::size_t>(size));
  return roundToInteger(static_cast<double>(iconHeight) * numerator / denominator);
}

int pixelsOfPoints(int points) {
  constexpr double kPixelsPerInch = 96, kPointsPerInch = 72;
  return roundToInteger(points * kPixelsPerInch / kPointsPerInch);
}

// The height is measured at a large size, at which the rounding to whole pixels does not count.
int fontPixels(TextDrawing& drawing, TextFont font, int capitalHeight) {
  constexpr int kMeasured = 100;
  font.pixels = kMeasured;
  const int height = std::max(1, drawing.capitalHeight(font));
  return std::clamp(roundToInteger(static_cast<double>(capitalHeight) * kMeasured / height), 1, kMeasured);
}

IconImage writtenText(const Surface& line, const TextSettings& settings, int iconWidth, int iconHeight) {
  const Color drawn = settings.color == kWhite ? kInPlaceOfWhite : settings.color;
  const Surface picture = turned(printed(line, settings.style, drawn, iconWidth, iconHeight), settings.angle);
  return separated(cut(picture, usedBox(picture)), drawn, settings.color);
}

extern const EffectRow kText{.title = "Text",
                             .menu = {0, "&Text ....", "Ctrl+F2", "text"},
                             .panel = {.number = TextPanel::kNumber, .sample = "lblTextSample", .isGenerated = false}};

}  // namespace gp

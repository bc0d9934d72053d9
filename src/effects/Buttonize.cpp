// The icon framed as a button. The pixels of the frame are painted, its four corners are transparent.
#include "effects/EffectTable.h"
#include "effects/PaintedPixels.h"
#include "platform/gdi/Pens.h"
#include "platform/gdi/SurfaceOps.h"

#include <array>
#include <span>

namespace gp {
namespace {

// A column or row of the frame: the number of pixels inward from the first one or from the last.
struct Position {
  bool fromLast;
  int inward;
  int in(int length) const { return fromLast ? length - 1 - inward : inward; }
};
constexpr Position first(int inward = 0) { return {false, inward}; }
constexpr Position last(int inward = 0) { return {true, inward}; }

// A function of Pens.h: draws a line, which ends before its second point, a box, or a pixel when both points are equal.
using Draw = void (*)(Surface& surface, int x1, int y1, int x2, int y2, Color color);

struct FramePart {
  Draw draw;
  Position x1, y1, x2, y2;
  Color color;
};

constexpr Color kPale = 0xE0E0E0;
constexpr Color kDim = 0x888888;

// Later parts are drawn over earlier ones.
constexpr FramePart kOneLine[] = {
    {DrawLine, first(), first(), last(), first(), kWhite},
    {DrawLine, last(), first(), last(), last(), kBlack},
    {DrawLine, first(), last(), last(), last(), kBlack},
    {DrawLine, first(), first(), first(), last(), kWhite},
};

constexpr FramePart kBoxed[] = {
    {DrawBox, first(), first(), last(), last(), kBlack},
    {DrawBox, first(1), first(1), last(1), last(1), kWhite},
    {DrawBox, first(2), first(2), last(2), last(2), kWhite},
    {DrawLine, last(1), first(1), last(1), last(1), kEdgeGrey},
    {DrawLine, last(2), first(2), last(2), last(1), kEdgeGrey},
    {DrawLine, first(2), last(2), last(1), last(2), kEdgeGrey},
    {DrawLine, first(1), last(1), last(1), last(1), kEdgeGrey},
    {FillBox, last(1), last(1), last(1), last(1), kEdgeGrey},
    {FillBox, last(1), last(2), last(1), last(2), kEdgeGrey},
};

constexpr FramePart kTwoTones[] = {
    {DrawLine, first(), first(), last(), first(), kWhite}, {DrawLine, first(), first(1), last(), first(1), kPale},
    {DrawLine, last(), first(), last(), last(), kBlack},   {DrawLine, last(1), first(1), last(1), last(1), kDim},
    {DrawLine, first(), last(), last(), last(), kBlack},   {DrawLine, first(1), last(1), last(1), last(1), kDim},
    {DrawLine, first(), first(), first(), last(), kWhite}, {DrawLine, first(1), first(1), first(1), last(1), kPale},
    {FillBox, last(1), last(1), last(1), last(1), kDim},
};

constexpr std::array<std::span<const FramePart>, 3> kPatterns{kOneLine, kBoxed, kTwoTones};
constexpr int kLastPattern = static_cast<int>(kPatterns.size()) - 1;

// A pattern that does not exist counts as the first.
std::span<const FramePart> partsOf(int pattern) {
  return kPatterns[pattern >= 0 && pattern <= kLastPattern ? static_cast<std::size_t>(pattern) : 0];
}

void draw(const FramePart& part, Surface& surface, Color color) {
  const int width = surface.width();
  const int height = surface.height();
  part.draw(surface, part.x1.in(width), part.y1.in(height), part.x2.in(width), part.y2.in(height), color);
}

void setCorners(Surface& surface, Color color) {
  for (const int x : {0, surface.width() - 1})
    for (const int y : {0, surface.height() - 1}) surface.SetPixelV(x, y, color);
}

// The same pixels with a thin solid pen, whatever pen the original has.
Surface copyOf(const Surface& picture) {
  Surface copy(picture.width(), picture.height());
  BitbltPic(picture, copy);
  return copy;
}

IconImage buttonize(const IconImage& icon, const EffectValues& values) {
  IconImage result{copyOf(icon.image), copyOf(icon.mask), {}};
  for (const FramePart& part : partsOf(values.number(0))) {
    draw(part, result.image, part.color);
    draw(part, result.mask, kBlack);
  }
  setCorners(result.image, kBlack);
  setCorners(result.mask, kWhite);
  return result;
}

constexpr Setting kSettings[] = {{.option = "style",
                                  .to = kLastPattern,
                                  .control = "cboButtonizePattern",
                                  .label = "&Style:",
                                  .help = "0 one line, 1 boxed, 2 two tones"}};

}  // namespace

extern const EffectRow kButtonize{.name = "buttonize",
                                  .title = "Buttonize",
                                  .help = "a frame as of a button",
                                  .menu = {3, "&Buttonize Icon ....", "Ctrl+F4", "buttonize"},
                                  .panel = {7, "picButtonize"},
                                  .settings = kSettings,
                                  .apply = buttonize};

}  // namespace gp

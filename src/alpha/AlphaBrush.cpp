#include "alpha/AlphaBrush.h"

#include "platform/gdi/Pens.h"

#include <algorithm>

namespace gp {

void AlphaBrush::setIndex(int index) { index_ = std::clamp(index, 0, kSizes - 1); }

bool AlphaBrush::paint(IconPixel at, std::uint8_t alpha, bool straight) {
  last_ = at;
  if (straight && from_) {
    canvas_.replaceAlpha(before_);
    return drawLine(*from_, at, alpha);
  }
  const bool painted = stamp(at, alpha);
  startFrom(at);
  return painted;
}

void AlphaBrush::release() {
  if (from_) startFrom(last_);
}

void AlphaBrush::startFrom(IconPixel at) {
  from_ = at;
  before_ = canvas_.icon().alpha;
}

bool AlphaBrush::stamp(IconPixel at, std::uint8_t alpha) {
  bool painted = false;
  for (int y = at.y; y <= at.y + index_; ++y)
    for (int x = at.x; x <= at.x + index_; ++x) painted |= canvas_.setAlpha(x, y, alpha);
  return painted;
}

// A thin line does not draw its end pixel.
bool AlphaBrush::drawLine(IconPixel from, IconPixel to, std::uint8_t alpha) {
  Surface line(canvas_.icon().width(), canvas_.icon().height(), kWhite);
  DrawLine(line, from.x, from.y, to.x, to.y, kBlack);
  line.SetPixelV(to.x, to.y, kBlack);
  bool painted = false;
  for (int y = 0; y < line.height(); ++y)
    for (int x = 0; x < line.width(); ++x)
      if (line.GetPixel(x, y) == kBlack) painted |= stamp({x, y}, alpha);
  return painted;
}

}  // namespace gp

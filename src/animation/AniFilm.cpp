#include "animation/AniFilm.h"

#include "platform/gdi/RasterOps.h"

#include <algorithm>

namespace gp {
namespace {

// By which the bar reaches beyond the end of the film.
constexpr int kScrollMargin = 2;

}  // namespace

AniFilm::AniFilm() : picOuterFrame_(filmCells()) { redraw({}); }

int AniFilm::scrollMaximum() const { return std::max(0, picFilm_.height() - visibleHeight_ + kScrollMargin); }

void AniFilm::redraw(const AniFrames& frames) {
  picFilm_.resize(kCellWidth, kCellHeight * std::max(1, frames.count()));
  drawCell(1, false);
  for (int n = 1; n <= frames.count(); ++n) drawFrame(frames, n, n == frames.current());
  scrollTo(scroll_);
}

void AniFilm::moveSelection(const AniFrames& frames, int from, int to) {
  drawFrame(frames, from, false);
  drawFrame(frames, to, true);
}

void AniFilm::drawCell(int n, bool isSelected) {
  const Surface& cell = picOuterFrame_[isSelected ? 1 : 0];
  BitBlt(picFilm_, 0, topOf(n), kCellWidth, kCellHeight, cell, 0, 0, RasterOp::SRCCOPY);
}

void AniFilm::drawFrame(const AniFrames& frames, int n, bool isSelected) {
  drawCell(n, isSelected);
  const Surface& image = frames.frame(n).picture.image;
  BitBlt(picFilm_, kImageX, topOf(n) + kImageY, kFrameSide, kFrameSide, image, 0, 0, RasterOp::SRCCOPY);
}

void AniFilm::setVisibleHeight(int height) {
  visibleHeight_ = height;
  scrollTo(scroll_);
}

void AniFilm::scrollTo(int value) { scroll_ = std::clamp(value, 0, scrollMaximum()); }

// The bottom of a frame in view lies above the pane's, so that the bar would be below 0.
void AniFilm::scrollIntoView(int frame) { scrollTo(kCellHeight * frame - visibleHeight_); }

}  // namespace gp

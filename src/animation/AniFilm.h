// The film strip: a Surface with one cell for each frame, and the scroll bar beside it. Measures in pixels.
#pragma once

#include "animation/AniFrames.h"
#include "animation/FilmCells.h"
#include "platform/gdi/Surface.h"

#include <array>

namespace gp {

class AniFilm {
 public:
  static constexpr int kCellWidth = 60, kCellHeight = 50;
  static constexpr int kImageX = 28 / 2 - 1, kImageY = 18 / 2 - 1;  // of the image in its cell

  AniFilm();

  // One cell for each frame, the current one selected; one empty cell without frames.
  const Surface& picFilm() const { return picFilm_; }
  // VsrANISeries: the film's top is at minus its value.
  int scroll() const { return scroll_; }
  int scrollMaximum() const;
  int smallStep() const { return kCellHeight; }
  int largeStep() const { return visibleHeight_; }

  // Draws all cells.
  void redraw(const AniFrames& frames);
  // Draws the cells of two frames, which must exist; the second one is selected.
  void moveSelection(const AniFrames& frames, int from, int to);
  void setVisibleHeight(int height);
  void scrollTo(int value);
  // Scrolls so that the frame's bottom lies at the pane's bottom, or to the top if it is in view there.
  void scrollIntoView(int frame);
  // The number of the frame at a position of the film, from 1; it may not exist. The position is not negative.
  static int frameAt(int y) { return y / kCellHeight + 1; }

 private:
  static int topOf(int n) { return kCellHeight * (n - 1); }
  void drawCell(int n, bool isSelected);
  void drawFrame(const AniFrames& frames, int n, bool isSelected);

  const std::array<Surface, 2> picOuterFrame_;  // normal and selected
  Surface picFilm_{kCellWidth, kCellHeight};
  int scroll_ = 0;
  int visibleHeight_ = 0;
};

}  // namespace gp

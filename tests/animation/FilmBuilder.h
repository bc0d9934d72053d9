// Frames for tests.
#pragma once

#include "animation/format/FilmFrame.h"

#include <algorithm>
#include <vector>

namespace gp::test {

inline bool samePicture(const FramePicture& a, const FramePicture& b) {
  return std::ranges::equal(a.image.pixels(), b.image.pixels()) && std::ranges::equal(a.mask.pixels(), b.mask.pixels());
}

// An opaque picture of one colour.
inline FramePicture plainPicture(Color color) {
  FramePicture picture;
  picture.image.fill(color);
  picture.mask.fill(kBlack);
  return picture;
}

inline FilmFrame plainFrame(Color color, int jiffies = 10) {
  FilmFrame frame;
  frame.picture = plainPicture(color);
  frame.jiffies = jiffies;
  return frame;
}

// Frames of the colours 1, 2, 3 ... with as many jiffies, so that each can be recognised.
inline std::vector<FilmFrame> numberedFrames(int count) {
  std::vector<FilmFrame> frames;
  for (int i = 1; i <= count; ++i) frames.push_back(plainFrame(i, i));
  return frames;
}

// The colours of the frames at their first pixels.
inline std::vector<Color> colorsOf(std::span<const FilmFrame> frames) {
  std::vector<Color> colors;
  for (const FilmFrame& frame : frames) colors.push_back(frame.picture.image.GetPixel(0, 0));
  return colors;
}

}  // namespace gp::test

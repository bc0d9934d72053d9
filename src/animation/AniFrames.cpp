#include "animation/AniFrames.h"

#include <algorithm>

namespace gp {
namespace {

// A frame without a picture, shown as long as its neighbour.
FilmFrame blankLike(const FilmFrame& neighbour) {
  FilmFrame frame;
  frame.jiffies = neighbour.jiffies;
  frame.hotspotX = neighbour.hotspotX;
  frame.hotspotY = neighbour.hotspotY;
  return frame;
}

}  // namespace

void AniFrames::select(int n) {
  if (n >= 1 && n <= count()) mAniCurrent_ = n;
}

void AniFrames::addBelow() {
  mAniFrames_.insert(mAniFrames_.begin() + mAniCurrent_, blankLike(currentFrame()));
  ++mAniCurrent_;
}

void AniFrames::addAbove() { mAniFrames_.insert(mAniFrames_.begin() + (mAniCurrent_ - 1), blankLike(currentFrame())); }

void AniFrames::removeCurrent() {
  if (mAniCurrent_ == 0) return;
  mAniFrames_.erase(mAniFrames_.begin() + (mAniCurrent_ - 1));
  mAniCurrent_ = std::min(mAniCurrent_, count());
}

void AniFrames::shiftUp() {
  if (mAniCurrent_ <= 1) return;
  std::swap(at(mAniCurrent_), at(mAniCurrent_ - 1));
  --mAniCurrent_;
}

void AniFrames::shiftDown() {
  if (mAniCurrent_ == count()) return;
  std::swap(at(mAniCurrent_), at(mAniCurrent_ + 1));
  ++mAniCurrent_;
}

void AniFrames::setJiffies(int jiffies) {
  for (FilmFrame& frame : mAniFrames_) frame.jiffies = jiffies;
}

void AniFrames::setJiffiesOfCurrent(int jiffies) { at(mAniCurrent_).jiffies = jiffies; }

void AniFrames::setHotspot(int x, int y) {
  for (FilmFrame& frame : mAniFrames_) frame.hotspotX = x, frame.hotspotY = y;
}

void AniFrames::setPicture(const FramePicture& picture) { at(mAniCurrent_).picture = picture; }

void AniFrames::loadPicture(const FramePicture& picture) {
  setPicture(picture);
  at(mAniCurrent_).imageIndex = 0;
}

}  // namespace gp

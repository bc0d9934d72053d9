// The frames of a film and the current one. Frames count from 1; the current frame is 0 when there are none.
#pragma once

#include "animation/format/FilmFrame.h"

#include <span>
#include <vector>

namespace gp {

class AniFrames {
 public:
  AniFrames() = default;
  // The first frame is the current one.
  explicit AniFrames(std::vector<FilmFrame> frames)
      : mAniFrames_(std::move(frames)), mAniCurrent_(count() > 0 ? 1 : 0) {}

  int count() const { return static_cast<int>(mAniFrames_.size()); }
  bool isFull() const { return count() >= cMaxAniFrames; }
  int current() const { return mAniCurrent_; }
  std::span<const FilmFrame> all() const { return mAniFrames_; }
  // Frame n, which must exist.
  const FilmFrame& frame(int n) const { return mAniFrames_.at(static_cast<std::size_t>(n - 1)); }
  const FilmFrame& currentFrame() const { return frame(mAniCurrent_); }

  // Makes frame n current; does nothing when it does not exist.
  void select(int n);
  // Insert a blank frame below or above the current one, with its time and hot spot. The frame below becomes current;
  // above it, the number of the current frame stays, so the new one is current. The film must not be full.
  void addBelow();
  void addAbove();
  void removeCurrent();
  // Swap the current frame, which stays current, with its neighbour; do nothing at the end.
  void shiftUp();
  void shiftDown();
  void setJiffies(int jiffies);  // of all frames
  void setJiffiesOfCurrent(int jiffies);
  void setHotspot(int x, int y);
  // Replaces the pixels of the current frame.
  void setPicture(const FramePicture& picture);
  // The same with a picture from a file.
  void loadPicture(const FramePicture& picture);

 private:
  FilmFrame& at(int n) { return mAniFrames_.at(static_cast<std::size_t>(n - 1)); }

  std::vector<FilmFrame> mAniFrames_;
  int mAniCurrent_ = 0;
};

}  // namespace gp

// One frame of a film, as the animated cursor session shows and edits it.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

// Width and height of every frame.
inline constexpr int kFrameSide = 32;
// The most frames that a film has.
inline constexpr int cMaxAniFrames = 70;

// The pixels of a frame. It is transparent where the image and the mask are white; a white pixel of the image belongs
// to the picture where the mask is black.
struct FramePicture {
  Surface image{kFrameSide, kFrameSide, kWhite};
  Surface mask{kFrameSide, kFrameSide, kWhite};
};

struct FilmFrame {
  FramePicture picture;
  int jiffies = 0;   // 1 to 90
  int hotspotX = 0;  // 0 to 31
  int hotspotY = 0;
  int imageIndex = 0;  // from 0, in the order in which the frames were read; 0 for a frame that was made here
};

}  // namespace gp

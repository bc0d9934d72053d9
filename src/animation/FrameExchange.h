// How an icon becomes the picture of a frame, and a frame an icon.
#pragma once

#include "animation/format/FilmFrame.h"
#include "document/IconContainerRec.h"
#include "document/IconImage.h"

#include <string>

namespace gp {

// The picture of an icon of 32 x 32 pixels: the ground of its composite becomes white. Intended: so does a pixel of the
// icon that has the colour of the ground.
FramePicture pictureOfIcon(const Surface& composite, const Surface& mask);

// The icon of a frame, and the record that describes it; `number` is the frame's, from 1.
struct IconOfFrame {
  IconImage icon;
  IconContainerRec record;
};
IconOfFrame iconOfFrame(const FramePicture& picture, int number);

// The picture of an icon file with one icon of 32 x 32 pixels, or the reason why it cannot be a frame.
struct LoadedPicture {
  FramePicture picture;
  std::string refusal;  // the message; empty for a picture
  bool isHint = false;  // the message is information rather than a warning

  bool isLoaded() const { return refusal.empty(); }
};
LoadedPicture loadIconFile(const std::string& path);

}  // namespace gp

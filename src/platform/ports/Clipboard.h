// The port for pictures on the desktop's clipboard. The content belongs to the program that put it there, which may
// withdraw it at any time: callers must check the result of getImage(). Only the requested corner of a picture is
// returned, however large the picture is.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

struct ClipboardImage {
  int width = 0;  // width of the whole picture, pixels
  int height = 0;
  Surface corner = Surface();  // its top left part, at most as large as requested, without transparency
  // Of a picture with alpha also the colours of that part as they are, and its alpha values as greys: black is
  // transparent, white is opaque. Otherwise both are empty.
  Surface colors = Surface();
  Surface alpha = Surface();

  bool hasAlpha() const { return alpha.width() > 0; }
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  // Returns true when a picture is offered; text and other formats do not count.
  virtual bool hasImage() = 0;
  // Gets the size of the picture and its corner of at most limit x limit pixels. Returns false and leaves `image`
  // unchanged when there is no picture or it cannot be read.
  virtual bool getImage(ClipboardImage& image, int limit) = 0;
  // Offers a copy of a picture to other programs. `alpha` has its alpha values as greys, or is empty: then the picture
  // is opaque. Returns false when the clipboard refuses it.
  virtual bool setImage(const Surface& image, const Surface& alpha) = 0;
  virtual void clear() = 0;
};

}  // namespace gp

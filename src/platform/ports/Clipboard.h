// The port for the desktop's clipboard, as far as it holds pictures. Its content belongs to whatever program put it
// there, which may withdraw it at any time: a reader must look at what getImage() says. However large the picture is,
// only the part that the caller has use for is handed over.
#pragma once

#include "platform/gdi/Surface.h"

namespace gp {

struct ClipboardImage {
  int width = 0;  // of the whole picture, pixels
  int height = 0;
  Surface corner;  // its top left part, at most as large as was asked for
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  // True when a picture is offered. Text and the like count as none.
  virtual bool hasImage() = 0;
  // The size of the picture and its corner of at most limit x limit pixels. False, with `image` as it was, when there
  // is none, when it cannot be read or was withdrawn meanwhile.
  virtual bool getImage(ClipboardImage& image, int limit) = 0;
  // Offers a copy of a picture to other programs. False when the clipboard does not take it.
  virtual bool setImage(const Surface& image) = 0;
  virtual void clear() = 0;
};

}  // namespace gp

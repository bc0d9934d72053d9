// Reads pictures with Qt's readers of a fixed list of formats. The file is read whole up to a limit that follows from
// the largest picture asked for, and the size is looked at before any pixel is decoded.
#pragma once

#include "platform/ports/PictureLoader.h"

namespace gp {

class QtPictureLoader : public PictureLoader {
 public:
  LoadedPicture loadPicture(const std::string& path, int maxWidth, int maxHeight) override;
};

}  // namespace gp

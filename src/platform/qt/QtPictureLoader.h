// Reads pictures with Qt's readers for a fixed list of formats. The file is read up to a limit that depends on the
// largest picture requested, and the size is checked before any pixel is decoded.
#pragma once

#include "platform/ports/PictureLoader.h"

namespace gp {

class QtPictureLoader : public PictureLoader {
 public:
  LoadedPicture loadPicture(const std::string& path, int maxWidth, int maxHeight) override;
};

}  // namespace gp

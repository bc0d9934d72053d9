// The port that reads picture files of the formats that the platform supports. Its cost is bounded: no file uses more
// time or memory than the largest picture that the caller accepts.
#pragma once

#include "platform/gdi/Surface.h"

#include <string>

namespace gp {

// TooLarge: the file starts like a picture that exceeds the caller's limits; its pixels were not read.
enum class PictureProblem { None, Unreadable, TooLarge };

struct LoadedPicture {
  PictureProblem problem = PictureProblem::Unreadable;
  // The size stated in the file, in pixels; 0 x 0 when it is unreadable.
  int width = 0;
  int height = 0;
  // The whole picture when there is no problem; transparent parts are white.
  Surface picture{0, 0};
};

class PictureLoader {
 public:
  virtual ~PictureLoader() = default;
  // Reads the first picture of a file. The content determines the format, not the name. The result is Unreadable when
  // the file is not a picture, is incomplete, or is not a regular file.
  virtual LoadedPicture loadPicture(const std::string& path, int maxWidth, int maxHeight) = 0;
};

}  // namespace gp

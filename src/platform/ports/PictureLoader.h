// The port that reads picture files of the formats the platform knows. It is bounded: no file, however large or
// hostile, costs more time or memory than the largest picture that its caller takes.
#pragma once

#include "platform/gdi/Surface.h"

#include <string>

namespace gp {

// TooLarge: the file begins like a picture that exceeds the caller's limits; its pixels were not looked at.
enum class PictureProblem { None, Unreadable, TooLarge };

struct LoadedPicture {
  PictureProblem problem = PictureProblem::Unreadable;
  // The size that the file states, in pixels; 0 x 0 when it is unreadable.
  int width = 0;
  int height = 0;
  // Without a problem the whole picture, its transparent parts white.
  Surface picture{0, 0};
};

class PictureLoader {
 public:
  virtual ~PictureLoader() = default;
  // The picture in a file, whose format its content tells and not its name; the first where there are several. A file
  // that is no picture, is cut short, or is no regular file is unreadable.
  virtual LoadedPicture loadPicture(const std::string& path, int maxWidth, int maxHeight) = 0;
};

}  // namespace gp

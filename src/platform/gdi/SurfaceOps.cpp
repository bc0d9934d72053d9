#include "platform/gdi/SurfaceOps.h"

#include "platform/gdi/RasterOps.h"
#include "platform/gdi/Stretch.h"

namespace gp {

void MakeSameSize(const Surface& source, Surface& target) { target.resize(source.width(), source.height()); }

void MakePicSize(Surface& surface, int width, int height) { surface.resize(width, height); }

bool BitbltPic(const Surface& source, Surface& target) {
  target.clearPicture();
  const bool ok = BitBlt(target, 0, 0, source.width(), source.height(), source, 0, 0, RasterOp::SRCCOPY);
  target.makePersistent();
  return ok;
}

bool StretchbltPic(const Surface& source, Surface& target, bool halftone) {
  const StretchMode former = target.stretchMode;
  if (halftone) SetStretchBltMode(target, StretchMode::Halftone);
  target.clearPicture();
  const bool ok = StretchBlt(target, 0, 0, target.width(), target.height(), source, 0, 0, source.width(),
                             source.height(), RasterOp::SRCCOPY);
  SetStretchBltMode(target, former);
  target.makePersistent();
  return ok;
}

bool SurfaceSizeDiffers(const Surface& a, const Surface& b) {
  return a.width() != b.width() || a.height() != b.height();
}

bool MakeMask_viaMemoryDC(const Surface& source, Surface& target) {
  const int width = source.width();
  const int height = source.height();
  Surface memory(width, height);
  return BitBlt(memory, 0, 0, width, height, source, 0, 0, RasterOp::SRCCOPY) &&
         BitBlt(target, 0, 0, width, height, memory, 0, 0, RasterOp::SRCCOPY);
}

void TilePicture(const Surface& source, Surface& target) {
  const int width = source.width();
  const int height = source.height();
  if (width == 0 || height == 0) return;
  for (int x = 0; x < target.width(); x += width)
    for (int y = 0; y < target.height(); y += height)
      BitBlt(target, x, y, width, height, source, 0, 0, RasterOp::SRCCOPY);
}

}  // namespace gp

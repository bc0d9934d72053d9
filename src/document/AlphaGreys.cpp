#include "document/AlphaGreys.h"

namespace gp {

Surface greysOf(const AlphaMatrix& alpha) {
  Surface greys(alpha.width(), alpha.height(), kOpaqueGrey);
  for (int y = 0; y < alpha.height(); ++y)
    for (int x = 0; x < alpha.width(); ++x) greys.SetPixelV(x, y, greyOf(alpha.at(x, y)));
  return greys;
}

AlphaMatrix alphaOf(const Surface& greys) {
  AlphaMatrix alpha(greys.width(), greys.height());
  for (int y = 0; y < greys.height(); ++y)
    for (int x = 0; x < greys.width(); ++x) alpha.at(x, y) = static_cast<std::uint8_t>(redOf(greys.GetPixel(x, y)));
  return alpha;
}

}  // namespace gp

// The negative of the icon.
#include "effects/EffectTable.h"
#include "effects/PaintedPixels.h"

namespace gp {
namespace {

IconImage invert(const IconImage& icon, const EffectValues& /*values*/) {
  return mapPainted(icon, [](Color color) { return kWhite - color; });
}

}  // namespace

extern const EffectRow kInvert{.name = "invert",
                               .title = "Invert / Negative",
                               .help = "the negative",
                               .menu = {18, "&Invert / Negative ....", "", ""},
                               .apply = invert};

}  // namespace gp

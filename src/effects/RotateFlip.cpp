// The commands of the Rotate menu as effects of gpicon.
#include "drawing/IconTransforms.h"
#include "effects/EffectTable.h"

namespace gp {
namespace {

constexpr int kWholeTurn = 360;

IconImage rotate(const IconImage& icon, const EffectValues& values) { return rotatedIcon(icon, values.number(0)); }

// `transforms` are those of the effect's flags. Without any flag the icon stays as it is.
IconImage transformed(const IconImage& icon, const EffectValues& values,
                      std::initializer_list<IconTransform> transforms) {
  std::size_t flag = 0;
  for (const IconTransform transform : transforms)
    if (values.flag(flag++)) return transform(icon);
  return icon;
}
IconImage flip(const IconImage& icon, const EffectValues& values) {
  return transformed(icon, values, {flippedHorizontally, flippedVertically});
}
IconImage turn(const IconImage& icon, const EffectValues& values) {
  return transformed(icon, values, {turnedLeft, turnedRight});
}

constexpr Setting kAngle[] = {
    {.option = "angle", .from = -kWholeTurn, .to = kWholeTurn, .isRequired = true, .help = "counter-clockwise"}};
constexpr Setting kFlipFlags[] = {
    {.option = "horizontal", .kind = SettingKind::Flag, .help = "exchanges left and right"},
    {.option = "vertical", .kind = SettingKind::Flag, .help = "exchanges top and bottom"}};
constexpr Setting kTurnFlags[] = {{.option = "left", .kind = SettingKind::Flag, .help = "counter-clockwise"},
                                  {.option = "right", .kind = SettingKind::Flag, .help = "clockwise"}};

}  // namespace

extern const EffectRow kRotate{.name = "rotate",
                               .help = "rotated about its middle; takes alpha, which stays where it is",
                               .settings = kAngle,
                               .apply = rotate,
                               .takesAlpha = true};
extern const EffectRow kFlip{.name = "flip",
                             .help = "mirrored; takes alpha, which stays where it is",
                             .settings = kFlipFlags,
                             .apply = flip,
                             .needs = NeededOptions::ExactlyOne,
                             .takesAlpha = true};
extern const EffectRow kTurn{.name = "turn",
                             .help = "turned by 90 degrees; takes alpha, which stays where it is",
                             .settings = kTurnFlags,
                             .apply = turn,
                             .needs = NeededOptions::ExactlyOne,
                             .takesAlpha = true};

}  // namespace gp

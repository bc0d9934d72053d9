// Two effects that exist in tests only, with a setting of each kind, on one panel.
#pragma once

#include "effects/EffectTable.h"

namespace gp::test {

inline constexpr const char* kMadeUpWords[] = {"normal", "small", "tiny"};
inline constexpr Setting kMadeUpSettings[] = {
    {.option = "red", .from = -2, .to = 2, .first = 1, .control = "cboMadeUp(0)", .label = "&Red:", .help = "red"},
    {.option = "factor",
     .kind = SettingKind::Tenths,
     .to = 10,
     .first = 5,
     .control = "cboMadeUp(1)",
     .label = "&Factor:",
     .help = "factor"},
    {.option = "size",
     .kind = SettingKind::Word,
     .words = kMadeUpWords,
     .control = "cboMadeUp(2)",
     .label = "Si&ze:",
     .help = "size"},
    {.option = "color",
     .kind = SettingKind::Rgb,
     .first = rgb(1, 2, 3),
     .control = "ckbMadeUpColor",
     .label = "&Use current color (otherwise dark)",
     .help = "color"},
    {.option = "strong",
     .kind = SettingKind::Flag,
     .control = "ckbMadeUpStrong",
     .label = "&Strong",
     .help = "strong"}};

// An icon painted all over in a colour that all values have a part in.
inline IconImage madeUp(const IconImage& icon, const EffectValues& values) {
  const int number = (values.number(0) + 2) * 36 + values.number(1) * 3 + values.number(2) + (values.flag(4) ? 200 : 0);
  return {
      Surface(icon.width(), icon.height(), values.color(3) ^ number), Surface(icon.width(), icon.height(), kBlack), {}};
}
inline IconImage painted(const IconImage& icon, const EffectValues& /*values*/) {
  return {icon.image, Surface(icon.width(), icon.height(), kBlack), {}};
}

inline constexpr EffectPanelPlace kMadeUpPanel{77, "picMadeUp", "lblMadeUp"};
inline constexpr EffectRow kMadeUp{.name = "madeup",
                                   .title = "Made up",
                                   .help = "made up",
                                   .menu = {77, "&Made Up", "", ""},
                                   .panel = kMadeUpPanel,
                                   .settings = kMadeUpSettings,
                                   .apply = madeUp};
inline constexpr EffectRow kPainted{.name = "painted",
                                    .title = "Painted",
                                    .help = "painted",
                                    .menu = {78, "&Painted", "", ""},
                                    .panel = kMadeUpPanel,
                                    .apply = painted};

}  // namespace gp::test

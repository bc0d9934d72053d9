// An edge around the painted area: lit from the top left, lit from the bottom right, raised, or a shadow. The painted
// area grows by up to one pixel on the sides that get an edge; the part of an edge outside the icon is lost.
#include "effects/EffectTable.h"
#include "effects/PaintedPixels.h"

namespace gp {
namespace {

// The colours of the edges to the top left and to the bottom right; kNoColor for no light edge.
struct EdgeColors {
  Color light;
  Color dark;
};

// The order matters where the parts meet: light is drawn over dark, and the picture over both.
IconImage relief(const IconImage& icon, const EdgeColors& colors) {
  IconImage result = emptyIcon(icon.width(), icon.height());
  stamp(result, icon.mask, 1, colors.dark);
  if (colors.light != kNoColor) stamp(result, icon.mask, -1, colors.light);
  stamp(result, icon.mask, 0, kBlack);
  copyPainted(icon.image, icon.mask, result.image);
  return result;
}

template <Color kLight, Color kDark>
IconImage reliefOf(const IconImage& icon, const EffectValues& /*values*/) {
  return relief(icon, {kLight, kDark});
}

IconImage shadowed(const IconImage& icon, const EffectValues& values) {
  return relief(icon, {kNoColor, values.color(0)});
}

constexpr Setting kShadowSettings[] = {{.option = "color",
                                        .kind = SettingKind::Rgb,
                                        .first = kBlack,
                                        .control = "ckbUseSelectedColor",
                                        .label = "&Use currently selected color (otherwise black)",
                                        .help = "the color of the shadow"}};

}  // namespace

extern const EffectRow kEmbossed{.name = "embossed",
                                 .title = "Embossed",
                                 .help = "a white edge to the top left, a grey one to the bottom right",
                                 .menu = {11, "Emb&ossed ....", "", ""},
                                 .apply = reliefOf<kWhite, kEdgeGrey>};
extern const EffectRow kEngraved{.name = "engraved",
                                 .title = "Engraved",
                                 .help = "a grey edge to the top left, a white one to the bottom right",
                                 .menu = {12, "Engra&ved ....", "", ""},
                                 .apply = reliefOf<kEdgeGrey, kWhite>};
extern const EffectRow kRaised{.name = "raised",
                               .title = "Raised",
                               .help = "a white edge to the top left, a black one to the bottom right",
                               .menu = {13, "&Raised ....", "", ""},
                               .apply = reliefOf<kWhite, kBlack>};
extern const EffectRow kShadowed{.name = "shadowed",
                                 .title = "Shadowed",
                                 .help = "a shadow to the bottom right",
                                 .menu = {14, "Shado&wed ....", "", ""},
                                 .settings = kShadowSettings,
                                 .apply = shadowed};

}  // namespace gp

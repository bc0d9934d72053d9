// The channels of the painted pixels in another order.
#include "effects/EffectTable.h"
#include "effects/PaintedPixels.h"

#include <array>
#include <iterator>

namespace gp {
namespace {

using Channel = int (*)(Color color);
constexpr Channel kRed = redOf, kGreen = greenOf, kBlue = blueOf;

// The channels that the new red, green and blue come from, in the order of cboSwapElementsOfPixels without its first
// entry.
struct Order {
  const char* name;
  Channel red, green, blue;
};
constexpr Order kOrders[] = {{"BGR", kBlue, kGreen, kRed},
                             {"GRB", kGreen, kRed, kBlue},
                             {"BRG", kBlue, kRed, kGreen},
                             {"GBR", kGreen, kBlue, kRed},
                             {"RBG", kRed, kBlue, kGreen}};
constexpr int kOrderCount = static_cast<int>(std::size(kOrders));

constexpr auto kNames = [] {
  std::array<const char*, kOrderCount> names{};
  for (std::size_t i = 0; i < names.size(); ++i) names[i] = kOrders[i].name;
  return names;
}();

IconImage inOrder(const IconImage& icon, int index) {
  const Order& order = kOrders[static_cast<std::size_t>(index)];
  return mapPainted(icon,
                    [&order](Color color) { return rgb(order.red(color), order.green(color), order.blue(color)); });
}

// The first entry of the list is the present order.
IconImage chosenOrder(const IconImage& icon, const EffectValues& values) {
  return values.number(0) == 0 ? icon : inOrder(icon, values.number(0) - 1);
}
IconImage namedOrder(const IconImage& icon, const EffectValues& values) { return inOrder(icon, values.number(0)); }

Refusal refusesPresentOrder(const IconImage& /*icon*/, const EffectValues& values) {
  return values.number(0) == 0 ? "No swap selected yet." : nullptr;
}

constexpr Setting kChoices[] = {
    {.to = kOrderCount, .control = "cboSwapElementsOfPixels", .label = "&Current order is R.G.B., change it to:"}};
constexpr Setting kOptions[] = {{.option = "order",
                                 .kind = SettingKind::Word,
                                 .words = kNames,
                                 .isRequired = true,
                                 .help = "the channels that become red, green and blue"}};

}  // namespace

extern const EffectRow kSwapElements{
    .title = "Swap elements of pixels",
    .menu = {20, "Swap Elements Of Pi&xels ....", "", ""},
    .panel = {.number = 14,
              .sample = "picSwapElementsOfPixels",
              .remark = "(Remarks: If current image is of mono color, no change will take place)"},
    .settings = kChoices,
    .apply = chosenOrder,
    .refusal = refusesPresentOrder};
extern const EffectRow kSwap{
    .name = "swap", .help = "the channels in another order", .settings = kOptions, .apply = namedOrder};

}  // namespace gp

#include "colour/ColorTables.h"

#include <algorithm>

namespace gp {

// Each line contains six entries: two columns of the chart.
const std::array<Color, 48> mChartColors256 = {
    0xFFFFFF, 0xE0E0E0, 0xC0C0C0, 0x808080, 0x404040, 0x000000,  //
    0xC0C0F0, 0x8080FF, 0x0000FF, 0x0000DD, 0x0000AA, 0x000080,  //
    0xC0E0FF, 0x90D0EE, 0x5E9EDD, 0x5F8FEE, 0x3D6DCC, 0x0040B0,  //
    0xFFE0FF, 0xFFB0FF, 0xFF00FF, 0xFF00DD, 0xAA00AA, 0x800080,  //
    0xDDFFFF, 0xAAFFFF, 0x00FFFF, 0x00BBFF, 0x008FEE, 0x005CBB,  //
    0xC0FFC0, 0x80FF80, 0x00FF00, 0x00DD00, 0x008000, 0x008080,  //
    0xFFFFDD, 0xFFFFAA, 0xFFFF00, 0xC0C000, 0xA0A000, 0x808000,  //
    0xFFC0C0, 0xFF8080, 0xFF0000, 0xDD0000, 0xAA0000, 0x800000,  //
};

const std::array<NamedColor, 16> mChartColors16 = {{
    {0xFFFFFF, "White"},
    {0x808080, "Gray"},
    {0xFF00FF, "Magenta"},
    {0x0000FF, "Red"},
    {0x00FFFF, "Yellow"},
    {0x00FF00, "Lime"},
    {0xFFFF00, "Cyan"},
    {0xFF0000, "Blue"},
    {0xC0C0C0, "Silver"},
    {0x000000, "Black"},
    {0x800080, "Purple"},
    {0x000080, "Maroon"},
    {0x008080, "Olive"},
    {0x008000, "Green"},
    {0x808000, "Teal"},
    {0x800000, "Navy"},
}};

bool isStandardColor(Color color) {
  return std::ranges::any_of(mChartColors16, [color](const NamedColor& entry) { return entry.color == color; });
}

std::string hexHtmlColor(int r, int g, int b) {
  constexpr const char* kDigits = "0123456789ABCDEF";
  std::string text;
  for (int channel : {r, g, b}) {
    text += kDigits[channel >> 4 & 0xF];
    text += kDigits[channel & 0xF];
  }
  return text;
}

}  // namespace gp

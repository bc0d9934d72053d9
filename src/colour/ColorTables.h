// The two fixed colour tables of the charts.
#pragma once

#include "platform/gdi/Surface.h"

#include <array>
#include <string>

namespace gp {

struct NamedColor {
  Color color;
  const char* name;
};

// 48 colours in 16 columns and 3 rows; entry k is in column k \ 3, row k mod 3.
extern const std::array<Color, 48> mChartColors256;
// 16 colours in 8 columns and 2 rows; entry k is in column k mod 8, row k \ 8.
extern const std::array<NamedColor, 16> mChartColors16;

// Returns true for the 16 colours of mChartColors16.
bool isStandardColor(Color color);
// Returns two upper-case hexadecimal digits for each channel, in the order of the parameters.
std::string hexHtmlColor(int r, int g, int b);

}  // namespace gp

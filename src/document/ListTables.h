// What stands in the main form's lists when it comes up: one row per list, as data.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace gp {

struct FilledList {
  std::string control;  // objectName: "cboPrintSize", "cboCursorHotSpot(0)"
  std::vector<std::string> entries;
  int first = 0;  // position, from 0, of the entry shown first
};

// The list of a control; without entries when it has none. `screenFonts` are the entries of cboFontName, in the order
// given.
FilledList fillList(std::string_view control, std::span<const std::string> screenFonts = {});

}  // namespace gp

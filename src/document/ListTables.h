// The entries of the main form's lists at start-up: one table row per list.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace gp {

struct FilledList {
  std::string control;  // objectName: "cboPrintSize", "cboCursorHotSpot(0)"
  std::vector<std::string> entries;
  int first = 0;  // index from 0 of the entry shown first
};

// Returns the list of a control, without entries when it has none. `screenFonts` are the entries of cboFontName, in
// order.
FilledList fillList(std::string_view control, std::span<const std::string> screenFonts = {});

}  // namespace gp

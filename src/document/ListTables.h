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

// The list of a control, whose font list is empty; without entries when it has none.
FilledList fillList(std::string_view control);
// All lists. `screenFonts` are the entries of cboFontName, in the order given.
std::vector<FilledList> fillLists(const std::vector<std::string>& screenFonts);
// The list of a control; null when it has none.
const FilledList* findList(std::span<const FilledList> lists, std::string_view control);

}  // namespace gp

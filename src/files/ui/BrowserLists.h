// Code that the panes of frmGPMultiIcon share: measures, and the lists of icons.
#pragma once

#include "platform/qt/widgets/TabbedList.h"

#include <algorithm>
#include <string>
#include <vector>

namespace gp {

// Pixels.
inline constexpr int kLargestIcon = 48;
inline constexpr int kGap = 4;
inline constexpr int kColumnGap = 8;

// Bits, colours, size.
inline const std::vector<int> kBrowserTabStops{30, 60, 98};

inline void keepWidth(TabbedList& list) {
  list.setMinimumWidth(std::max(list.minimumWidth(), list.minimumSizeHint().width()));
}

// Texts of most files need the same width; shorter texts do not make a list narrower.
inline void showItems(TabbedList& list, const std::vector<std::string>& texts) {
  if (list.minimumWidth() == 0) list.setItems({"Ref 99  \t32 BPP\tTrue-Color\t  128 x 128"});
  keepWidth(list);
  list.setItems(texts);
  keepWidth(list);
}

}  // namespace gp

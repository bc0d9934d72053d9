// The side panels fraPanel(0) to fraPanel(21): one row each, in the order of their numbers.
#pragma once

#include <span>

namespace gp {

inline constexpr int kColorPanel = 0;
inline constexpr int kIconsListPanel = 1;
inline constexpr int kCursorPanel = 2;

struct PanelRow {
  int number;
  const char* caption;
};

std::span<const PanelRow> panelTable();

}  // namespace gp

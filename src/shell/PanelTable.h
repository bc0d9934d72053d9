// The side panels fraPanel(0) to fraPanel(21): one row each, in the order of their numbers.
#pragma once

#include "document/PanelNumbers.h"

#include <span>

namespace gp {

struct PanelRow {
  int number;
  const char* caption;
};

std::span<const PanelRow> panelTable();

}  // namespace gp

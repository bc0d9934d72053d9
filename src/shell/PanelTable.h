// The table of the side panels fraPanel(0) to fraPanel(21), in the order of their numbers.
#pragma once

#include "document/PanelNumbers.h"

#include <span>

namespace gp {

class Shell;

struct PanelRow {
  int number;
  const char* caption;            // a menu caption, with && for &
  void (*proceed)(Shell& shell);  // the action of Proceed; null for none
  // The command whose needs must also be met at Proceed; null when `proceed` checks by itself.
  const char* command = nullptr;
  int commandIndex = 0;
};

std::span<const PanelRow> panelTable();
// Returns the row of a panel; null for an unused number.
const PanelRow* findPanel(int number);

}  // namespace gp

// The side panels fraPanel(0) to fraPanel(21): one row each, in the order of their numbers.
#pragma once

#include "document/PanelNumbers.h"

#include <span>

namespace gp {

class Shell;

struct PanelRow {
  int number;
  const char* caption;            // written like a menu's, with && for &
  void (*proceed)(Shell& shell);  // what Proceed does; null for nothing
  // The command whose needs must be met again at Proceed; null where Proceed asks itself.
  const char* command = nullptr;
  int commandIndex = 0;
};

std::span<const PanelRow> panelTable();
// The row of a panel; null for a number that no panel has.
const PanelRow* findPanel(int number);

}  // namespace gp

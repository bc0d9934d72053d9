// The commands that open a side panel, or the pane of the animated cursor session, in place of the Icons List.
#pragma once

namespace gp {

struct Command;

bool opensPanel(const Command& command);

}  // namespace gp

// What the commands on icon files work with: the shared state and the ports, which outlive them all.
#pragma once

#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"

namespace gp {

struct FilesContext {
  EditState& state;
  Editor& editor;
  Display& display;
  MessageBoxes& boxes;
  MessagePump& pump;
  clsGPDialog& dialog;
};

}  // namespace gp

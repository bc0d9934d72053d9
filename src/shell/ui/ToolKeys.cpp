#include "shell/ui/ToolKeys.h"

#include "drawing/ToolTable.h"
#include "drawing/ui/ShiftPad.h"
#include "drawing/ui/ToolBox.h"
#include "shell/CommandTable.h"

#include <QKeySequence>

#include <string_view>

namespace gp {

void showToolKeys(ToolBox& toolBox, ShiftPad& shiftPad) {
  for (const Command& command : commandTable()) {
    if (std::string_view(command.control) != "mnuTools") continue;
    const QString key = QKeySequence(command.key).toString(QKeySequence::NativeText);
    if (command.index == kShift)
      shiftPad.setKey(key);
    else
      toolBox.setKey(command.index, key);
  }
}

}  // namespace gp

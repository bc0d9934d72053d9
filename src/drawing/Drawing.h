// The whole room at work: makes the tools and commands of drawing, ties each tool to its place in the tool box, and
// holds them for the shell. It decides nothing.
#pragma once

#include "colour/ColorSelection.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/EditingArea.h"
#include "document/Editor.h"
#include "drawing/ClipboardCommands.h"
#include "drawing/ContainerCopies.h"
#include "drawing/DrawState.h"
#include "drawing/FillTools.h"
#include "drawing/Freehand.h"
#include "drawing/RegionTool.h"
#include "drawing/Regions.h"
#include "drawing/RotatePanel.h"
#include "drawing/ShapeTools.h"
#include "drawing/ShiftTool.h"
#include "drawing/Tools.h"
#include "drawing/Transforms.h"
#include "drawing/UndoHistory.h"
#include "platform/ports/Clipboard.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"

namespace gp {

class Drawing {
 public:
  Drawing(EditState& state, Editor& editor, Display& display, EditingArea& editingArea, ColorSelection& colors,
          MessageBoxes& boxes, MessagePump& pump, Clipboard& clipboard);

 private:
  DrawState drawState_;

 public:
  UndoHistory history;
  Regions regions;
  Tools tools;
  ShiftTool shift;
  RotatePanel rotatePanel;
  Transforms transforms;
  ClipboardCommands clipboardCommands;
  ContainerCopies containerCopies;

 private:
  FreehandTool freehand_;
  RestoreTool restore_;
  FillTool fill_;
  ReplaceTool replace_;
  ShapeTool shapes_;
  RegionTool region_;
};

}  // namespace gp

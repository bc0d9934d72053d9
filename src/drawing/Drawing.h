// The room's interface: creates the drawing tools and commands for the rooms to the right, and assigns each tool its
// place in the tool box. Contains no logic.
#pragma once

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
#include "drawing/UndoCommands.h"
#include "drawing/UndoHistory.h"

namespace gp {

struct Document;
class Clipboard;
class ColorSelection;

class Drawing {
 public:
  Drawing(const Context& context, Document& document, ColorSelection& colors, Clipboard& clipboard);

  // The rectangle and stroke while the mouse is down.
  DrawState drawState;
  UndoHistory history;
  Regions regions;
  Tools tools;
  UndoCommands undo;
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

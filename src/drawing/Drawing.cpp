#include "drawing/Drawing.h"

namespace gp {

Drawing::Drawing(EditState& state, Editor& editor, Display& display, EditingArea& editingArea, ColorSelection& colors,
                 MessageBoxes& boxes, MessagePump& pump, Clipboard& clipboard)
    : history(state, editor, pump),
      regions(state, drawState_, editor, display),
      tools(state, editor, display, colors, boxes, pump, drawState_),
      shift(state, editor, boxes),
      rotatePanel(state, editor, display, regions),
      transforms(state, editor, display, boxes, regions, rotatePanel),
      clipboardCommands(state, editor, display, boxes, clipboard, regions),
      containerCopies(state, editor, display, boxes, regions),
      freehand_(state, editor, editingArea, pump, drawState_),
      restore_(state, editor, drawState_),
      fill_(state, editor),
      replace_(state, editor),
      shapes_(state, editor, display, pump, drawState_, history),
      region_(state, drawState_, editor, regions, pump) {
  const struct {
    int tool;
    DrawingTool& worker;
  } workers[] = {
      {kPaint, freehand_},  {kErase, freehand_},    {kFill, fill_},        {kReplace, replace_},
      {kRestore, restore_}, {kLine, shapes_},       {kRectangle, shapes_}, {kFilledRectangle, shapes_},
      {kOval, shapes_},     {kFilledOval, shapes_}, {kRegion, region_},    {kShift, shift},
  };
  for (const auto& [tool, worker] : workers) tools.attach(tool, worker);
}

}  // namespace gp

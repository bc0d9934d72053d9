#include "drawing/Drawing.h"

#include "document/Document.h"

namespace gp {

Drawing::Drawing(const Context& context, Document& document, ColorSelection& colors, Clipboard& clipboard)
    : history(context, document.editingArea),
      regions(context, document.editingArea, history, drawState),
      tools(context, document.iconsPanel, colors, history, regions, drawState),
      undo(context, document.editingArea, history, regions, tools),
      shift(context, document.editingArea, history, tools),
      rotatePanel(context, document.editingArea, history, regions),
      transforms(context, document.editingArea, history, regions, tools, rotatePanel),
      clipboardCommands(context, document, history, regions, tools, clipboard),
      containerCopies(context, document, regions),
      freehand_(context, document.editingArea, history, drawState),
      restore_(context, document.editingArea, drawState),
      fill_(context, document.editingArea, history),
      replace_(context, document.editingArea, history),
      shapes_(context, document.editingArea, history, tools, drawState),
      region_(context, history, regions, tools) {
  const struct {
    Tool tool;
    DrawingTool& worker;
  } workers[] = {
      {kPaint, freehand_},  {kErase, freehand_},    {kFill, fill_},        {kReplace, replace_},
      {kRestore, restore_}, {kLine, shapes_},       {kRectangle, shapes_}, {kFilledRectangle, shapes_},
      {kOval, shapes_},     {kFilledOval, shapes_}, {kRegion, region_},    {kShift, shift},
  };
  for (const auto& [tool, worker] : workers) tools.attach(tool, worker);
}

}  // namespace gp

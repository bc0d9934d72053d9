// The tool box and the three mouse handlers of picDisp. Turns a position on the magnified Editing Area into a pixel of
// the Current Icon and dispatches to the selected tool. Owns the freehand tools (Paint, Erase, Restore), the brush, the
// read-outs and the pointer over the Editing Area.
#pragma once

#include "colour/ColorSelection.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/EditingArea.h"
#include "document/Editor.h"
#include "drawing/ToolTable.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"

#include <string>

namespace gp {

inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;
// Bits of the modifier state.
inline constexpr int kShiftKey = 1;
inline constexpr int kCtrlKey = 2;
inline constexpr int kAltKey = 4;
inline constexpr int kBrushSizes = 6;

struct MouseInput {
  int button = 0;     // the button of the event; 0 for a move
  int modifiers = 0;  // bits above
  float x = 0;        // Editing Area pixels
  float y = 0;
};

class Tools {
 public:
  Tools(EditState& state, Editor& editor, Display& display, EditingArea& editingArea, ColorSelection& colors,
        MessageBoxes& boxes, MessagePump& pump);

  // MouseDown, MouseMove and MouseUp of picDisp.
  void press(const MouseInput& mouse);
  void move(const MouseInput& mouse);
  void release(const MouseInput& mouse);
  // The pointer left picDisp.
  void leave();

  // True when the tools are shown and one is selected.
  bool isToolActive() const;
  int selectedTool() const { return selected_; }
  // "RGB: 0, 128, 0" of a pixel of the Current Icon, "N/A" of a transparent one. It must lie inside.
  std::string pixelText(int x, int y) const;
  // imgTool Click: selects a tool; a second click turns it off.
  void selectTool(int tool);
  // mnuTools Click.
  void mnuTools(int index);
  void clearAllTools();
  // imgClearAllTools Click.
  void imgClearAllTools();
  // cboBrushSize or mnuBrushSize: list index 0 to 5.
  void setBrush(int index);

 private:
  void locate(const MouseInput& mouse);
  void stamp();
  void continueStroke();
  void restorePixel();
  void setReadout(Readout which, std::string text);
  void writeReadouts();
  std::string pixelRgbText() const;
  void updateEditingPointer();
  void toolsChanged();

  EditState& state_;
  Editor& editor_;
  Display& display_;
  EditingArea& editingArea_;
  ColorSelection& colors_;
  MessageBoxes& boxes_;
  MessagePump& pump_;

  int selected_ = kNoTool;
  // A stroke is under way from press to release; a nested event finds the flags as they are.
  bool mPainting = false;
  bool mErasing = false;
  bool mRestoring = false;
  bool mRegionDown = false;
  int mPixelX = 0, mPixelY = 0;
  int mDrawX1 = 0, mDrawY1 = 0, mDrawX2 = 0, mDrawY2 = 0;
};

enum class SnapMode { CellCentre = 1, NearestCorner = 2 };
// Maps an Editing Area position to the centre of its cell, or to the nearest grid corner (the half goes up).
int snapToCell(double position, SnapMode mode, int magnification);

}  // namespace gp

// The tool box and the three mouse handlers of picDisp. Turns a position on the magnified Editing Area into a pixel of
// the Current Icon and hands it to the selected tool. Owns which tool is selected, the brush, the read-outs and the
// pointer over the Editing Area; what the tools do is their own business.
#pragma once

#include "colour/ColorSelection.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "drawing/DrawState.h"
#include "drawing/DrawingTool.h"
#include "drawing/ToolTable.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"

#include <array>
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
  Tools(EditState& state, Editor& editor, Display& display, ColorSelection& colors, MessageBoxes& boxes,
        MessagePump& pump, DrawState& drawState);

  // Says who does the work of a tool; it must outlive the tools. A tool without one cannot be selected.
  void attach(int tool, DrawingTool& worker);
  bool isAvailable(int tool) const { return worker(tool) != nullptr; }

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
  // imgClearAllTools Click, and mnuTools(0): a region is merged as a step of its own.
  void imgClearAllTools();
  // cboBrushSize or mnuBrushSize: list index 0 to 5.
  void setBrush(int index);

 private:
  DrawingTool* worker(int tool) const;
  void locate(const MouseInput& mouse);
  ToolMouse toolMouse(const MouseInput& mouse) const;
  void pickColor();
  void setReadout(Readout which, std::string text);
  void writeReadouts();
  std::string pixelRgbText() const;
  int pointerAt(float x, float y) const;
  void updateEditingPointer(float x, float y);
  void deselect();
  void toolsChanged();

  EditState& state_;
  Editor& editor_;
  Display& display_;
  ColorSelection& colors_;
  MessageBoxes& boxes_;
  MessagePump& pump_;
  DrawState& drawState_;

  std::array<DrawingTool*, kLastTool + 1> workers_{};
  int selected_ = kNoTool;
  int mPixelX = 0;
  int mPixelY = 0;
  float lastX_ = 0;  // where the pointer was last, Editing Area pixels
  float lastY_ = 0;
};

enum class SnapMode { CellCentre = 1, NearestCorner = 2 };
// Maps an Editing Area position to the centre of its cell, or to the nearest grid corner (the half goes up).
int snapToCell(double position, SnapMode mode, int magnification);

}  // namespace gp

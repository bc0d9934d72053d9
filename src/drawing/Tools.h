// The tool box and the three mouse handlers of picDisp. Converts a position on the magnified Editing Area to a pixel of
// the Current Icon and passes it to the selected tool. Owns the selected tool, the brush, the read-outs and the pointer
// over the Editing Area.
#pragma once

#include "document/Context.h"
#include "document/Tool.h"
#include "drawing/DrawingTool.h"

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
  int modifiers = 0;  // bits kShiftKey, kCtrlKey and kAltKey
  float x = 0;        // Editing Area pixels
  float y = 0;
  bool byKeyboard = false;
};

class ColorSelection;
class IconsPanel;
class Regions;
class UndoHistory;
enum class Readout;
struct DrawState;

class Tools {
 public:
  Tools(const Context& context, IconsPanel& iconsPanel, ColorSelection& colors, UndoHistory& history, Regions& regions,
        DrawState& drawState);

  // Sets the object that implements a tool; it must outlive this object. A tool without one cannot be selected.
  void attach(Tool tool, DrawingTool& worker);
  bool isAvailable(Tool tool) const { return worker(tool) != nullptr; }

  // MouseDown, MouseMove and MouseUp of picDisp.
  void press(const MouseInput& mouse);
  void move(const MouseInput& mouse);
  void release(const MouseInput& mouse);
  // True when the last press stays down for the keyboard: the arrow keys move, and a further key releases. False for a
  // tool that works at a point, and once the drag has ended otherwise.
  bool isHeld() const;
  // Instead of a release: nothing that the press and the moves have done stays.
  void giveUp();
  // Draws the band of a drag on an Editing Area that was rebuilt at another magnification.
  void followMagnification();
  // The pointer has left picDisp.
  void leave();

  // Returns true when the tools are shown and one is selected.
  bool isToolActive() const;
  Tool selectedTool() const { return selected_; }
  // Returns "RGB: 0, 128, 0" for a pixel of the Current Icon, "N/A" for a transparent one. The pixel must exist.
  std::string pixelText(int x, int y) const;
  // imgTool Click: selects a tool; a second click deselects it.
  void selectTool(Tool tool);
  // mnuTools Click: a tool by its index, the colour picker, Clear Tools. They update the pointer's shape at once.
  void selectFromMenu(int tool);
  void pickColorFromMenu();
  void clearFromMenu();
  void clearAllTools();
  // imgClearAllTools Click: also merges a region as an Undo step.
  void imgClearAllTools();
  // cboBrushSize or mnuBrushSize: sets the brush by its list index, 0 to 5.
  void setBrush(int index);

 private:
  DrawingTool* worker(Tool tool) const;
  void locate(const MouseInput& mouse);
  ToolMouse toolMouse(const MouseInput& mouse) const;
  void pickColor();
  void setReadout(Readout which, std::string text);
  void writeReadouts();
  void writeDrawnSize();
  std::string pixelRgbText() const;
  int pointerAt(float x, float y) const;
  void updateEditingPointer(float x, float y);
  void deselect();
  void announceTool();
  void toolsChanged();

  Context context_;
  EditState& state_;
  Display& display_;
  IconsPanel& iconsPanel_;
  ColorSelection& colors_;
  UndoHistory& history_;
  Regions& regions_;
  DrawState& drawState_;

  std::array<DrawingTool*, kShift + 1> workers_{};
  Tool selected_ = kNoTool;
  int mPixelX = 0;
  int mPixelY = 0;
  unsigned moves_ = 0;  // how often the mouse or the keyboard has moved
  float lastX_ = 0;     // the pointer's last position, Editing Area pixels
  float lastY_ = 0;
};

enum class SnapMode { CellCentre = 1, NearestCorner = 2 };
// Maps an Editing Area position to the centre of its cell, or to the nearest grid corner (halves are rounded up).
int snapToCell(double position, SnapMode mode, int magnification);

}  // namespace gp

// The Current Icon on the screen: composing it from its Surfaces, magnifying it onto the Editing Area, the grid over
// it, and what the status bar tells of it. Owns the choice of gMagnification and gGridColor.
#pragma once

#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "platform/ports/MessagePump.h"

#include <string>

namespace gp {

class EditingArea {
 public:
  EditingArea(EditState& state, Editor& editor, Display& display, MessagePump& pump);

  // Gives the 1:1 Surfaces, and the scratch Surfaces, the size of an icon; their pictures are lost.
  void SizeEditSurfaces(int size);
  // The same for the current container's three Surfaces.
  void SizePanelSurfaces(int size);

  // PicIcon becomes Mask and image composed over its back colour.
  void ComposeCurrentIcon();
  // Copies the Current Icon to its container's Surfaces.
  void UpdatePanelFromCurrent();
  // Composes again, and shows on picDisp only what a freehand tool changed: the square with both corners included, in
  // Editing Area pixels and any distance beyond its edge. `color` is what the square shows.
  void showSquare(int left, int top, int right, int bottom, Color color);

  // The factor for an icon size, from the option and the room there is.
  void ChooseMagnify(int size);
  // The grid alone, and picDisp at its size. Nothing while no icon is present.
  void BuildGrid();
  // Rebuilds picDisp from PicIcon, with the grid over it.
  void MagnifyIcon();
  // Marks the icon as present and shows it.
  void ShowCurrentIcon();
  // picDisp without an icon: empty, at the size of one of 32.
  void showEmpty();

  void RefreshStatusBar();
  void ClearStatusBar();

  // Selects a grid (index of mnuOptionsSubGrid).
  void SetGrid(int index);
  // Reconsiders the magnification after the option or the room changed.
  void ApplyEnlargedOption();
  // The client size of picDispContainer, in pixels, after a new layout.
  void setRoom(int width, int height);

 private:
  void sizePicDisp(int width, int height);
  void drawGridLines(Color color);
  void drawGridDots(Color color);
  void tilePattern(int width, int height);
  void overlayGrid();
  void overlayPattern();

  EditState& state_;
  Editor& editor_;
  Display& display_;
  MessagePump& pump_;
};

// gGridColor of a grid entry: a colour, or -1 to -3 for the patterned grids.
Color gridColorOf(int index);
inline constexpr Color kNoGrid = kGround;
// The index of the Region tool: a new magnification ends it.
inline constexpr int kRegionTool = 14;

}  // namespace gp

// The Current Icon on the screen: composing it from its Surfaces, magnifying it onto the Editing Area, the grid over
// it, and what the status bar tells of it. Owns the choice of gMagnification and gGridColor.
#pragma once

#include "document/Context.h"
#include "platform/gdi/Surface.h"

#include <array>
#include <cstddef>

namespace gp {

struct IconImage;

class EditingArea {
 public:
  explicit EditingArea(const Context& context);

  // Gives the 1:1 Surfaces the size of an icon; their pictures are lost.
  void SizeEditSurfaces(int size);
  // The same for the current container's three Surfaces.
  void SizePanelSurfaces(int size);

  // PicIcon becomes Mask and image composed over its back colour.
  void ComposeCurrentIcon();
  // Copies the Current Icon to its container's Surfaces.
  void UpdatePanelFromCurrent();
  // Gives a container the icon's size and pictures, and shows it in the Icons Panel.
  void storeInContainer(int container, const IconImage& icon);
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
  // ComposeCurrentIcon, then MagnifyIcon: the icon's pixels changed.
  void showChangedIcon();
  // picDisp without an icon: empty, at the size of one of 32.
  void showEmpty();

  void RefreshStatusBar();
  void ClearStatusBar();

 private:
  void sizeContainer(std::size_t container, int size);
  void copyToContainer(std::size_t container, const Surface& image, const Surface& mask);
  void sizePicDisp(int width, int height);
  void drawGridLines(Color color);
  void drawGridDots(Color color);
  void tilePattern(int width, int height);
  void overlayGrid();
  void overlayPattern();

  Context context_;
  EditState& state_;
  Display& display_;
  std::array<Surface, 2> picTile_;  // of a patterned grid: the pattern alone, and the icon over it
};

// gGridColor of a grid entry: a colour, or -1 to -3 for the patterned grids.
Color gridColorOf(int index);
inline constexpr Color kNoGrid = kGround;

}  // namespace gp

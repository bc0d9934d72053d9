// The Current Icon on the screen: composes it from its Surfaces, magnifies it onto the Editing Area with the grid over
// it, and fills the status bar. Owns the choice of gMagnification and gGridColor.
#pragma once

#include "document/Context.h"
#include "document/Grid.h"
#include "platform/gdi/Surface.h"

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

  // Composes Mask and image in PicIcon, over its back colour.
  void ComposeCurrentIcon();
  // Copies the Current Icon to its container's Surfaces.
  void UpdatePanelFromCurrent();
  // Gives a container the icon's size and pictures, and shows it in the Icons Panel.
  void storeInContainer(int container, const IconImage& icon);
  // Shows on picDisp only what a freehand tool changed: fills the square with `color`. Positions are Editing Area
  // pixels, both corners are included, and the square may reach beyond the edge.
  void showSquare(int left, int top, int right, int bottom, Color color);

  // Sets gMagnification: the zoom, or else what the option gives for an icon size in the available room.
  void ChooseMagnify(int size);
  // The same for an empty Editing Area, which is never zoomed.
  void chooseMagnifyOfEmpty();
  // The magnification that a person has chosen for all icons, 0 for that of the option. The next ChooseMagnify() uses
  // it.
  void setZoom(int magnification) { zoom_ = magnification; }
  // Rebuilds PicGrid and gives picDisp its size. Pumps messages. Does nothing while no icon is present.
  void BuildGrid();
  // Rebuilds picDisp from picImage and picMask, with the grid over it, then redraws a region.
  void MagnifyIcon();
  // Marks the icon as present and shows it.
  void ShowCurrentIcon();
  // ComposeCurrentIcon, then MagnifyIcon: the icon's pixels changed.
  void showChangedIcon();
  // Empties picDisp, at the size for an icon of 32.
  void showEmpty();

  void RefreshStatusBar();
  void ClearStatusBar();

 private:
  void sizeContainer(std::size_t container, int size);
  void copyToContainer(std::size_t container, const Surface& image, const Surface& mask);
  void sizePicDisp(int width, int height);
  // Gives picDisp the size of the magnified icon.
  void fitPicDisp();
  int optionMagnification(int size) const;

  Context context_;
  EditState& state_;
  Display& display_;
  int zoom_ = 0;
};

}  // namespace gp

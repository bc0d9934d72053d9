// The data that all subsystems share: records, Surfaces, alpha matrices, shared flags, the current colour, and what the
// screen shows. Plain data without rules: each member has one owner among the subsystems, named in its comment.
#pragma once

#include "document/AlphaMatrix.h"
#include "document/IconContainerRec.h"
#include "document/Options.h"
#include "document/ProcessValues.h"
#include "document/ScreenState.h"
#include "platform/gdi/Surface.h"

#include <array>

namespace gp {

struct EditState {
  ProcessValues process;  // start-up and the file dialogs
  Options options;        // Settings reads and saves them
  ScreenState screen;

  std::array<IconContainerRec, kContainerCount> mIconRecs;  // IconArrival; commands mark changes
  int mCurContainer = 0;                                    // IconsPanel
  IconContainerRec& current() { return mIconRecs.at(static_cast<std::size_t>(mCurContainer)); }
  const IconContainerRec& current() const { return mIconRecs.at(static_cast<std::size_t>(mCurContainer)); }
  // True when replacing the Current Icon would lose changes.
  bool IsIconChanged() const { return current().present && (current().modified || current().neverSaved); }

  // Identifies the Current Icon: incremented whenever another icon, or none, is shown in the Editing Area. IconArrival.
  unsigned iconSerial = 0;

  // The alpha values of each container's icon, as old as its copy of the image. IconArrival and EditingArea.
  std::array<AlphaMatrix, kContainerCount> mAlphaRecs;

  // The Current Icon, 1:1: image and Mask, which drawing and effects change, and the composite of both; its alpha
  // values as greys (AlphaGreys), which drawing changes with image and Mask: white for an icon without alpha. The
  // Editing Area and its grid. EditingArea composes and magnifies.
  Surface picImage{32, 32, kBlack};
  Surface picMask{32, 32, kWhite};
  Surface PicIcon{32, 32, kGround};
  Surface picAlpha{32, 32, kWhite};
  Surface picDisp{384, 384, kGround};
  Surface PicGrid{384, 384, kWhite};
  // Each container's copy of its icon. EditingArea.
  std::array<Surface, kContainerCount> picPanelImage;
  std::array<Surface, kContainerCount> picPanelMask;
  std::array<Surface, kContainerCount> picPanelIcon;

  int gMagnification = 12;      // pixels of picDisp per icon pixel; EditingArea
  Color gGridColor = 0x606060;  // EditingAreaOptions

  Color mCurrentColor = kWhite;  // the colour with which the tools paint, shown by picColorToUse; ColorSelection

  bool mRegionExists = false;  // a region is on the Editing Area, which disables some commands; written by Regions
  bool mPendingPaint = false;  // its content floats and must be committed before the container changes; by Regions
  bool mInLoad = false;        // the main form is being created: no layout, no alpha work; Shell
};

}  // namespace gp

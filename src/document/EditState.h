// The data that all subsystems share: records, Surfaces, alpha matrices, shared flags, the current colour, and what the
// screen shows. Plain data without rules: each member has one owner among the subsystems, named in its comment.
#pragma once

#include "document/AlphaMatrix.h"
#include "document/IconContainerRec.h"
#include "document/Options.h"
#include "platform/gdi/Surface.h"

#include <array>
#include <string>

namespace gp {

// Values that start-up finds out once.
struct ProcessValues {
  int gScreenBPP = 32;
  std::string gWindowsDir;
  std::string gSystemDir;
  std::string gTempDir;
  std::string mDesktopFolder;
  std::string mLastFolder;   // folder of the last file dialog
  std::string mCommandFile;  // the file last opened by command line, dialog or history
};

// The three frames of the colour panel of which one is visible; the values are the indices of fraofColorPanel.
enum class ColorFrame { Chart16 = 3, Chart256 = 4, DirectEntry = 5 };

// The pointer over the Editing Area: one of the platform's own, or the index of the tool whose picture it is.
inline constexpr int kDefaultPointer = -1;
inline constexpr int kCrossPointer = -2;
inline constexpr int kHorizontalResizePointer = -3;
inline constexpr int kVerticalResizePointer = -4;
inline constexpr int kMovePointer = -5;
inline constexpr int kColorPickerPointer = 2;  // the picker's index in mnuTools

inline constexpr int kStatusPanelCount = 5;
enum class StatusPanel { Path = 0, Discrepancy = 1, MultiIcon = 2, Size = 3, Alpha = 4 };

inline constexpr int kReadoutCount = 3;
enum class Readout { Position = 0, PixelRgb = 1, Region = 2 };

// What the views show beside the Surfaces. The logic writes it and tells the Display; the views only read it.
struct ScreenState {
  std::array<std::string, kStatusPanelCount> lblStatusPanel;
  bool imgAlphaOnStatusPanel = false;
  int progressPercent = -1;  // picProgressContainer; -1 while hidden
  std::array<std::string, kReadoutCount> lblDispXY;
  bool pixelRgbVisible = false;  // lblDispXY(1)
  // fraTools(0) frames the tool box; fraTools(1) holds the tools and is shown while there is something to draw on.
  std::array<bool, 2> fraTools{true, false};
  int mActivePanel = 0;              // fraPanel(n) that is up; 0 is the colour panel
  bool aniContainerVisible = false;  // picANIContainer(0)
  ColorFrame colorFrame = ColorFrame::Chart16;
  bool imgColorPickerVisible = false;
  bool fraColorMixerVisible = false;
  bool hourglass = false;
  int editingPointer = kDefaultPointer;
  int brushIndex = 0;            // list index of cboBrushSize; the brush is one wider
  int dispContainerWidth = 400;  // client size of picDispContainer, pixels
  int dispContainerHeight = 400;
};

struct EditState {
  ProcessValues process;
  Options options;
  ScreenState screen;

  std::array<IconContainerRec, kContainerCount> mIconRecs;
  int mCurContainer = 0;
  IconContainerRec& current() { return mIconRecs.at(static_cast<std::size_t>(mCurContainer)); }
  const IconContainerRec& current() const { return mIconRecs.at(static_cast<std::size_t>(mCurContainer)); }
  // True when replacing the Current Icon would lose changes.
  bool IsIconChanged() const { return current().present && (current().modified || current().neverSaved); }

  // Identifies the Current Icon: incremented whenever another icon, or none, is shown in the Editing Area.
  unsigned iconSerial = 0;

  AlphaMatrix gAlphaValues;
  std::array<AlphaMatrix, kContainerCount> mAlphaRecs;

  // The Current Icon, 1:1: image, Mask and composite; the Editing Area and its grid.
  Surface picImage{32, 32, kBlack};
  Surface picMask{32, 32, kWhite};
  Surface PicIcon{32, 32, kGround};
  Surface picDisp{384, 384, kGround};
  Surface PicGrid{384, 384, kWhite};
  // Each container's copy of its icon.
  std::array<Surface, kContainerCount> picPanelImage;
  std::array<Surface, kContainerCount> picPanelMask;
  std::array<Surface, kContainerCount> picPanelIcon;

  int gMagnification = 12;  // pixels of picDisp per icon pixel
  Color gGridColor = 0x606060;

  Color mCurrentColor = kWhite;  // the colour with which the tools paint, shown by picColorToUse

  bool mRegionActive = false;  // a region floats or is selected: it keeps commands waiting
  bool mRegionExists = false;  // a region box stands on the Editing Area
  bool mPendingPaint = false;  // a tool action is open and must be committed before the container changes
  bool mInLoad = false;        // the main form is being made: no layout, no alpha work
};

}  // namespace gp

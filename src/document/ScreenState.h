// What the views show beside the Surfaces: texts, visible parts, pointers. The logic writes it and notifies the
// Display; the views only read it.
#pragma once

#include <array>
#include <string>

namespace gp {

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

inline constexpr int kReadoutCount = 4;
// Size is the width and height of a shape or a region while it is drawn.
enum class Readout { Position = 0, PixelRgb = 1, Region = 2, Size = 3 };

// Where the view outlines a region: its box in Editing Area pixels, right and bottom on the lines behind the last
// pixels. It can reach beyond the icon.
struct RegionOutline {
  static constexpr int kReach = 6;  // pixels by which what the view paints can reach beyond the box
  int left = 0, top = 0, right = 0, bottom = 0;
  bool shown = false;
  bool hasHandles = false;  // the mouse can move its sides
  bool operator==(const RegionOutline&) const = default;
};

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
  RegionOutline regionOutline;   // Regions
  int brushIndex = 0;            // list index of cboBrushSize; the brush is one wider
  int dispContainerWidth = 400;  // client size of picDispContainer, pixels
  int dispContainerHeight = 400;
};

}  // namespace gp

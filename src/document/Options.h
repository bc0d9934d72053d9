// The user's settings: the ticks of the Options menu, with their defaults.
#pragma once

namespace gp {

inline constexpr int kGridCount = 7;
inline constexpr int kStartScreenCount = 3;

struct Options {
  int grid = 0;                        // index of mnuOptionsSubGrid
  int startScreen = 0;                 // index of mnuOptionsStartScreenSub
  bool useEnlargedEditingArea = true;  // mnuOptionsSub(3)
  bool displayPixelRgb = false;        // (5)
  bool tooltip256ColorChart = false;   // (7)
  bool updateOnlyEditingArea = true;   // (9)
  bool promptToSave = false;           // (11)
  bool remindIfBitmap = true;          // (12)
  bool flagMessageIfAlpha = true;      // (13)
  bool alertIfBadHeader = true;        // (14)
};

}  // namespace gp

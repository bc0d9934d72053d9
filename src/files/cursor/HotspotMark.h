// Marks a cursor's hot spot: its pixel blinks red and white on the Editing Area. The icon contains the mark only while
// it is drawn, never while messages are pumped, so that no command can read or save it. Only one mark blinks at a time;
// further calls are ignored.
#pragma once

#include "document/Context.h"
#include "platform/gdi/Surface.h"

namespace gp {

class EditingArea;

class HotspotMark {
 public:
  HotspotMark(const Context& context, EditingArea& editingArea);

  // Blinks three times, for 900 ms in total. Ends early when another icon arrives, and after cancel().
  void FlashHotspot(int x, int y);
  bool isFlashing() const { return mHotspotFlashing_; }
  // Ends the blinking, because the program closes or the icon is no longer shown.
  void cancel() { cancelled_ = true; }

 private:
  void showMark(int x, int y, Color color);

  Context context_;
  EditState& state_;
  EditingArea& editingArea_;
  bool mHotspotFlashing_ = false;
  bool cancelled_ = false;
};

}  // namespace gp

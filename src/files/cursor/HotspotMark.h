// The mark that shows a cursor's hot spot: its pixel blinks red and white on the Editing Area. The icon's own pixels
// hold the mark only while it is drawn, never while messages are pumped, so that nothing a user does meanwhile can see
// or save it. One mark blinks at a time; another is ignored.
#pragma once

#include "document/Context.h"
#include "platform/gdi/Surface.h"

namespace gp {

class EditingArea;

class HotspotMark {
 public:
  HotspotMark(const Context& context, EditingArea& editingArea);

  // Blinks three times, 900 ms in all. It ends early when another icon comes up, and after cancel().
  void FlashHotspot(int x, int y);
  bool isFlashing() const { return mHotspotFlashing_; }
  // The program closes, or what is shown is gone.
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

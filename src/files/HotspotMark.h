// The mark that shows a cursor's hot spot: its pixel blinks red and white on the Editing Area. The icon's own pixels
// hold the mark only while it is drawn, never while messages are pumped, so that nothing a user does meanwhile can see
// or save it. One mark blinks at a time; another is ignored.
#pragma once

#include "document/EditState.h"
#include "document/Editor.h"
#include "platform/ports/MessagePump.h"

#include <string>

namespace gp {

// What is on the Editing Area, as far as a hot spot cares: one is of no use on another icon.
struct ShownIcon {
  int container;
  int size;
  bool present;
  std::string path;
  int multiIconIndex;
  bool operator==(const ShownIcon&) const = default;
};
ShownIcon shownIcon(const EditState& state);

class HotspotMark {
 public:
  HotspotMark(EditState& state, Editor& editor, MessagePump& pump);

  // Blinks three times, 900 ms in all. It ends early when another icon comes up, and after cancel().
  void FlashHotspot(int x, int y);
  bool isFlashing() const { return mHotspotFlashing_; }
  // The program closes, or what is shown is gone.
  void cancel() { cancelled_ = true; }

 private:
  void showMark(int x, int y, Color color);

  EditState& state_;
  Editor& editor_;
  MessagePump& pump_;
  bool mHotspotFlashing_ = false;
  bool cancelled_ = false;
};

}  // namespace gp

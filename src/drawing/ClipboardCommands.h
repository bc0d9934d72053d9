// Cut, Erase, Copy, Paste and Clear Clipboard of the Edit menu. The desktop's clipboard is a port; what comes from it
// is a stranger's, and is used only as far as it fits an icon.
#pragma once

#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "drawing/Regions.h"
#include "platform/ports/Clipboard.h"
#include "platform/ports/MessageBoxes.h"

#include <string>

namespace gp {

class ClipboardCommands {
 public:
  ClipboardCommands(EditState& state, Editor& editor, Display& display, MessageBoxes& boxes, Clipboard& clipboard,
                    Regions& regions);

  // mnuEditSub(4) with copyFirst, and (5): blanks the region, or takes a floating one away from what lies beneath.
  // Silently nothing without a region.
  void doCutRegion(bool copyFirst);
  // mnuEditSub(6): the region, or the whole icon, with silver where it is transparent.
  void doCopyRegion();
  // mnuEditSub(7) and (8): the clipboard's picture becomes a floating region, in a new icon where there is none.
  void doPaste(bool opaque);
  // mnuEditSub(9).
  void clearClipboard();
  bool hasImage() { return clipboard_.hasImage(); }

 private:
  void cutContent();
  Surface pictureOfRegion() const;
  bool fetch(ClipboardImage& image);
  bool makeRoomFor(const ClipboardImage& image);
  bool makeNewIcon(int size);
  void showPasted(bool opaque);

  EditState& state_;
  Editor& editor_;
  Display& display_;
  MessageBoxes& boxes_;
  Clipboard& clipboard_;
  Regions& regions_;
};

}  // namespace gp

// Cut, Erase, Copy, Paste and Clear Clipboard of the Edit menu. The desktop's clipboard is a port; what comes from it
// is a stranger's, and is used only as far as it fits an icon.
#pragma once

#include "document/Context.h"
#include "platform/gdi/Surface.h"

#include <string>

namespace gp {

class Clipboard;
class Regions;
class Tools;
class UndoHistory;
struct ClipboardImage;
struct Document;

class ClipboardCommands {
 public:
  ClipboardCommands(const Context& context, Document& document, UndoHistory& history, Regions& regions, Tools& tools,
                    Clipboard& clipboard);

  // mnuEditSub(4) with copyFirst, and (5): blanks the region, or takes a floating one away from what lies beneath. The
  // user is told of a region without sides.
  void doCutRegion(bool copyFirst);
  // mnuEditSub(6): the region, or the whole icon, with silver where it is transparent.
  void doCopyRegion();
  // mnuEditSub(7) and (8): the clipboard's picture becomes a floating region, in a new icon where there is none.
  void doPaste(bool opaque);
  // mnuEditSub(9).
  void clearClipboard();

 private:
  void cutContent();
  Surface pictureOfRegion() const;
  bool fetch(ClipboardImage& image);
  bool makeRoomFor(const ClipboardImage& image);
  bool makeNewIcon(int size);
  void showPasted(const Surface& picture, bool opaque);

  Context context_;
  EditState& state_;
  Document& document_;
  UndoHistory& history_;
  Regions& regions_;
  Tools& tools_;
  Clipboard& clipboard_;
};

}  // namespace gp

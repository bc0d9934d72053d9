// Cut, Erase, Copy, Paste and Clear Clipboard of the Edit menu. The desktop's clipboard is a port; its content is
// untrusted and is used only as far as it fits an icon.
#pragma once

#include "document/Context.h"
#include "document/IconImage.h"

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

  // mnuEditSub(4) with copyFirst, and (5): makes the region transparent, or removes a floating region without changing
  // the pixels below. A step of Undo, unless the region was pasted. Shows a message when the region is empty.
  void doCutRegion(bool copyFirst);
  // mnuEditSub(6): copies the region, or the whole icon; transparent pixels have the colour kGround. An icon with
  // alpha values is copied with these.
  void doCopyRegion();
  // mnuEditSub(7) and (8): the clipboard's picture becomes a floating region, in a new icon if none is loaded. Undo
  // starts again with the icon beneath it.
  void doPaste(bool opaque);
  // mnuEditSub(9).
  void clearClipboard();

 private:
  void copy();
  void cutContent();
  Surface pictureOfRegion() const;
  bool startHistory();
  bool fetch(ClipboardImage& image);
  bool makeRoomFor(const ClipboardImage& image);
  bool makeNewIcon(int size);
  IconImage contentToPaste(const ClipboardImage& image, bool opaque) const;
  void showPasted(IconImage content, bool opaque);

  Context context_;
  EditState& state_;
  Document& document_;
  UndoHistory& history_;
  Regions& regions_;
  Tools& tools_;
  Clipboard& clipboard_;
};

}  // namespace gp

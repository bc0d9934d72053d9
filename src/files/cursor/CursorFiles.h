// The commands on cursor files: opening one, and the Panel "Save as cursor" with its hot spot.
#pragma once

#include "files/FilesContext.h"
#include "files/cursor/CursorProbe.h"
#include "files/cursor/HotspotMark.h"
#include "platform/ports/MessageBoxes.h"

#include <functional>
#include <optional>
#include <string>

namespace gp {

struct IconContainerRec;

class CursorFiles {
 public:
  explicit CursorFiles(const FilesContext& context);

  // The command "Open &Cursor File  (cur) ....": offers to save, asks for a file and opens it.
  void doMnuFileOpenCursor();
  // Opens a file into the current container, which keeps its icon if that fails. Reports failures and reminds of an
  // alpha channel.
  void doOpenCursorFile(const std::string& path, bool& ok);

  // Opens the Panel with the hot spot of the current cursor, or 0, 0, and shows the spot once.
  void openPanel();
  // The items of cboCursorHotSpot(0) and (1), 0 to 31. When another icon has arrived since the Panel was opened, they
  // are the same as if it were opened with that icon.
  int hotspotX() const { return spot().x; }
  int hotspotY() const { return spot().y; }
  void setHotspotX(int x);
  void setHotspotY(int y);
  // Handles a click on the Editing Area while the Panel is open, in pixels of the icon: sets the spot and shows it.
  // Ignored while a spot is being shown.
  void setHotspotByClick(int x, int y);
  // cmdShowHotspot.
  void showHotspot();
  // "&Reveal Hotspot Of Original Cursor".
  void revealOriginalHotspot();

  // Writes the Current Icon as a cursor with the hot spot of the lists. Does not change the record and shows no
  // message.
  void WriteCursorFile(const std::string& path, bool& ok) const;

  HotspotMark& mark() { return mark_; }

 private:
  struct Spot {
    int x = 0;
    int y = 0;
  };

  void remindOfAlpha();
  // The initial items of the lists for an icon: the hot spot of a cursor, otherwise 0, 0.
  static Spot startOf(const IconContainerRec& record);
  Spot spot() const;
  void setSpot(Spot spot);

  FilesContext context_;
  EditState& state_;
  HotspotMark mark_;
  Spot spot_;
  std::optional<unsigned> spotOf_;  // iconSerial when the lists were set; empty before the first time
};

}  // namespace gp

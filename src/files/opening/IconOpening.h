// Opens one icon file into the current container, from the probe to the reminders. The container keeps its icon,
// changes and Undo history until the new icon has been decoded.
#pragma once

#include "files/FilesContext.h"
#include "files/format/IconDecoder.h"
#include "files/format/IconProbe.h"
#include "platform/ports/MessageBoxes.h"

#include <string>

namespace gp {

// Spoken: with message boxes, confirmation, history entry and reminders. Quiet: without. Browsed: as Spoken, and a file
// with several icons is shown in the browser. Stored: as Browsed, but the icon is only stored in its container.
enum class OpeningManner { Spoken, Quiet, Browsed, Stored };

class MultiIconCommands;

class IconOpening {
 public:
  // `browser` must outlive this.
  IconOpening(FilesContext& context, std::string path, OpeningManner manner, MultiIconCommands& browser);
  // True when an icon of the file is now in the current container and on the Editing Area. A file that the probe
  // refuses although it holds icons can be shown in the browser instead, if the user agrees.
  bool run();
  // Asks whether to show the icons of a file that the probe refuses, and shows them for a container. Does nothing for
  // other files.
  void offerIcons(int container);

 private:
  bool probe();
  int iconsInside();
  bool refuse();
  bool agreesToShow(int icons);
  bool isSquare();
  bool isBrowsed() const { return (manner_ == OpeningManner::Browsed || isStored()) && facts_.hasSeveralEntries(); }
  bool browse();
  bool finishBrowsing(const std::string& answer);
  bool isConfirmed();
  void show();
  void remind();
  bool fail(const std::string& text, BoxIcon icon);
  bool isStored() const { return manner_ == OpeningManner::Stored; }
  bool isSpoken() const { return manner_ != OpeningManner::Quiet; }

  FilesContext& context_;
  EditState& state_;
  const std::string path_;
  const OpeningManner manner_;
  MultiIconCommands& browser_;
  IconFile file_;
  IconFacts facts_;
  DecodedIcon decoded_;
};

}  // namespace gp

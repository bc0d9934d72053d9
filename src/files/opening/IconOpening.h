// Opens one icon file into the current container, from the probe to the reminders. The container keeps its icon,
// changes and Undo history until the new icon has been decoded.
#pragma once

#include "files/FilesContext.h"
#include "files/format/IconDecoder.h"
#include "files/format/IconProbe.h"
#include "platform/ports/MessageBoxes.h"

#include <string>

namespace gp {

// Spoken: with message boxes, confirmation, history entry and reminders. Quiet: without.
enum class OpeningManner { Spoken, Quiet };

class MultiIconCommands;

class IconOpening {
 public:
  // A file with several icons is opened by `browser`, unless it is null.
  IconOpening(FilesContext& context, std::string path, OpeningManner manner, MultiIconCommands* browser = nullptr);
  // True when an icon of the file is now in the current container and on the Editing Area.
  bool run();

 private:
  bool probe();
  bool isSquare();
  bool isBrowsed() const { return browser_ != nullptr && facts_.hasSeveralEntries(); }
  bool browse();
  bool isOfferedSize();
  bool isConfirmed();
  void show();
  void remind();
  bool fail(const std::string& text, BoxIcon icon);
  bool isSpoken() const { return manner_ == OpeningManner::Spoken; }

  FilesContext& context_;
  EditState& state_;
  const std::string path_;
  const OpeningManner manner_;
  MultiIconCommands* const browser_;
  IconFile file_;
  IconFacts facts_;
  DecodedIcon decoded_;
};

}  // namespace gp

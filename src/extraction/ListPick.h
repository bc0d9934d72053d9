// Brings an icon of the Icons List into the current container, where it waits to be shown.
#pragma once

#include "extraction/IconSource.h"
#include "extraction/SourceTable.h"
#include "files/FilesContext.h"

#include <string>

namespace gp {

class Files;

enum class ListButton { Left, Right };
enum class ListMove { Left, Right, Up, Down, PageUp, PageDown, Home, End };
enum class PickResult { Taken, NotTaken, Invalid };

// The entry that the keyboard moves the mark to. `entry` has it, or -1 without one: the mark then goes to `first`, the
// first entry of the panel. Of `shown` entries, at least one; a move beyond them ends at the first or last one, or
// leaves the mark where it is if that is in another column.
int movedMark(ListMove move, int entry, int first, int shown);

// Asks about the icon in the current container. If that is `filled`, the container that the list has filled last, an
// icon that came from the list and was not changed since gives way without a question.
[[nodiscard]] bool mayIconBeReplaced(const FilesContext& context, int filled);

// GET_FROM_ICONLIST_TO_PANEL, for one entry.
class ListPick {
 public:
  // All must outlive it.
  ListPick(const FilesContext& context, Files& files, const SourceRow& row, IconSource& source, int entry);

  // Shows the reason why not.
  bool isTakable(bool isValid);
  // The right button shows the icon of a file at once, as opening it does.
  PickResult run(ListButton button);

 private:
  PickResult openFile(ListButton button);
  PickResult extract();
  PickResult storeExtractedIcon(const IconImage& icon);
  PickResult refuse(const std::string& reason);

  FilesContext context_;
  Files& files_;
  const SourceRow& row_;
  IconSource& source_;
  const int entry_;
  const std::string file_;
};

}  // namespace gp

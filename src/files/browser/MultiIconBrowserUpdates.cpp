// Commands of the browser that change its own file: removing an entry, and reordering all of them.
#include "document/Hourglass.h"
#include "files/browser/MultiIconBrowser.h"
#include "files/browser/MultiIconExchange.h"
#include "files/format/IconUpdates.h"
#include "files/format/Rereading.h"
#include "files/saving/MultiIconSaving.h"
#include "files/saving/MultiIconTexts.h"
#include "platform/ports/MessageBoxes.h"

#include <algorithm>

namespace gp {
namespace {

constexpr const char* kNoDeletion =
    "As currently there is at least an icon from this file loaded in Icons Panel, \nhence no deletion is allowed.";
constexpr const char* kRemoveQuestion = "Permanently remove the selected icon from the multi-icon file.\n";
constexpr const char* kRemoveAssurance = "\n\nSure to remove this icon permanently?\n\n";

constexpr const char* kNoReposition =
    "As currently there is at least an icon from this file loaded in Icons Panel, \nhence no reposition is allowed.";
constexpr const char* kNothingSelected = "No title selected yet";
constexpr const char* kRepositionQuestion = "\nProceed to save re-positioned sequence of icons in file?\n";
constexpr const char* kFileNotOpened = "Error-1 encountered in writing file.";
constexpr const char* kFileNotWritten = "Error-3 encountered in writing file.";
constexpr const char* kRepositioned = "Repositioned icons sequence in ";

}  // namespace

bool MultiIconBrowser::isUnchangeable(const char* onlyIcon, const char* inPanel) {
  if (arrays_.count() != 1 && !exchange_.gFileInPanel) return false;
  context_.boxes.tell(arrays_.count() == 1 ? onlyIcon : inPanel);
  return true;
}

// Removing.

void MultiIconBrowser::cmdRemove() {
  if (!isIcon(selected_) || isUnchangeable(kRemoveLastIcon, kNoDeletion)) return;
  if (!context_.boxes.ask(kRemoveQuestion + file() + kRemoveAssurance)) return;
  const auto lock = lockToUpdate(context_, file());
  if (!lock || !rereadForUpdate()) return;
  const int item = selected_;
  if (!removeEntry(readItem(iconText(item)).index)) context_.boxes.tell(kRemoveNotWritten);
  relistAt(item);
}

// False, after a message, when the file is not as it was listed. Then it is listed as it is now; if it cannot be read,
// the form keeps its images, of which it may hold the last copy.
bool MultiIconBrowser::rereadForUpdate() {
  IconArrays now;
  const bool isRead = readIconArrays(file(), ReservedField::Any, now) == ArraysDefect::None;
  if (isRead && isAsRead(now, arrays_.file.span())) {
    arrays_.file.bytes.takeVersion(now.file.bytes);
    return true;
  }
  context_.boxes.tell(fileChangedText(file()));
  if (!isRead) return false;
  repositioning_ = false;
  openFile();
  return false;
}

bool MultiIconBrowser::removeEntry(int index) {
  const Hourglass hourglass(context_);
  removeImage(arrays_, index);
  return writeBack(arrays_, file()) == WriteDefect::None;
}

// Lists the file again, and selects the item at the same place, or the last one.
void MultiIconBrowser::relistAt(int item) {
  if (!readMultiIconFile()) return unload();
  fillIconLists();
  selectAnew(std::min(item, static_cast<int>(icons_.size()) - 1));
}

// Repositioning.

void MultiIconBrowser::cmdReposition() {
  if (arrays_.count() == 0 || isUnchangeable(kRepositionSingleIcon, kNoReposition)) return;
  std::vector<std::string> items;
  for (const ListedEntry& entry : entries_) items.push_back(itemText(static_cast<int>(items.size()) + 1, entry, true));
  // The last item has the highest Ref. The sequence would be written by what the Refs read as.
  const ItemReading last = readItem(items.back());
  if (!last.isOfItsEntry()) return tellNotShown(std::to_string(last.ref));
  reposition_.open(std::move(items));
  repositioning_ = true;
  otherSizesShown_ = false;
  // The user did not choose the first item, so it stays selected even if it cannot be shown.
  if (!preview(reposition_.lisReposition().front(), repositionPreview_)) repositionPreview_.clear();
  changed();
}

void MultiIconBrowser::clickRepositionIcon(int item) {
  const auto& items = reposition_.lisReposition();
  if (mBusy_ || !repositioning_ || item < 0 || static_cast<std::size_t>(item) >= items.size()) return;
  if (previewOrTell(items[static_cast<std::size_t>(item)], repositionPreview_)) reposition_.select(item);
  changed();
}

void MultiIconBrowser::cmdShiftUp() {
  if (reposition_.selected() < 0) return context_.boxes.tell(kNothingSelected);
  reposition_.shiftUp();
  changed();
}

void MultiIconBrowser::cmdShiftDown() {
  if (reposition_.selected() < 0) return context_.boxes.tell(kNothingSelected);
  reposition_.shiftDown();
  changed();
}

void MultiIconBrowser::cmdRepositionAbort() {
  repositioning_ = false;
  otherSizesShown_ = !otherIcons_.empty();
  changed();
}

void MultiIconBrowser::cmdRepositionProceed() {
  const auto& items = reposition_.lisReposition();
  if (!repositioning_ || items.empty()) return;
  if (reposition_.isUnchanged()) return context_.boxes.tell(kRepositionNoChange);
  if (!context_.boxes.ask(file() + kRepositionQuestion)) return;
  const auto lock = lockToUpdate(context_, file());
  if (!lock || !rereadForUpdate()) return;
  writeRepositioned();
  repositioning_ = false;
  openFile();
}

void MultiIconBrowser::writeRepositioned() {
  WriteDefect defect;
  {
    const Hourglass hourglass(context_);
    reorderImages(arrays_, reposition_.order());
    defect = writeBack(arrays_, file());
  }
  if (defect == WriteDefect::NotOpened) return context_.boxes.tell(kFileNotOpened);
  const bool written = defect == WriteDefect::None;
  if (!written) context_.boxes.tell(kFileNotWritten);
  context_.boxes.tell((written ? kRepositioned : kRepositionNotWritten) + file() + "\n");
}

}  // namespace gp

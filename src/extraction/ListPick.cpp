#include "extraction/ListPick.h"

#include "document/Announcements.h"
#include "document/Containers.h"
#include "document/CurrentIconGuard.h"
#include "document/Display.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "extraction/ListGrid.h"
#include "extraction/format/ExtractedIcon.h"
#include "files/Files.h"
#include "platform/files/Files.h"
#include "platform/ports/MessageBoxes.h"

#include <algorithm>
#include <exception>

namespace gp {
namespace {

constexpr const char* kInvalid = "This one is an invalid icon file or of a size not 16x16, 24x24, 32x32 or 48x48.";
constexpr const char* kMissing = " file missing.\n";
constexpr const char* kNotFound = "File not found.";
constexpr const char* kOtherSize = "Width and height of this image not 16x16, 24x24, 32x32 or 48x48";
constexpr const char* kProcedure = "GET_FROM_ICONLIST_TO_PANEL";

}  // namespace

int movedMark(ListMove move, int entry, int first, int shown) {
  const int last = shown - 1;
  const auto within = [&](int target) { return target >= 0 && target <= last ? target : entry; };
  if (move == ListMove::Home) return 0;
  if (move == ListMove::End) return last;
  if (entry < 0) return std::min(first, last);
  switch (move) {
    case ListMove::Left:
      return within(entry - 1);
    case ListMove::Right:
      return within(entry + 1);
    case ListMove::Up:
      return within(entry - kListColumns);
    case ListMove::Down:
      return within(entry + kListColumns);
    case ListMove::PageUp:
      return std::max(entry - kCellsOnPage, 0);
    default:
      return std::min(entry + kCellsOnPage, last);
  }
}

bool mayIconBeReplaced(const FilesContext& context, int filled) {
  context.document.iconsPanel.CommitPendingPaint();
  const IconContainerRec& record = context.state.current();
  const bool isLastPick = context.state.mCurContainer == filled && isUnsavedExtraction(record);
  if (isLastPick && !record.modified) return true;
  return mayCurrentIconGo(context);
}

ListPick::ListPick(const FilesContext& context, Files& files, const SourceRow& row, IconSource& source, int entry)
    : context_(context), files_(files), row_(row), source_(source), entry_(entry), file_(source.fileOf(entry)) {}

bool ListPick::isTakable(bool isValid) {
  if (isValid && FileExists(file_)) return true;
  if (isValid)
    context_.boxes.tell(file_ + kMissing, BoxIcon::Exclamation);
  else
    context_.boxes.tell(kInvalid);
  return false;
}

PickResult ListPick::run(ListButton button) try {
  return row_.source == ListSource::Folder ? openFile(button) : extract();
} catch (const std::exception& error) {
  context_.editor.ShowRunTimeError(kProcedure, error.what());
  return PickResult::NotTaken;
}

// Opening a file reports by itself what is wrong with it.
PickResult ListPick::openFile(ListButton button) {
  if (!FileExists(file_)) return refuse(kNotFound);
  bool ok = false;
  if (button == ListButton::Right)
    files_.iconFiles.doOpenIconFile(file_, true, ok);
  else
    files_.iconFiles.loadIconFileToContainer(file_, ok);
  return ok ? PickResult::Taken : PickResult::NotTaken;
}

PickResult ListPick::extract() {
  const FetchedIcon fetched = source_.fetch(entry_);
  if (fetched.icon) return storeExtractedIcon(*fetched.icon);
  const PickResult failed = source_.marksFailures() ? PickResult::Invalid : PickResult::NotTaken;
  refuse(fetched.failure);  // events during the message can close the list
  return failed;
}

PickResult ListPick::storeExtractedIcon(const IconImage& icon) {
  if (!isIconSize(icon.width(), icon.height())) return refuse(kOtherSize);
  context_.document.iconsPanel.storeForList(icon, recordOfExtracted(icon, source_.nameOf(entry_)));
  context_.display.announce(news::container(context_.state.mCurContainer, nameOf(context_.state.current())));
  return PickResult::Taken;
}

PickResult ListPick::refuse(const std::string& reason) {
  context_.boxes.tell(file_ + "\n" + reason, BoxIcon::Exclamation);
  return PickResult::NotTaken;
}

}  // namespace gp

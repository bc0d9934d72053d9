#include "files/saving/MultiIconSaving.h"

#include "document/Document.h"
#include "document/Editor.h"
#include "document/Hourglass.h"
#include "drawing/Drawing.h"
#include "files/saving/MultiIconTexts.h"
#include "platform/ports/MessageBoxes.h"

namespace gp {

namespace {

constexpr std::chrono::seconds kLongestWait{2};

}  // namespace

void finishCurrentIcon(FilesContext& context) {
  context.editor.closePanels();
  context.document.iconsPanel.EndToolAction();
  context.drawing.regions.clearRegion();
  context.document.editingArea.ComposeCurrentIcon();
  context.document.editingArea.UpdatePanelFromCurrent();
}

std::optional<FileLock> lockToUpdate(FilesContext& context, const std::string& path) {
  auto lock = FileLock::take(path, kLongestWait);
  if (!lock) tellFailure(context, fileInUseText(path));
  return lock;
}

WriteDefect writeUpdated(FilesContext& context, IconArrays& arrays, const std::string& source,
                         const std::string& target) {
  const Hourglass hourglass(context);
  const bool isSource = target == source || isSameFile(target, source);
  return isSource ? writeBack(arrays, target) : writeWholeFile(arrays, target);
}

void tellFailure(FilesContext& context, const std::string& text) { context.boxes.tell(text, BoxIcon::Exclamation); }

}  // namespace gp

#include "files/saving/MultiIconSaving.h"

#include "document/Document.h"
#include "document/Editor.h"
#include "document/Hourglass.h"
#include "drawing/Drawing.h"
#include "platform/ports/MessageBoxes.h"

namespace gp {
namespace {

constexpr std::size_t kLargestHeld = std::size_t{32} << 20;

// The content of a file that is about to be overwritten; empty if it is too large.
FileBytes contentToPutBack(const std::string& path) {
  auto bytes = readFileStart(path, kLargestHeld + 1);
  return bytes && bytes->span().size() <= kLargestHeld ? std::move(*bytes) : FileBytes();
}

}  // namespace

void finishCurrentIcon(FilesContext& context) {
  context.editor.closePanels();
  context.document.iconsPanel.EndToolAction();
  context.drawing.regions.clearRegion();
  context.document.editingArea.ComposeCurrentIcon();
  context.document.editingArea.UpdatePanelFromCurrent();
}

bool writeUpdated(FilesContext& context, IconArrays& arrays, const std::string& source, const std::string& target) {
  const Hourglass hourglass(context);
  const bool isSource = target == source || isSameFile(target, source);
  const FileBytes other = isSource ? FileBytes() : contentToPutBack(target);
  return writeWholeFile(arrays, target, isSource ? arrays.file.span() : other.span());
}

void tellFailure(FilesContext& context, const std::string& text) { context.boxes.tell(text, BoxIcon::Exclamation); }

}  // namespace gp

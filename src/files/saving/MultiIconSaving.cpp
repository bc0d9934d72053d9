#include "files/saving/MultiIconSaving.h"

#include "document/Document.h"
#include "document/Editor.h"
#include "drawing/Drawing.h"
#include "platform/ports/MessageBoxes.h"

namespace gp {
namespace {

constexpr std::size_t kLargestHeld = std::size_t{32} << 20;

}  // namespace

void finishCurrentIcon(FilesContext& context) {
  context.editor.closePanels();
  context.document.iconsPanel.EndToolAction();
  context.drawing.regions.clearRegion();
  context.document.editingArea.ComposeCurrentIcon();
  context.document.editingArea.UpdatePanelFromCurrent();
}

FileBytes contentToPutBack(const std::string& path) {
  auto bytes = readFileStart(path, kLargestHeld + 1);
  return bytes && bytes->span().size() <= kLargestHeld ? std::move(*bytes) : FileBytes();
}

void tellFailure(FilesContext& context, const std::string& text) { context.boxes.tell(text, BoxIcon::Exclamation); }

}  // namespace gp

#include "files/saving/MultiIconSaving.h"

#include "document/Document.h"
#include "document/Editor.h"
#include "drawing/Drawing.h"
#include "platform/ports/MessageBoxes.h"

namespace gp {
void finishCurrentIcon(FilesContext& context) {
  context.editor.closePanels();
  context.document.iconsPanel.EndToolAction();
  context.drawing.regions.clearRegion();
  context.document.editingArea.ComposeCurrentIcon();
  context.document.editingArea.UpdatePanelFromCurrent();
}

void tellFailure(FilesContext& context, const std::string& text) { context.boxes.tell(text, BoxIcon::Exclamation); }

}  // namespace gp

#include "files/MultiIconSaving.h"

namespace gp {
namespace {

constexpr std::size_t kLargestHeld = std::size_t{32} << 20;

}  // namespace

void finishCurrentIcon(FilesContext& context) {
  context.editor.closePanels();
  context.editor.EndToolAction();
  context.editor.clearRegion();
  context.editor.ComposeCurrentIcon();
  context.editor.UpdatePanelFromCurrent();
}

FileBytes contentToPutBack(const std::string& path) {
  auto bytes = readFileStart(path, kLargestHeld + 1);
  return bytes && bytes->span().size() <= kLargestHeld ? std::move(*bytes) : FileBytes();
}

void tellFailure(FilesContext& context, const std::string& text) { context.boxes.tell(text, BoxIcon::Exclamation); }

}  // namespace gp

#include "document/EditingAreaOptions.h"

#include "document/Display.h"
#include "document/EditState.h"
#include "document/EditingArea.h"
#include "document/Editor.h"
#include "document/IconsPanel.h"

namespace gp {

EditingAreaOptions::EditingAreaOptions(const Context& context, EditingArea& editingArea, IconsPanel& iconsPanel)
    : context_(context), state_(context.state), editingArea_(editingArea), iconsPanel_(iconsPanel) {}

void EditingAreaOptions::SetGrid(int index) {
  iconsPanel_.CommitPendingPaint();
  state_.options.grid = index;
  state_.gGridColor = gridColorOf(index);
  editingArea_.BuildGrid();
  if (state_.current().present) editingArea_.MagnifyIcon();
  context_.display.changed(DisplayPart::Commands);
}

void EditingAreaOptions::ApplyEnlargedOption() {
  if (state_.current().used && state_.mPendingPaint) {
    iconsPanel_.CommitPendingPaint();
  } else if (context_.editor.selectedTool() == kRegion) {
    context_.editor.clearAllTools();
    context_.editor.clearRegion();
  }
  editingArea_.setZoom(0);
  chooseMagnify();
  showAtMagnification();
}

void EditingAreaOptions::zoom(ZoomStep step) {
  if (!state_.current().present && step != ZoomStep::ToOption) return;
  const int before = state_.gMagnification;
  editingArea_.setZoom(step == ZoomStep::ToOption ? 0 : zoomed(before, step));
  chooseMagnify();
  if (state_.gMagnification != before) showAtMagnification();
}

void EditingAreaOptions::chooseMagnify() {
  if (state_.current().present)
    editingArea_.ChooseMagnify(state_.current().size);
  else
    editingArea_.chooseMagnifyOfEmpty();
}

void EditingAreaOptions::showAtMagnification() {
  if (!state_.current().present) {
    editingArea_.showEmpty();
    return;
  }
  editingArea_.BuildGrid();
  editingArea_.MagnifyIcon();
}

void EditingAreaOptions::setRoom(int width, int height) {
  if (state_.mInLoad) return;
  const int before = state_.gMagnification;
  state_.screen.dispContainerWidth = width;
  state_.screen.dispContainerHeight = height;
  chooseMagnify();
  if (state_.gMagnification != before) ApplyEnlargedOption();
}

}  // namespace gp

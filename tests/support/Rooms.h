// The rooms up to drawing, real and connected as in the program, over scripted ports. Calls to rooms further right are
// recorded by the FakeEditor; panels open and close as in the program.
#pragma once

#include "colour/Colour.h"
#include "document/Context.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/PanelNumbers.h"
#include "drawing/Drawing.h"
#include "platform/dialogs/clsGPDialog.h"
#include "support/FakeClipboard.h"
#include "support/FakeEditor.h"
#include "support/ScriptedPorts.h"

#include <utility>

namespace gp::test {

// Forwards calls for colour and drawing to the rooms, once they exist.
class RoomsEditor : public FakeEditor {
 public:
  EditState* state = nullptr;
  Colour* colour = nullptr;
  Drawing* drawing = nullptr;

  void chooseColorChart() override { FakeEditor::chooseColorChart(), colour->selection.chooseColorChart(); }
  void showChart16() override { FakeEditor::showChart16(), colour->selection.imgGet16ColorChart(); }
  void clearAllTools() override { FakeEditor::clearAllTools(), drawing->tools.clearAllTools(); }
  Tool selectedTool() const override { return drawing->tools.selectedTool(); }
  void clearRegion() override { FakeEditor::clearRegion(), drawing->regions.clearRegion(); }
  void redrawRegion() override { FakeEditor::redrawRegion(), drawing->regions.redrawRegion(); }
  void recordUndo() override { FakeEditor::recordUndo(), drawing->history.recordUndo(); }
  void clearUndoHistory() override { FakeEditor::clearUndoHistory(), drawing->history.clearUndoHistory(); }
  void showPanel(int panel) override {
    FakeEditor::showPanel(panel);
    panel == kColorPanel ? drawing->tools.clearAllTools() : drawing->tools.imgClearAllTools();
    state->screen.mActivePanel = panel;
  }
  void closePanels() override {
    FakeEditor::closePanels();
    if (state->screen.mActivePanel != kColorPanel) showPanel(kColorPanel);
  }
};

struct Rooms {
  EditState state;
  RoomsEditor editor;
  RecordingDisplay display;
  ScriptedBoxes boxes;
  ScriptedPump pump;
  ScriptedDialogs dialogs;
  ScriptedPictures pictures;
  FakeClipboard clipboard;
  clsGPDialog dialog{dialogs};
  const Context context{state, editor, display, boxes, pump};
  Document document{context};
  Colour colour{context, dialog, pictures, "/"};
  Drawing drawing{context, document, colour.selection, clipboard};

  Rooms() {
    editor.state = &state;
    editor.colour = &colour;
    editor.drawing = &drawing;
  }
  Rooms(const Rooms&) = delete;
  Rooms& operator=(const Rooms&) = delete;
};

}  // namespace gp::test

// The rooms up to drawing, connected as in the program, without a screen or user: the benchmarks of drawing tools,
// panels and forms work on them.
#pragma once

#include "colour/ColorSelection.h"
#include "document/Containers.h"
#include "document/Display.h"
#include "document/Document.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/IconImage.h"
#include "drawing/Drawing.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/ports/Clipboard.h"
#include "platform/ports/FileDialogs.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"

#include <string>

namespace gp::bench {

class NoDisplay : public Display {
 public:
  Display* form = nullptr;  // of a form that is measured

  void changed(DisplayPart part) override {
    if (form) form->changed(part);
  }
  void repaintEditingArea(int, int, int, int) override {}
  void showPopUpMenu() override {}
  void nudgeMousePointer() override {}
  void focusColorValue() override {}
  void announce(const std::string&) override {}
};

class NoPump : public MessagePump {
 public:
  void pump() override {}
  void wait(int) override {}
};

// Boxes are neither shown nor answered.
class SilentBoxes : public MessageBoxes {
 public:
  BoxAnswer show(const std::string&, BoxButtons, BoxIcon, BoxAnswer suggested) override { return suggested; }
};

class NoDialogs : public FileDialogs {
 public:
  bool openFile(const FileDialogRequest&, std::string&, int&) override { return false; }
  bool saveFile(const FileDialogRequest&, std::string&, int&) override { return false; }
  bool chooseColor(Color&) override { return false; }
  bool choosePrinter(PrinterRequest&) override { return false; }
  std::string chooseFolder(const std::string&, const std::string&) override { return {}; }
};

class NoClipboard : public Clipboard {
 public:
  bool hasImage() override { return false; }
  bool getImage(ClipboardImage&, int) override { return false; }
  bool setImage(const Surface&, const Surface&) override { return false; }
  void clear() override {}
};

// Calls for colour and drawing reach the rooms; the others do nothing.
class RoomsEditor : public Editor {
 public:
  EditState* state = nullptr;
  ColorSelection* colors = nullptr;
  Drawing* drawing = nullptr;

  void chooseColorChart() override { colors->chooseColorChart(); }
  void showChart16() override { colors->imgGet16ColorChart(); }
  void clearAllTools() override { drawing->tools.clearAllTools(); }
  Tool selectedTool() const override { return drawing->tools.selectedTool(); }
  void clearRegion() override { drawing->regions.clearRegion(); }
  void redrawRegion() override { drawing->regions.redrawRegion(); }
  void recordUndo() override { drawing->history.recordUndo(); }
  void clearUndoHistory() override { drawing->history.clearUndoHistory(); }
  void doOpenIconFileQuietly(const std::string&, bool&) override {}
  void offerIconsOfFile(const std::string&, int) override {}
  void AskSaveCurrent(const std::string&, bool&) override {}
  void setHotspotByClick(int, int) override {}
  void endAniSession() override {}
  void aniPaneHidden() override {}
  void UpdateCommands() override {}
  void showPanel(int panel) override { state->screen.mActivePanel = panel; }
  void closePanels() override { state->screen.mActivePanel = 0; }
  void AddHistory(const std::string&) override {}
  void AddAniHistory(const std::string&) override {}
  void ShowRunTimeError(const std::string&, const std::string&) override {}
};

struct BenchRooms {
  EditState state;
  RoomsEditor editor;
  NoDisplay display;
  NoPump pump;
  SilentBoxes boxes;
  NoDialogs dialogs;
  NoClipboard clipboard;
  clsGPDialog dialog{dialogs};
  const Context context{state, editor, display, boxes, pump};
  Document document{context};
  ColorSelection colors{context, dialog};
  Drawing drawing{context, document, colors, clipboard};

  BenchRooms() {
    editor.state = &state;
    editor.colors = &colors;
    editor.drawing = &drawing;
  }
  BenchRooms(const BenchRooms&) = delete;
  BenchRooms& operator=(const BenchRooms&) = delete;
};

inline constexpr int kIconSize = 48;
inline constexpr int kRoom = 600;  // pixels of picDisp on a large screen

// An icon of 48 pixels of many colours, every fifth of which is transparent.
inline IconImage colourfulIcon() {
  IconImage icon = transparentIcon(kIconSize);
  for (int y = 0; y < kIconSize; ++y)
    for (int x = 0; x < kIconSize; ++x) {
      if ((x + y) % 5 == 0) continue;
      icon.image.SetPixelV(x, y, rgb(x * 5, y * 5, 99));
      icon.mask.SetPixelV(x, y, kBlack);
    }
  return icon;
}

// A transparent icon of 48 pixels on an Editing Area with grid lines, and its history.
struct IconScene : BenchRooms {
  IconScene() {
    state.screen.dispContainerWidth = state.screen.dispContainerHeight = kRoom;
    document.arrival.arrive(transparentIcon(kIconSize), NewRecord());
  }
};

}  // namespace gp::bench

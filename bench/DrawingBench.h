// A transparent icon on an Editing Area with lines as grid, and its history: what a drawing tool works on. The screen
// is left out.
#pragma once

#include "../tests/support/FakeEditor.h"
#include "document/EditingArea.h"
#include "drawing/UndoHistory.h"

#include <benchmark/benchmark.h>

namespace gp::bench {

inline constexpr int kIconSize = 48;
inline constexpr int kRoom = 600;  // pixels that picDisp finds on a large screen

class NoDisplay : public Display {
 public:
  void changed(DisplayPart) override {}
  void repaintEditingArea(int, int, int, int) override {}
  void showPopUpMenu() override {}
  void nudgeMousePointer() override {}
  void focusColorValue() override {}
};

class NoPump : public MessagePump {
 public:
  void pump() override {}
  void wait(int) override {}
};

class DrawingEditor : public test::FakeEditor {
 public:
  EditingArea* area = nullptr;
  UndoHistory* history = nullptr;

  void ComposeCurrentIcon() override { area->ComposeCurrentIcon(); }
  void MagnifyIcon() override { area->MagnifyIcon(); }
  void recordUndo() override { history->recordUndo(); }
  void UpdateCommands() override {}
};

struct Drawing {
  EditState state;
  DrawingEditor editor;
  NoDisplay display;
  NoPump pump;
  EditingArea area{state, editor, display, pump};
  UndoHistory history{state, editor, pump};

  Drawing() {
    editor.area = &area;
    editor.history = &history;
    state.screen.dispContainerWidth = state.screen.dispContainerHeight = kRoom;
    state.current().used = state.current().present = true;
    state.current().size = kIconSize;
    area.SizeEditSurfaces(kIconSize);
    state.picImage.fill(kBlack);
    state.picMask.fill(kWhite);
    area.ComposeCurrentIcon();
    area.ShowCurrentIcon();
    history.recordUndo();
  }
};

}  // namespace gp::bench

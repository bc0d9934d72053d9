// A small icon on a real Editing Area with a real history, and pictures of it as rows of characters, for tests of tools
// that draw. The mouse is handed to the tool under test the way the handlers of picDisp do.
#pragma once

#include "document/Containers.h"
#include "document/EditingArea.h"
#include "document/IconsPanel.h"
#include "drawing/DrawState.h"
#include "drawing/DrawingTool.h"
#include "drawing/ToolTable.h"
#include "drawing/UndoHistory.h"
#include "support/FakeEditor.h"
#include "support/ScriptedPorts.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace gp::test {

using Rows = std::vector<std::string>;

// The look of one pixel: '.' transparent, one of the letters opaque, '^' inverting.
struct PixelLetter {
  char letter;
  Color image;
  Color mask;
};
inline constexpr Color kGreen = 0x00FF00;
inline constexpr Color kRed = 0x0000FF;
inline constexpr Color kYellow = 0x00FFFF;
inline constexpr PixelLetter kPixelLetters[] = {{'.', kBlack, kWhite}, {'g', kGreen, kBlack},  {'r', kRed, kBlack},
                                                {'b', kBlack, kBlack}, {'y', kYellow, kBlack}, {'s', kGround, kBlack},
                                                {'w', kWhite, kBlack}, {'^', kWhite, kWhite}};

// A FakeEditor whose Editing Area, history and containers are real.
class DrawingEditor : public FakeEditor {
 public:
  EditState* state = nullptr;
  EditingArea* area = nullptr;
  UndoHistory* history = nullptr;
  IconsPanel* panel = nullptr;

  void ComposeCurrentIcon() override { FakeEditor::ComposeCurrentIcon(), area->ComposeCurrentIcon(); }
  void MagnifyIcon() override { FakeEditor::MagnifyIcon(), area->MagnifyIcon(); }
  void ShowCurrentIcon() override { FakeEditor::ShowCurrentIcon(), area->ShowCurrentIcon(); }
  void UpdatePanelFromCurrent() override { FakeEditor::UpdatePanelFromCurrent(), area->UpdatePanelFromCurrent(); }
  void SwitchContainer(int container) override {
    FakeEditor::SwitchContainer(container), panel->SwitchContainer(container);
  }
  void ClearContainer() override { FakeEditor::ClearContainer(), gp::ClearContainer(*state); }
  void clearAllTools() override { FakeEditor::clearAllTools(), tool = kNoTool; }
  void clearRegion() override { FakeEditor::clearRegion(), state->mRegionExists = false; }
  void recordUndo() override { FakeEditor::recordUndo(), history->recordUndo(); }
  void clearUndoHistory() override { FakeEditor::clearUndoHistory(), history->clearUndoHistory(); }
  void showPanel(int number) override {
    FakeEditor::showPanel(number), state->screen.mActivePanel = number;
    clearAllTools();
  }
};

class DrawingFixture : public testing::Test {
 protected:
  EditState state;
  DrawingEditor editor;
  RecordingDisplay display;
  ScriptedPump pump;
  EditingArea area{state, editor, display, pump};
  UndoHistory history{state, editor, pump};
  IconsPanel panel{state, editor, area, display, pump};
  DrawState drawState;
  DrawingTool* toolUnderTest = nullptr;

  DrawingFixture() {
    editor.state = &state;
    editor.area = &area;
    editor.history = &history;
    editor.panel = &panel;
    state.gGridColor = kNoGrid;
    state.mCurrentColor = kGreen;
  }

  // Puts an icon into a container: its top left corner is given, the rest is transparent.
  void putIcon(int container, int size, const Rows& rows = {}) {
    state.mCurContainer = container;
    state.current().used = state.current().present = true;
    state.current().size = static_cast<std::int16_t>(size);
    area.SizeEditSurfaces(size);
    area.SizePanelSurfaces(size);
    state.picImage.fill(kBlack);
    state.picMask.fill(kWhite);
    for (int y = 0; y < static_cast<int>(rows.size()); ++y)
      for (int x = 0; x < static_cast<int>(rows[y].size()); ++x) putPixel(x, y, rows[y][x]);
    area.ComposeCurrentIcon();
    area.UpdatePanelFromCurrent();
    area.ShowCurrentIcon();
    history.clearUndoHistory();
    history.recordUndo();
    editor.calls.clear();
  }
  void putPixel(int x, int y, char letter) {
    for (const PixelLetter& look : kPixelLetters)
      if (look.letter == letter) {
        state.picImage.SetPixelV(x, y, look.image);
        state.picMask.SetPixelV(x, y, look.mask);
      }
  }
  char letterAt(int x, int y) const {
    for (const PixelLetter& look : kPixelLetters)
      if (state.picImage.GetPixel(x, y) == look.image && state.picMask.GetPixel(x, y) == look.mask) return look.letter;
    return '?';
  }
  // The icon's top left corner in letters; what reaches beyond it is added, so that nothing is overlooked.
  Rows picture(std::size_t rows, std::size_t columns) const {
    Rows result(static_cast<std::size_t>(state.picImage.height()));
    for (std::size_t y = 0; y < result.size(); ++y) {
      for (int x = 0; x < state.picImage.width(); ++x) result[y] += letterAt(x, static_cast<int>(y));
      result[y].erase(std::max(result[y].find_last_not_of('.') + 1, columns));
    }
    while (result.size() > rows && result.back().find_first_not_of('.') == std::string::npos) result.pop_back();
    return result;
  }
  void expectPicture(const Rows& rows) const { EXPECT_EQ(picture(rows.size(), rows.front().size()), rows); }

  ToolMouse mouseAt(int x, int y, int modifiers = 0) const {
    const auto m = static_cast<float>(state.gMagnification);
    return {x, y, (static_cast<float>(x) + 0.5F) * m, (static_cast<float>(y) + 0.5F) * m, modifiers};
  }
  bool isToolActive() const { return state.current().present && editor.tool != kNoTool; }
  void press(int x, int y, int modifiers = 0) {
    if (isToolActive()) toolUnderTest->press(mouseAt(x, y, modifiers));
  }
  void move(int x, int y, int modifiers = 0) {
    if (isToolActive()) toolUnderTest->move(mouseAt(x, y, modifiers));
  }
  void release(int x, int y, int modifiers = 0) {
    drawState.mPainting = false;
    if (!isToolActive()) return;
    state.current().modified = true;
    toolUnderTest->release(mouseAt(x, y, modifiers));
  }
  // What every step must leave behind: the history's last entry is what is on the icon, and PicIcon shows it.
  void expectAgreement() {
    if (!state.current().present) return;
    ASSERT_GE(history.undoCount(), 1);
    const Surface image = state.picImage;
    const Surface mask = state.picMask;
    const Surface shown = state.PicIcon;
    area.ComposeCurrentIcon();
    EXPECT_TRUE(std::ranges::equal(shown.pixels(), state.PicIcon.pixels())) << "PicIcon is out of date";
    // A step on top and back again brings up the entry that was the last one.
    history.recordUndo();
    ASSERT_TRUE(history.canUndo());
    state.picImage.fill(kRed);
    history.restoreUndo(UndoMode::OneStep);
    EXPECT_TRUE(std::ranges::equal(image.pixels(), state.picImage.pixels())) << "the history has another image";
    EXPECT_TRUE(std::ranges::equal(mask.pixels(), state.picMask.pixels())) << "the history has another Mask";
  }
};

}  // namespace gp::test

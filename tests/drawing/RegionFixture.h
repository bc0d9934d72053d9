// An icon, its Editing Area and everything that works on regions, over ports that follow a script. The mouse handlers
// take their common steps as the tool box does.
#pragma once

#include "document/Containers.h"
#include "document/EditingArea.h"
#include "document/IconsPanel.h"
#include "drawing/ClipboardCommands.h"
#include "drawing/ContainerCopies.h"
#include "drawing/RegionTool.h"
#include "drawing/Regions.h"
#include "drawing/RotatePanel.h"
#include "drawing/ShiftTool.h"
#include "drawing/ToolTable.h"
#include "drawing/Tools.h"
#include "drawing/Transforms.h"
#include "drawing/UndoHistory.h"
#include "support/FakeClipboard.h"
#include "support/FakeEditor.h"
#include "support/ScriptedPorts.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace gp::test {

using Rows = std::vector<std::string>;

// Editor whose display, containers, regions and history are the program's own.
class RegionEditor : public FakeEditor {
 public:
  EditState* state = nullptr;
  EditingArea* area = nullptr;
  IconsPanel* panel = nullptr;
  Regions* regions = nullptr;
  UndoHistory* undo = nullptr;
  ShiftTool* shift = nullptr;

  void ClearContainer() override { gp::ClearContainer(*state); }
  void CommitPendingPaint() override { panel->CommitPendingPaint(); }
  void EndToolAction() override { panel->EndToolAction(); }
  void SwitchContainer(int container) override { panel->SwitchContainer(container); }
  void SizeEditSurfaces(int size) override { area->SizeEditSurfaces(size); }
  void SizePanelSurfaces(int size) override { area->SizePanelSurfaces(size); }
  void ComposeCurrentIcon() override { area->ComposeCurrentIcon(); }
  void UpdatePanelFromCurrent() override { area->UpdatePanelFromCurrent(); }
  void ShowCurrentIcon() override { area->ShowCurrentIcon(); }
  void RefreshStatusBar() override { area->RefreshStatusBar(); }
  void MagnifyIcon() override {
    FakeEditor::MagnifyIcon();
    area->MagnifyIcon();
    if (state->mRegionActive) regions->redrawRegion();
  }
  void clearAllTools() override {
    tool = kNoTool;
    state->screen.lblDispXY[2].clear();
  }
  void selectTool(int index) override {
    CommitPendingPaint();
    const bool wasSelected = tool == index;
    clearAllTools();
    tool = wasSelected ? kNoTool : index;
    clearRegion();
    if (tool == kShift) shift->turnOn();
  }
  void clearRegion() override { regions->clearRegion(); }
  void recordUndo() override {
    FakeEditor::recordUndo();
    undo->recordUndo();
  }
  void clearUndoHistory() override {
    FakeEditor::clearUndoHistory();
    undo->clearUndoHistory();
  }
  void showPanel(int index) override {
    FakeEditor::showPanel(index);
    state->screen.mActivePanel = index;
    clearAllTools();
  }
  void closePanels() override {
    FakeEditor::closePanels();
    if (state->screen.mActivePanel != 0) showPanel(0);
  }
};

inline constexpr Color kColorA = 0x0000F0;
inline constexpr Color kColorB = 0x00F000;
inline constexpr Color kColorC = 0xF00000;
inline constexpr Color kInverting = 0x123456;

class RegionFixture : public testing::Test {
 protected:
  EditState state;
  RegionEditor editor;
  RecordingDisplay display;
  ScriptedBoxes boxes;
  ScriptedPump pump;
  FakeClipboard clipboard;
  DrawState draw;
  EditingArea area{state, editor, display, pump};
  IconsPanel panel{state, editor, area, display, pump};
  UndoHistory undo{state, editor, pump};
  Regions regions{state, draw, editor, display};
  RegionTool tool{state, draw, editor, regions, pump};
  ShiftTool shift{state, editor, boxes};
  RotatePanel rotatePanel{state, editor, display, regions};
  Transforms transforms{state, editor, display, boxes, regions, rotatePanel};
  ClipboardCommands commands{state, editor, display, boxes, clipboard, regions};
  ContainerCopies copies{state, editor, display, boxes, regions};

  RegionFixture() {
    editor.state = &state;
    editor.area = &area;
    editor.panel = &panel;
    editor.regions = &regions;
    editor.undo = &undo;
    editor.shift = &shift;
    state.options.updateOnlyEditingArea = false;
  }

  // An icon on the Editing Area and in the current container, a baseline of Undo, Region selected. '.' is transparent,
  // 'k' opaque black, '!' inverts what is behind it; what the rows leave out is transparent.
  void makeIcon(int size, const Rows& rows = {}) {
    regions.clearRegion();
    state.current().used = true;
    state.current().size = static_cast<std::int16_t>(size);
    area.SizeEditSurfaces(size);
    area.SizePanelSurfaces(size);
    setPixels(rows);
    area.UpdatePanelFromCurrent();
    area.ComposeCurrentIcon();
    area.ShowCurrentIcon();
    undo.clearUndoHistory();
    undo.recordUndo();
    editor.tool = kRegion;
  }
  void setPixels(const Rows& rows) {
    state.picImage.fill(kBlack);
    state.picMask.fill(kWhite);
    for (std::size_t y = 0; y < rows.size(); ++y)
      for (std::size_t x = 0; x < rows[y].size(); ++x) setPixel(static_cast<int>(x), static_cast<int>(y), rows[y][x]);
  }
  // A step of another tool.
  void paintPixel(int x, int y, char letter) {
    setPixel(x, y, letter);
    area.ComposeCurrentIcon();
    area.MagnifyIcon();
    undo.recordUndo();
  }
  // The Editing Area draws a region on everything that it builds anew.
  void setGrid(int index) {
    area.SetGrid(index);
    regions.redrawRegion();
  }
  void setRoom(int side) {
    area.setRoom(side, side);
    regions.redrawRegion();
  }
  void setPixel(int x, int y, char letter) {
    if (letter == '.') return;
    state.picImage.SetPixelV(x, y, colorOf(letter));
    state.picMask.SetPixelV(x, y, letter == '!' ? kWhite : kBlack);
  }
  static Color colorOf(char letter) {
    switch (letter) {
      case 'a':
        return kColorA;
      case 'b':
        return kColorB;
      case 'c':
        return kColorC;
      case 's':
        return kGround;
      case '!':
        return kInverting;
      default:
        return kBlack;
    }
  }
  static char letterOf(Color image, Color mask) {
    if (mask == kWhite) return image == kBlack ? '.' : '!';
    if (mask != kBlack) return '?';
    for (char letter : {'a', 'b', 'c', 's', 'k'})
      if (image == colorOf(letter)) return letter;
    return '?';
  }
  static Rows rowsOf(const Surface& image, const Surface& mask) {
    Rows rows(static_cast<std::size_t>(image.height()));
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        rows[static_cast<std::size_t>(y)] += letterOf(image.GetPixel(x, y), mask.GetPixel(x, y));
    return rows;
  }
  // Rows without what is transparent at their right and below.
  static Rows trimmed(Rows rows) {
    for (std::string& row : rows) row.erase(row.find_last_not_of('.') + 1);
    while (!rows.empty() && rows.back().empty()) rows.pop_back();
    return rows;
  }
  Rows icon() const { return trimmed(rowsOf(state.picImage, state.picMask)); }
  Rows content() const { return rowsOf(state.picImageRegion, state.picMaskRegion); }

  static Surface picture(const Rows& rows) {
    Surface surface(static_cast<int>(rows.front().size()), static_cast<int>(rows.size()));
    for (int y = 0; y < surface.height(); ++y)
      for (int x = 0; x < surface.width(); ++x)
        surface.SetPixelV(x, y, colorOf(rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]));
    return surface;
  }

  // The mouse, in Editing Area pixels.
  ToolMouse mouse(int x, int y, int modifiers = 0) const {
    const int m = state.gMagnification;
    return {x / m, y / m, static_cast<float>(x), static_cast<float>(y), modifiers};
  }
  bool isInside(int x, int y) const {
    return x >= 0 && y >= 0 && x < state.picDisp.width() && y < state.picDisp.height();
  }
  void press(int x, int y) {
    if (editor.tool == kRegion && state.current().present) tool.press(mouse(x, y));
  }
  void move(int x, int y, int modifiers = 0) {
    pump.pump();
    if (editor.tool == kRegion && state.current().present && isInside(x, y)) tool.move(mouse(x, y, modifiers));
  }
  void release(int x, int y) {
    draw.mPainting = draw.mErasing = draw.mRestoring = draw.mRegionDown = false;
    if (!state.current().present) return;
    if (editor.tool != kRegion) return regions.finishDrag();
    state.current().modified = true;
    tool.release(mouse(x, y));
    editor.UpdateCommands();
  }
  // The same in whole cells: the mouse stands on their corners.
  int cells(int count) const { return count * state.gMagnification; }
  int lastOn(int cell) const { return std::min(cells(cell), state.picDisp.width() - 1); }
  void drag(int fromX, int fromY, int toX, int toY) {
    press(cells(fromX), cells(fromY));
    move(lastOn(toX), lastOn(toY));
    release(lastOn(toX), lastOn(toY));
  }
  // Marks icon pixels, both corners included.
  void mark(int x1, int y1, int x2, int y2) { drag(x1, y1, x2 + 1, y2 + 1); }
  // A position well inside a region of at least 4 x 4 cells, away from its sides.
  int inside(int firstCell) const { return cells(firstCell + 2); }
  void moveRegion(int byX, int byY) {
    const int x = inside(static_cast<int>(draw.draw.x1));
    const int y = inside(static_cast<int>(draw.draw.y1));
    press(x, y);
    move(x + cells(byX), y + cells(byY));
    release(x + cells(byX), y + cells(byY));
  }
  std::string label() const { return state.screen.lblDispXY[2]; }
  Rows boxInPixels() const {
    auto text = [](double a, double b) {
      return std::to_string(static_cast<int>(a)) + "," + std::to_string(static_cast<int>(b));
    };
    return {text(draw.draw.x1, draw.draw.y1), text(draw.draw.x2, draw.draw.y2)};
  }

  static bool same(const Surface& a, const Surface& b) {
    return a.width() == b.width() && a.height() == b.height() && std::ranges::equal(a.pixels(), b.pixels());
  }
  // Icon, Mask, composite, region and history tell the same.
  void expectAgreement() {
    EXPECT_EQ(state.mRegionActive, state.mRegionExists);
    EXPECT_EQ(state.mPendingPaint, regions.isFloating());
    EXPECT_FALSE(state.screen.hourglass);
    expectCompositeFits();
    if (state.mRegionExists)
      expectRegionFits();
    else
      expectNoRegion();
    if (state.current().present) expectHistoryFits();
  }
  void expectCompositeFits() {
    if (!state.current().present) return;
    const int size = state.current().size;
    ASSERT_EQ(state.picImage.width(), size);
    ASSERT_EQ(state.picMask.width(), size);
    ASSERT_EQ(state.PicIcon.width(), size);
    for (int y = 0; y < size; ++y)
      for (int x = 0; x < size; ++x) {
        const bool opaque = state.picMask.GetPixel(x, y) == kBlack;
        EXPECT_EQ(state.PicIcon.GetPixel(x, y), opaque ? state.picImage.GetPixel(x, y) : kGround) << x << ", " << y;
        if (!opaque) {
          EXPECT_EQ(state.picImage.GetPixel(x, y), kBlack) << x << ", " << y;
        }
      }
  }
  void expectRegionFits() {
    EXPECT_FALSE(regions.drag().mEdgeDrag);
    EXPECT_EQ(state.picImageRegion.width(), draw.draw.x2 - draw.draw.x1 + 1);
    EXPECT_EQ(state.picImageRegion.height(), draw.draw.y2 - draw.draw.y1 + 1);
    EXPECT_EQ(draw.region.x1, draw.draw.x1 * state.gMagnification);
    EXPECT_EQ(draw.region.y1, draw.draw.y1 * state.gMagnification);
    Surface image = state.picImageSnap;
    Surface mask = state.picMaskSnap;
    for (int y = 0; y < state.picImageRegion.height(); ++y)
      for (int x = 0; x < state.picImageRegion.width(); ++x) {
        if (state.picMaskRegion.GetPixel(x, y) != kBlack) continue;
        const int atX = static_cast<int>(draw.draw.x1) + x;
        const int atY = static_cast<int>(draw.draw.y1) + y;
        image.SetPixelV(atX, atY, state.picImageRegion.GetPixel(x, y));
        mask.SetPixelV(atX, atY, kBlack);
      }
    EXPECT_EQ(icon(), trimmed(rowsOf(image, mask)));
  }
  void expectNoRegion() {
    EXPECT_EQ(draw.region.x1, 0);
    EXPECT_EQ(draw.region.x2, 0);
    EXPECT_EQ(label(), "");
    EXPECT_FALSE(draw.mRegionDown);
  }
  // A step recorded now can be taken back and done again.
  void expectHistoryFits() {
    EXPECT_GE(undo.undoCount(), 1);
    if (editor.tool == kShift) return;  // it has a history of its own
    const Rows now = icon();
    undo.recordUndo();
    undo.doUndo();
    undo.doRedo();
    EXPECT_EQ(icon(), now);
  }
};

}  // namespace gp::test

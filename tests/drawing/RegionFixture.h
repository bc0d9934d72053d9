// An icon with Region selected, and pictures of icon and region as rows of characters, for tests of everything that
// works on regions.
#pragma once

#include "drawing/DrawingRooms.h"

#include <ostream>

namespace gp {

// How GoogleTest prints a phase.
inline std::ostream& operator<<(std::ostream& out, RegionPhase phase) {
  const char* const names[] = {"None", "Drawing", "Standing", "Moving", "MovingView", "Sizing"};
  return out << names[static_cast<int>(phase)];
}

}  // namespace gp

namespace gp::test {

inline constexpr Color kColorA = 0x0000F0;
inline constexpr Color kColorB = 0x00F000;
inline constexpr Color kColorC = 0xF00000;
inline constexpr Color kInverting = 0x123456;
// A colour that must not remain after a region was rendered.
inline constexpr Color kOverwritten = 0x010203;

class RegionFixture : public DrawingRooms {
 protected:
  RotatePanel& rotatePanel = drawing.rotatePanel;
  ShiftTool& shift = drawing.shift;
  Transforms& transforms = drawing.transforms;
  ClipboardCommands& commands = drawing.clipboardCommands;
  ContainerCopies& copies = drawing.containerCopies;

  RegionFixture() { state.options.updateOnlyEditingArea = false; }

  // An icon on the Editing Area and in the current container, a baseline of Undo, Region selected. '.' is transparent,
  // 'k' opaque black, '!' inverts the background; pixels beyond the rows are transparent.
  void makeIcon(int size, const Rows& rows = {}) {
    IconImage icon = transparentIcon(size);
    put(icon.image, icon.mask, rows);
    arrive(state.mCurContainer, icon);
    tools.selectTool(kRegion);
  }
  void setPixels(const Rows& rows) {
    state.picImage.fill(kBlack);
    state.picMask.fill(kWhite);
    put(state.picImage, state.picMask, rows);
  }
  // An undo step of another tool.
  void paintPixel(int x, int y, char letter) {
    setPixel(x, y, letter);
    area.showChangedIcon();
    history.recordUndo();
  }
  void setPixel(int x, int y, char letter) { put(state.picImage, state.picMask, x, y, letter); }
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
  // Rows without the transparent pixels at the right and the bottom.
  static Rows trimmed(Rows rows) {
    for (std::string& row : rows) row.erase(row.find_last_not_of('.') + 1);
    while (!rows.empty() && rows.back().empty()) rows.pop_back();
    return rows;
  }
  Rows icon() const { return trimmed(rowsOf(state.picImage, state.picMask)); }
  Rows content() const { return rowsOf(regions.content().image, regions.content().mask); }

  static Surface picture(const Rows& rows) {
    Surface surface(static_cast<int>(rows.front().size()), static_cast<int>(rows.size()));
    for (int y = 0; y < surface.height(); ++y)
      for (int x = 0; x < surface.width(); ++x)
        surface.SetPixelV(x, y, colorOf(rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]));
    return surface;
  }

  // The mouse, in Editing Area pixels.
  static MouseInput mouse(int x, int y, int button, int modifiers = 0) {
    return {button, modifiers, static_cast<float>(x), static_cast<float>(y)};
  }
  void press(int x, int y) { tools.press(mouse(x, y, kLeftButton)); }
  void move(int x, int y, int modifiers = 0) { tools.move(mouse(x, y, 0, modifiers)); }
  void release(int x, int y) { tools.release(mouse(x, y, kLeftButton)); }
  // The mouse in whole cells: on their corners.
  int cells(int count) const { return count * state.gMagnification; }
  int lastOn(int cell) const { return std::min(cells(cell), state.picDisp.width() - 1); }
  void drag(int fromX, int fromY, int toX, int toY) {
    press(cells(fromX), cells(fromY));
    move(lastOn(toX), lastOn(toY));
    release(lastOn(toX), lastOn(toY));
  }
  // Selects icon pixels, both corners included.
  void mark(int x1, int y1, int x2, int y2) { drag(x1, y1, x2 + 1, y2 + 1); }
  // A position inside a region of at least 4 x 4 cells, away from its sides.
  int inside(int firstCell) const { return cells(firstCell + 2); }
  void moveRegion(int byX, int byY) {
    const int x = inside(static_cast<int>(draw.draw.x1));
    const int y = inside(static_cast<int>(draw.draw.y1));
    press(x, y);
    move(x + cells(byX), y + cells(byY));
    release(x + cells(byX), y + cells(byY));
  }
  // The icon without the region, which floats afterwards.
  Rows beneath() {
    const IconImage icon = iconBeneath();
    return trimmed(rowsOf(icon.image, icon.mask));
  }
  std::string label() const { return readout(Readout::Region); }
  Rows boxInPixels() const {
    auto text = [](double a, double b) {
      return std::to_string(static_cast<int>(a)) + "," + std::to_string(static_cast<int>(b));
    };
    return {text(draw.draw.x1, draw.draw.y1), text(draw.draw.x2, draw.draw.y2)};
  }

  // Icon, mask, composite, region and history are consistent. The region may end in this check.
  void expectAgreement() {
    EXPECT_EQ(regions.exists(), state.mRegionExists);
    EXPECT_EQ(state.mPendingPaint, regions.isFloating());
    EXPECT_FALSE(state.screen.hourglass);
    expectCompositeFits();
    if (state.mRegionExists)
      expectRegionFits();
    else
      expectNoRegion();
    if (state.current().present) expectHistoryFits();
  }

 private:
  static void put(Surface& image, Surface& mask, int x, int y, char letter) {
    if (letter == '.') return;
    image.SetPixelV(x, y, colorOf(letter));
    mask.SetPixelV(x, y, letter == '!' ? kWhite : kBlack);
  }
  static void put(Surface& image, Surface& mask, const Rows& rows) {
    for (std::size_t y = 0; y < rows.size(); ++y)
      for (std::size_t x = 0; x < rows[y].size(); ++x)
        put(image, mask, static_cast<int>(x), static_cast<int>(y), rows[y][x]);
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
    EXPECT_EQ(regions.phase(), RegionPhase::Standing);
    EXPECT_EQ(regions.content().width(), draw.draw.x2 - draw.draw.x1 + 1);
    EXPECT_EQ(regions.content().height(), draw.draw.y2 - draw.draw.y1 + 1);
    EXPECT_EQ(draw.region.x1, draw.draw.x1 * state.gMagnification);
    EXPECT_EQ(draw.region.y1, draw.draw.y1 * state.gMagnification);
    const Rows shown = icon();
    IconImage merged = iconBeneath();
    for (int y = 0; y < regions.content().height(); ++y)
      for (int x = 0; x < regions.content().width(); ++x) {
        if (regions.content().mask.GetPixel(x, y) != kBlack) continue;
        const int atX = static_cast<int>(draw.draw.x1) + x;
        const int atY = static_cast<int>(draw.draw.y1) + y;
        merged.image.SetPixelV(atX, atY, regions.content().image.GetPixel(x, y));
        merged.mask.SetPixelV(atX, atY, kBlack);
      }
    EXPECT_EQ(shown, trimmed(rowsOf(merged.image, merged.mask)));
  }
  // The icon without the content of the region, obtained by replacing it by an empty content.
  IconImage iconBeneath() {
    const IconImage lifted = regions.content();
    const bool modified = state.current().modified;
    state.picImage.fill(kOverwritten);
    state.picMask.fill(kBlack);
    regions.replaceContent(transparent(lifted.width(), lifted.height()));
    const IconImage beneath{state.picImage, state.picMask, {}};
    regions.replaceContent(lifted);
    state.current().modified = modified;
    return beneath;
  }
  static IconImage transparent(int width, int height) {
    return {Surface(width, height, kBlack), Surface(width, height, kWhite), {}};
  }
  void expectNoRegion() {
    EXPECT_EQ(draw.region.x1, 0);
    EXPECT_EQ(draw.region.x2, 0);
    EXPECT_EQ(label(), "");
    EXPECT_EQ(regions.phase(), RegionPhase::None);
  }
  // A step recorded now can be undone and redone.
  void expectHistoryFits() {
    EXPECT_GE(history.undoCount(), 1);
    if (tools.selectedTool() == kShift) return;  // it has its own history
    const Rows now = icon();
    history.recordUndo();
    undo.doUndo();
    undo.doRedo();
    EXPECT_EQ(icon(), now);
  }
};

}  // namespace gp::test

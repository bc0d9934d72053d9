// A small icon on the Editing Area, and pictures of it as rows of characters, for tests of drawing tools.
#pragma once

#include "drawing/DrawingRooms.h"

namespace gp::test {

// One pixel as a character: '.' transparent, a letter opaque, '^' inverting.
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

class DrawingFixture : public DrawingRooms {
 protected:
  DrawingFixture() {
    state.gGridColor = kNoGrid;
    state.mCurrentColor = kGreen;
  }

  // Puts an icon into a container: its top left corner is given, the rest is transparent.
  void putIcon(int container, int size, const Rows& rows = {}) {
    IconImage icon = transparentIcon(size);
    for (int y = 0; y < static_cast<int>(rows.size()); ++y)
      for (int x = 0; x < static_cast<int>(rows[y].size()); ++x) put(icon.image, icon.mask, x, y, rows[y][x]);
    arrive(container, icon);
  }
  void putPixel(int x, int y, char letter) { put(state.picImage, state.picMask, x, y, letter); }
  char letterAt(int x, int y) const {
    for (const PixelLetter& look : kPixelLetters)
      if (state.picImage.GetPixel(x, y) == look.image && state.picMask.GetPixel(x, y) == look.mask) return look.letter;
    return '?';
  }
  // The top left corner of the icon in letters; painted pixels beyond it are appended, so that none is missed.
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

  // The mouse, in icon pixels.
  void press(int x, int y, int modifiers = 0) { tools.press(at(x, y, kLeftButton, modifiers)); }
  void move(int x, int y, int modifiers = 0) { tools.move(at(x, y, 0, modifiers)); }
  void release(int x, int y, int modifiers = 0) { tools.release(at(x, y, kLeftButton, modifiers)); }
  void click(int x, int y, int modifiers = 0) {
    press(x, y, modifiers);
    release(x, y, modifiers);
  }
  void drag(int x1, int y1, int x2, int y2, int modifiers = 0) {
    press(x1, y1, modifiers);
    move(x2, y2, modifiers);
    release(x2, y2, modifiers);
  }
  // A region around the pixels, both corners included; Region becomes the selected tool.
  void markRegion(int x1, int y1, int x2, int y2) {
    const auto corner = [m = static_cast<float>(state.gMagnification)](int x, int y) {
      return MouseInput{kLeftButton, 0, static_cast<float>(x) * m, static_cast<float>(y) * m};
    };
    if (tools.selectedTool() != kRegion) tools.selectTool(kRegion);
    tools.press(corner(x1, y1));
    tools.move(corner(x2 + 1, y2 + 1));
    tools.release(corner(x2 + 1, y2 + 1));
    ASSERT_TRUE(state.mRegionExists);
  }

  // After every step, the last entry of the history equals the icon, and PicIcon shows it.
  void expectAgreement() {
    if (!state.current().present) return;
    ASSERT_GE(history.undoCount(), 1);
    const Surface image = state.picImage;
    const Surface mask = state.picMask;
    const Surface shown = state.PicIcon;
    area.ComposeCurrentIcon();
    EXPECT_TRUE(same(shown, state.PicIcon)) << "PicIcon is out of date";
    // One more step and an undo restore the entry that was last before.
    history.recordUndo();
    ASSERT_TRUE(history.canUndo());
    state.picImage.fill(kRed);
    history.restoreUndo(UndoMode::OneStep);
    EXPECT_TRUE(same(image, state.picImage)) << "the history has another image";
    EXPECT_TRUE(same(mask, state.picMask)) << "the history has another Mask";
  }

 private:
  static void put(Surface& image, Surface& mask, int x, int y, char letter) {
    for (const PixelLetter& look : kPixelLetters)
      if (look.letter == letter) {
        image.SetPixelV(x, y, look.image);
        mask.SetPixelV(x, y, look.mask);
      }
  }
};

}  // namespace gp::test

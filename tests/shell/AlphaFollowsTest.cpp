// Alpha values belong to their pixels: after any sequence of commands each painted pixel has its own.
//
// The colours are the model. At the start the red of each pixel equals its alpha value; what is painted later has a red
// of 255. All commands here move, copy and restore colours without mixing them, so that red and alpha stay equal.
#include "alpha/AlphaConversion.h"
#include "document/AlphaGreys.h"
#include "document/Containers.h"
#include "document/CurrentIcon.h"
#include "support/ShellFixture.h"

#include <random>

namespace gp::test {
namespace {

constexpr int kCommands = 1000;
constexpr int kPlainContainer = 4;  // its icon has no alpha

// Paste Opaque paints transparent pixels in the colour of the ground. They have the alpha 0 of a picture with alpha,
// which a copy carries as 1, or are opaque.
bool belongsTo(Color color, int alpha) {
  return color == kGround ? alpha <= 1 || alpha == kOpaqueAlpha : alpha == redOf(color);
}

IconContainerRec alphaRecord() { return recordWithAlpha(NewRecord()); }

class AlphaFollows : public ProgramFixture<AgreeingBoxes>, public testing::WithParamInterface<unsigned> {
 protected:
  std::mt19937 random_{GetParam()};

  AlphaFollows() {
    start();
    for (int container = 0; container < kPlainContainer; ++container)
      fill(container, kIconSides.at(static_cast<std::size_t>(container)));
    shell.document().arrival.fillContainer(kPlainContainer, drawn(32, false), NewRecord());
    shell.document().iconsPanel.SwitchContainer(0);
  }

  int upTo(int last) { return std::uniform_int_distribution<int>(0, last)(random_); }

  IconImage drawn(int size, bool withAlpha) {
    IconImage icon = transparentIcon(size);
    if (withAlpha) icon.alpha = AlphaMatrix(size, size, kOpaqueAlpha);
    for (int y = 0; y < size; ++y)
      for (int x = 0; x < size; ++x) {
        if (upTo(3) == 0) continue;
        const int alpha = withAlpha ? upTo(254) + 1 : kOpaqueAlpha;
        icon.image.SetPixelV(x, y, rgb(alpha, 1 + upTo(100), upTo(255)));
        icon.mask.SetPixelV(x, y, kBlack);
        if (withAlpha) icon.alpha.at(x, y) = static_cast<std::uint8_t>(alpha);
      }
    return icon;
  }
  void fill(int container, int size) {
    shell.document().arrival.fillContainer(container, drawn(size, true), alphaRecord());
  }

  void drag(Tool tool) {
    Tools& tools = shell.drawing().tools;
    if (tools.selectedTool() != tool) tools.selectTool(tool);
    shell.colour().selection.setCurrentColor(rgb(255, upTo(255), upTo(255)));
    tools.setBrush(upTo(5));
    const int last = state.picImage.width() - 1;
    tools.press(at(upTo(last), upTo(last)));
    for (int move = upTo(3); move > 0; --move) {
      MouseInput mouse = at(upTo(last), upTo(last));
      mouse.button = 0;
      tools.move(mouse);
    }
    MouseInput mouse = at(upTo(last), upTo(last));
    if (upTo(4) == 0) mouse.modifiers = kCtrlKey;
    tools.release(mouse);
  }
  void dragRegion() {
    Tools& tools = shell.drawing().tools;
    if (!state.mRegionExists) return drag(kRegion);
    const DrawRect& box = shell.drawing().regions.pixels();
    const int last = state.picImage.width() - 1;
    tools.press(at(static_cast<int>(box.x1), static_cast<int>(box.y1)));
    MouseInput mouse = at(upTo(last), upTo(last));
    tools.move(mouse);
    if (upTo(5) == 0)
      tools.giveUp();
    else
      tools.release(mouse);
  }
  void shiftAround() {
    shell.drawing().tools.selectTool(kShift);
    for (int step = upTo(5); step >= 0; --step) shell.shiftTowards(static_cast<ShiftCell>(upTo(8)));
  }
  void rotate() {
    click("mnuRotateSubmenu", 4);
    shell.drawing().rotatePanel.setSlider(upTo(720) - 360);
    shell.cmdProceed();
  }
  void paste() {
    const bool isPlain = state.mCurContainer == kPlainContainer;
    if (isPlain)
      clipboard.hold(coveredWithGround(drawn(8 + upTo(16), false)));
    else if (upTo(1) == 0)
      holdPictureWithAlpha();
    click("mnuEditSub", 7 + upTo(1));
  }
  void holdPictureWithAlpha() {
    const IconImage picture = drawn(8 + upTo(16), true);
    Surface alpha = greysOf(picture.alpha);
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        if (picture.mask.GetPixel(x, y) == kWhite) alpha.SetPixelV(x, y, kBlack);
    clipboard.hold(coveredWithGround(picture), alpha);
  }
  static Surface coveredWithGround(const IconImage& icon) {
    Surface picture = icon.image;
    for (int y = 0; y < icon.height(); ++y)
      for (int x = 0; x < icon.width(); ++x)
        if (icon.mask.GetPixel(x, y) == kWhite) picture.SetPixelV(x, y, kGround);
    return picture;
  }

  std::string runOne() {
    switch (upTo(13)) {
      case 0:
      case 1: {
        const int turn = upTo(3);
        click("mnuRotateSubmenu", turn);
        return "flip or turn " + std::to_string(turn);
      }
      case 2:
        return rotate(), "rotate";
      case 3:
        return shiftAround(), "shift";
      case 4:
      case 5:
        return dragRegion(), "region";
      case 6:
        return paste(), "paste";
      case 7: {
        const int command = 4 + upTo(2);
        click("mnuEditSub", command);
        return "cut, erase or copy " + std::to_string(command);
      }
      case 8: {
        const int step = upTo(9) == 0 ? 0 : 1 + upTo(1);
        click("mnuEditSub", step);
        return "undo or redo " + std::to_string(step);
      }
      case 9:
        shell.document().iconsPanel.SwitchContainer(upTo(kPlainContainer));
        return "switch to " + std::to_string(state.mCurContainer);
      case 10:
        return click("mnuTools", kRestore), drag(kRestore), "restore";
      case 11: {
        const int size = kIconSides.at(static_cast<std::size_t>(upTo(3)));
        shell.document().arrival.arrive(drawn(size, state.mCurContainer != kPlainContainer),
                                        state.mCurContainer != kPlainContainer ? alphaRecord() : NewRecord());
        return "another icon of " + std::to_string(size);
      }
      default: {
        static constexpr Tool kPainters[] = {kPaint,     kErase,           kFill, kReplace,   kLine,
                                             kRectangle, kFilledRectangle, kOval, kFilledOval};
        const Tool tool = kPainters[upTo(8)];
        return drag(tool), "tool " + std::to_string(tool);
      }
    }
  }

  static int wrongPixels(const Surface& image, const Surface& mask, const AlphaMatrix& alpha) {
    int wrong = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        wrong += mask.GetPixel(x, y) == kBlack && !belongsTo(image.GetPixel(x, y), alpha.at(x, y));
    return wrong;
  }
  void expectOwnAlpha(const std::string& after) {
    const IconImage icon = currentIcon(state);
    if (state.mCurContainer == kPlainContainer) {
      ASSERT_FALSE(icon.hasAlphaValues()) << after;
      for (const std::uint32_t pixel : state.picAlpha.pixels())
        ASSERT_EQ(pixel & kColorBits, storedForm(kOpaqueGrey)) << after;
    } else {
      ASSERT_TRUE(icon.hasAlphaValues()) << after;
      ASSERT_EQ(wrongPixels(icon.image, icon.mask, icon.alpha), 0) << after;
    }
    for (std::size_t i = 0; i < kPlainContainer; ++i)
      ASSERT_EQ(wrongPixels(state.picPanelImage.at(i), state.picPanelMask.at(i), state.mAlphaRecs.at(i)), 0)
          << after << ", container " << i;
  }
};

TEST_P(AlphaFollows, RandomCommandsKeepColorAndAlphaTogether) {
  int different = 0;
  for (int command = 0; command < kCommands; ++command) {
    const IconImage before = currentIcon(state);
    const std::string name = runOne();
    ASSERT_NO_FATAL_FAILURE(expectOwnAlpha(std::to_string(command) + ": " + name));
    different += !(currentIcon(state).alpha == before.alpha);
  }
  EXPECT_GT(different, kCommands / 4) << "the commands have to move something";
}

INSTANTIATE_TEST_SUITE_P(Every, AlphaFollows, testing::Range(1U, 13U));

}  // namespace
}  // namespace gp::test

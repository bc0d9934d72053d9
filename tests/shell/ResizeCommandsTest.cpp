// Resizing in the whole program: the six commands, their refusals and questions, what Proceed leaves, and an icon that
// changes under the open panel.
#include "document/Containers.h"
#include "effects/Resize.h"
#include "effects/ResizePanel.h"
#include "files/IcoBuilder.h"
#include "shell/EffectFixture.h"

namespace gp::test {
namespace {

constexpr const char* kNotSuitable = "No icon in Editing Area yet or not of suitable size.";
constexpr const char* kSaveQuestion = "Save current icon to file?";

class ResizeCommandsTest : public EffectFixture {
 protected:
  ResizePanel& resize() { return shell.effects().panel<ResizePanel>(); }
  // A new icon of that size, without a question about saving.
  void startWith(int size) {
    startWithNew();
    shell.document().arrival.arrive(transparentIcon(size), NewRecord());
    state.current().neverSaved = state.current().modified = false;
  }
  void expand(int index) { click("mnuEffectsSub1", index); }
  void shrink(int index) { click("mnuEffectsSub2", index); }
  std::string write(const std::string& name, const std::vector<Entry>& entries) const {
    const Bytes bytes = build(IcoFile{entries, 0, 1, {}});
    return folder.write(name, std::string(bytes.begin(), bytes.end()));
  }
  void expectQuestion(BoxAnswer answer) {
    boxes.expect(kSaveQuestion, BoxButtons::YesNoCancel, BoxIcon::Question, answer);
  }
  const std::string& statusPath() const { return state.screen.lblStatusPanel[0]; }
};

TEST_F(ResizeCommandsTest, EachSizeOffersTheLargerAndTheSmallerOnesOnly) {
  constexpr int kLarger[] = {24, 32, 48}, kSmaller[] = {32, 24, 16};
  for (const int size : kIconSides) {
    startWith(size);
    for (int index = 0; index < 3; ++index)
      for (const bool isExpand : {true, false}) {
        const int to = isExpand ? kLarger[index] : kSmaller[index];
        const bool isOffered = isExpand ? to > size : to < size;
        if (!isOffered) boxes.expectTold(kNotSuitable, BoxIcon::None);
        isExpand ? expand(index) : shrink(index);
        ASSERT_EQ(panel(), isOffered ? ResizePanel::kNumber : kColorPanel) << size << " to " << to;
        if (isOffered) {
          EXPECT_EQ(resize().caption(), std::string(isExpand ? "Expand" : "Shrink") + " size to " + std::to_string(to) +
                                            " x " + std::to_string(to));
          EXPECT_EQ(resize().mResizeTo(), to);
        }
        shell.cmdCancel();
      }
  }
}

TEST_F(ResizeCommandsTest, WithoutAnIconTheMessageSaysSo) {
  start();
  for (int index = 0; index < 3; ++index) {
    boxes.expectTold(kNotSuitable, BoxIcon::None);
    expand(index);
    boxes.expectTold(kNotSuitable, BoxIcon::None);
    shrink(index);
  }
  EXPECT_EQ(panel(), kColorPanel);
}

TEST_F(ResizeCommandsTest, AnIconWithAlphaIsRefused) {
  startWith(32);
  state.current().hasAlpha = true;
  boxes.expectTold("Current icon is with alpha, please run Convert 32 To 24 BPP\nto convert it to 24-BPP first.",
                   BoxIcon::None);
  expand(2);
  EXPECT_EQ(panel(), kColorPanel);
}

TEST_F(ResizeCommandsTest, AnIconWhoseFileHoldsOtherSizesIsRefused) {
  startWith(32);
  const std::string two = write("two.ico", {anyEntry(32, 8), anyEntry(16, 8)});
  const std::string cut = folder.write("cut.ico", folder.read("two.ico").substr(0, 60));
  const std::string same = write("same.ico", {anyEntry(32, 8), anyEntry(32, 4)});
  state.current().fromMultiIconFile = true;
  for (const std::string& path : {two, cut}) {
    state.current().path = path;
    boxes.expectTold(
        "Current icon originates from a multi-icon file which has\nalready had alternative size(s).  If you wish to "
        "expand the\ncurrent one, save it as a single-icon file first.",
        BoxIcon::None);
    expand(2);
    boxes.expectTold(
        "Current icon originates from a multi-icon file which has\nalready had alternative size(s).  If you wish to "
        "shrink the\ncurrent one, save it as a single-icon file first.",
        BoxIcon::None);
    shrink(2);
    EXPECT_EQ(panel(), kColorPanel) << path;
  }
  for (const std::string& path : {same, folder.file("gone.ico")}) {
    state.current().path = path;
    expand(2);
    EXPECT_EQ(panel(), ResizePanel::kNumber) << path;
    shell.cmdCancel();
  }
}

TEST_F(ResizeCommandsTest, UnsavedChangesAreAskedAboutOnce) {
  startWith(32);
  set(3, 3, kRed);
  state.current().modified = true;
  expectQuestion(BoxAnswer::Cancel);
  expand(2);
  EXPECT_EQ(panel(), kColorPanel);
  expectQuestion(BoxAnswer::No);
  expand(2);
  EXPECT_EQ(panel(), ResizePanel::kNumber);
  shell.cmdProceed();
  EXPECT_EQ(state.current().size, 48);
  EXPECT_TRUE(state.current().modified);
}

TEST_F(ResizeCommandsTest, AnIconThatWasPaintedOnUnderThePanelIsAskedAboutAgain) {
  startWith(32);
  expand(2);
  set(5, 5, kRed);
  state.current().modified = true;
  expectQuestion(BoxAnswer::Cancel);
  shell.cmdProceed();
  EXPECT_EQ(panel(), ResizePanel::kNumber);
  EXPECT_EQ(state.current().size, 32);
  expectQuestion(BoxAnswer::No);
  shell.cmdProceed();
  EXPECT_EQ(state.current().size, 48);
  EXPECT_EQ(panel(), kColorPanel);
}

TEST_F(ResizeCommandsTest, ProceedLeavesTheSampleTheRecordAndANewHistory) {
  for (const int option : {0, 1}) {
    startWith(32);
    paintManyColors();
    state.current().setDepth({16, 4});
    const IconImage before{state.picImage, state.picMask, {}};
    shrink(2);
    resize().pickOption(option);
    EXPECT_EQ(resize().cboResizeIcon(), option);
    const IconImage expected = resizedIcon(before, 16, option == 0);
    EXPECT_TRUE(samePixels(resize().picture(), expected));
    EXPECT_TRUE(samePixels(resize().picResizeIcon(option), resize().sample()));
    EXPECT_FALSE(samePixels(resize().picResizeIcon(1 - option), resize().sample()));
    shell.cmdProceed();
    EXPECT_TRUE(samePixels(state.picImage, expected.image));
    EXPECT_TRUE(samePixels(state.picMask, expected.mask));
    EXPECT_TRUE(samePixels(state.picPanelImage[0], expected.image));
    const IconContainerRec& record = state.current();
    EXPECT_EQ(record.size, 16);
    EXPECT_EQ(record.depth(), kPaletteDepth);
    EXPECT_EQ(record.headerDepth(), kPaletteDepth);
    EXPECT_TRUE(record.modified);
    EXPECT_TRUE(record.present);
    EXPECT_EQ(statusPath(), "Shrunk from 32x32");
    EXPECT_EQ(state.screen.lblStatusPanel[3], "16 x 16");
    EXPECT_EQ(state.picDisp.width(), 16 * state.gMagnification);
    EXPECT_EQ(panel(), kColorPanel);
    EXPECT_EQ(shell.drawing().history.undoCount(), 1);
    EXPECT_EQ(shell.drawing().history.redoCount(), 0);
    state.current().modified = false;
  }
}

TEST_F(ResizeCommandsTest, UndoNeverBringsBackTheOldSize) {
  startWith(16);
  set(1, 1, kRed);
  shell.recordUndo();
  state.current().modified = false;
  expand(1);
  shell.cmdProceed();
  EXPECT_EQ(statusPath(), "Expanded from 16x16");
  EXPECT_FALSE(shell.drawing().history.canUndo());
  set(30, 30, kRed);
  shell.recordUndo();
  click("mnuEditSub", kUndoAll);
  EXPECT_EQ(state.picImage.width(), 32);
  EXPECT_EQ(at(30, 30), kNoColor);
  EXPECT_EQ(at(2, 2), kRed);
}

TEST_F(ResizeCommandsTest, AnotherIconUnderThePanelMeetsTheGuardsAgain) {
  startWith(32);
  expand(2);
  shell.document().arrival.arrive(transparentIcon(48), NewRecord());
  EXPECT_TRUE(samePixels(resize().picture(), transparentIcon(48)));
  boxes.expectTold(kNotSuitable, BoxIcon::None);
  shell.cmdProceed();
  shell.document().arrival.arrive(transparentIcon(24), NewRecord());
  state.current().hasAlpha = true;
  boxes.expectTold("Current icon is with alpha, please run Convert 32 To 24 BPP\nto convert it to 24-BPP first.",
                   BoxIcon::None);
  shell.cmdProceed();
  EXPECT_EQ(panel(), ResizePanel::kNumber);
  state.current().present = false;
  resize().preview();
  EXPECT_EQ(resize().picResizeIcon(0).width(), 0);
  boxes.expectTold(kNotSuitable, BoxIcon::None);
  shell.cmdProceed();
  EXPECT_EQ(panel(), ResizePanel::kNumber);
}

TEST_F(ResizeCommandsTest, ChoicesOutsideTheListAreIgnored) {
  startWith(32);
  expand(2);
  for (const int index : {-1, 2, 99}) resize().pickOption(index);
  EXPECT_EQ(resize().cboResizeIcon(), 0);
}

}  // namespace
}  // namespace gp::test

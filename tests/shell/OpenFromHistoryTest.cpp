// Opening a file from the history: what happens before, and what is chosen after.
#include "document/PanelNumbers.h"
#include "files/CursorBuilder.h"
#include "support/ShellFixture.h"

namespace gp::test {
namespace {

constexpr BoxAnswer kCancel = BoxAnswer::Cancel;

class OpenFromHistory : public ShellFixture {
 protected:
  // Writes a file and puts it on top of the history.
  std::string listed(const std::string& name, const IcoFile& file) {
    const Bytes bytes = build(file);
    const std::string path = folder.write(name, std::string(bytes.begin(), bytes.end()));
    shell.AddHistory(path);
    return path;
  }
  std::string listedTrueColor() { return listed("true.ico", IcoFile{{anyEntry(32, 24)}, 0, 1, {}}); }
  void openFirst() { click("mnuFileHistory", 1); }
  void expectSaveQuestion(BoxAnswer answer) {
    boxes.expect("Save current icon to file?", BoxButtons::YesNoCancel, BoxIcon::Question, answer);
  }
};

TEST_F(OpenFromHistory, CommitsAFloatingRegionBeforeTheQuestion) {
  start();
  listedTrueColor();
  click("mnuFileSub", 2);
  clipboard.hold(Surface(4, 4, kWhite));
  click("mnuEditSub", 8);
  ASSERT_TRUE(state.mPendingPaint);
  expectSaveQuestion(kCancel);
  openFirst();
  EXPECT_FALSE(state.mPendingPaint);
  EXPECT_FALSE(state.mRegionExists);
  EXPECT_EQ(state.picPanelImage[0].GetPixel(3, 3), kWhite);
  EXPECT_EQ(state.picPanelMask[0].GetPixel(3, 3), kBlack);
  EXPECT_EQ(state.current().path.trimmed(), "Untitled");
}

TEST_F(OpenFromHistory, ClosesASidePanelFirst) {
  start();
  listedTrueColor();
  click("mnuFileSub", 2);
  paint(1, 1);
  for (const BoxAnswer answer : {kCancel, BoxAnswer::No}) {
    click("mnuRotateSubmenu", 4);
    ASSERT_EQ(state.screen.mActivePanel, kRotatePanel);
    expectSaveQuestion(answer);
    openFirst();
    EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  }
}

TEST_F(OpenFromHistory, RemembersTheFileUnlessItFails) {
  start();
  const std::string path = listedTrueColor();
  openFirst();
  EXPECT_EQ(state.process.mCommandFile, path);
  shell.AddHistory(folder.write("broken.ico", "no icon"));
  boxes.expectTold(folder.file("broken.ico") +
                       "\n\nInvalid icon file or icon not a size of 16x16, 24x24, 32x32 or 48x48.\n"
                       "Please try to use Open Bitmap File menu instead.",
                   BoxIcon::Exclamation);
  openFirst();
  EXPECT_EQ(state.process.mCommandFile, path);
}

TEST_F(OpenFromHistory, ShowsTheColourChartOfTheIcon) {
  start();
  listedTrueColor();
  openFirst();
  EXPECT_EQ(state.screen.colorFrame, ColorFrame::Chart256);
  click("mnuPaletteSub", 0);
  ASSERT_EQ(state.screen.colorFrame, ColorFrame::Chart16);
  openFirst();
  EXPECT_EQ(state.screen.colorFrame, ColorFrame::Chart256);
}

TEST_F(OpenFromHistory, ShowsTheBrowserForAFileOfSeveralIcons) {
  start();
  listed("multi.ico", IcoFile{{anyEntry(32, 4), anyEntry(16, 4)}, 0, 1, {}});
  openFirst();
  EXPECT_EQ(form.multiIcons, 1);
  EXPECT_FALSE(state.current().used) << "nothing was chosen in it";
}

TEST_F(OpenFromHistory, TheCommandLineOpensTheStandardSizeOfSuchAFileWithoutTheBrowser) {
  const Bytes bytes = build(IcoFile{{anyEntry(32, 4), anyEntry(16, 4)}, 0, 1, {}});
  start(folder.write("multi.ico", std::string(bytes.begin(), bytes.end())));
  EXPECT_EQ(form.multiIcons, 0);
  EXPECT_TRUE(state.current().fromMultiIconFile);
  EXPECT_EQ(state.current().size, 32);
}

}  // namespace
}  // namespace gp::test

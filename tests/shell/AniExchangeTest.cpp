// Frames exchanged with the Editing Area and with icon files.
#include "document/Containers.h"
#include "files/PngEntries.h"
#include "shell/AniFixture.h"
#include "support/FakeClipboard.h"

#include <gmock/gmock.h>

namespace gp::test {
namespace {

using testing::Contains;
using testing::ElementsAre;

class AniExchangeTest : public AniShellTest {
 protected:
  void newIcon() {
    click("mnuFileSub", 2);
    state.current().neverSaved = false;
  }
  void openIcon(const Entry& entry) {
    const Bytes bytes = build(entry);
    bool ok = false;
    shell.doOpenIconFileQuietly(folder.write("icon.ico", std::string(bytes.begin(), bytes.end())), ok);
    ASSERT_TRUE(ok);
  }
  void expectRefused(const std::string& text) {
    boxes.expectTold(text, BoxIcon::None);
    press(kFromArea);
    EXPECT_THAT(colors(), ElementsAre(1, 2, 3));
    EXPECT_FALSE(session.isChanged());
  }
  void load(const Bytes& bytes) {
    dialogs.paths = {folder.write("load.ico", std::string(bytes.begin(), bytes.end()))};
    press(kLoadIcon);
  }
};

// From the Editing Area.

TEST_F(AniExchangeTest, TheCurrentIconBecomesThePictureOfTheFrame) {
  openFilm(3);
  newIcon();
  state.mCurrentColor = kWhite;
  paint(3, 4);
  press(kGoDown);
  press(kFromArea);
  FramePicture expected;
  expected.mask.SetPixelV(3, 4, kBlack);
  EXPECT_TRUE(samePicture(session.frames().frame(2).picture, expected));
  EXPECT_EQ(session.frames().frame(2).jiffies, 2);
  EXPECT_TRUE(session.isChanged());
  EXPECT_THAT(display.announced, Contains("Frame 2 shows the icon"));
  EXPECT_EQ(session.film().picFilm().GetPixel(13, 58), kWhite);
}

TEST_F(AniExchangeTest, AnIconWithAlphaIsRefused) {
  openFilm(3);
  openIcon(anyEntry(32, 32));
  ASSERT_TRUE(state.current().hasAlpha);
  expectRefused("Not allowed to load an icon with Alpha Channel");
}

TEST_F(AniExchangeTest, AlphaIsRefusedBeforeTheSize) {
  openFilm(3);
  openIcon(anyEntry(48, 32));
  expectRefused("Not allowed to load an icon with Alpha Channel");
}

TEST_F(AniExchangeTest, AnEmptyEditingAreaIsRefused) {
  openFilm(3);
  expectRefused("No icon in Editing Area yet");
}

TEST_F(AniExchangeTest, AnIconOfAnotherSizeIsRefused) {
  openFilm(3);
  openIcon(anyEntry(48, 8));
  expectRefused("Icon in Editing Area is not 32x32");
}

TEST_F(AniExchangeTest, WhatFloatsIsCommittedFirst) {
  openFilm(1);
  newIcon();
  clipboard.hold(Surface(4, 4, rgb(255, 0, 0)));
  click("mnuEditSub", 8);
  ASSERT_TRUE(state.mPendingPaint);
  press(kFromArea);
  EXPECT_FALSE(state.mPendingPaint);
  EXPECT_EQ(session.frames().frame(1).picture.image.GetPixel(3, 3), rgb(255, 0, 0));
  EXPECT_EQ(session.frames().frame(1).picture.mask.GetPixel(3, 3), kBlack);
}

// To the Editing Area.

TEST_F(AniExchangeTest, AFrameBecomesTheCurrentIcon) {
  openFilm({plainFrame(1), plainFrame(rgb(255, 0, 0))});
  press(kGoDown);
  press(kToArea);
  EXPECT_TRUE(state.current().present);
  EXPECT_EQ(state.current().path.trimmed(), "FromAni_2");
  EXPECT_EQ(state.current().sourceLabel.trimmed(), "ANI frame");
  EXPECT_TRUE(state.current().neverSaved);
  EXPECT_FALSE(state.current().modified);
  EXPECT_EQ(state.current().depth(), kStandardDepth);
  EXPECT_EQ(state.picImage.GetPixel(31, 31), rgb(255, 0, 0));
  EXPECT_EQ(state.picMask.GetPixel(31, 31), kBlack);
  EXPECT_EQ(state.picPanelImage[0].GetPixel(31, 31), rgb(255, 0, 0));
  EXPECT_EQ(status(StatusPanel::Size), "32 x 32");
  EXPECT_EQ(path(), folder.file("film.ani")) << "the film is still the one in the pane";
  EXPECT_FALSE(session.isChanged());
  EXPECT_THAT(display.announced, Contains("Frame 2 in Editing Area"));
  EXPECT_FALSE(enabled("mnuEditSub", 0)) << "there is nothing to undo";
}

TEST_F(AniExchangeTest, AnIconOfAnotherSizeIsReplaced) {
  openFilm(1);
  openIcon(anyEntry(48, 8));
  state.current().neverSaved = false;
  press(kToArea);
  EXPECT_EQ(state.current().size, 32);
  EXPECT_EQ(state.picImage.width(), 32);
  EXPECT_EQ(state.picPanelImage[0].width(), 32);
}

TEST_F(AniExchangeTest, TheUserIsAskedAboutUnsavedWork) {
  openFilm(2);
  newIcon();
  paint(3, 3);
  expectSaveIconQuestion(BoxAnswer::Cancel);
  press(kToArea);
  EXPECT_EQ(state.current().path.trimmed(), "Untitled");
  EXPECT_TRUE(state.current().modified);
  expectSaveIconQuestion(BoxAnswer::No);
  press(kToArea);
  EXPECT_EQ(state.current().path.trimmed(), "FromAni_1");
}

TEST_F(AniExchangeTest, SavingTheIconFirstDoesNotCloseThePane) {
  openFilm(2);
  newIcon();
  paint(3, 3);
  for (const std::string& name : {std::string(), folder.file("saved.ico")}) {
    expectSaveIconQuestion(BoxAnswer::Yes);
    dialogs.paths = {name};
    press(kToArea);
    EXPECT_TRUE(isVisible());
    EXPECT_EQ(path(), folder.file("film.ani"));
  }
  EXPECT_EQ(state.current().path.trimmed(), "FromAni_1");
  EXPECT_EQ(shell.fileHistory().path(1), folder.file("saved.ico"));
}

TEST_F(AniExchangeTest, AFrameComesBackAsItWas) {
  FilmFrame frame;
  for (int y = 0; y < 20; ++y)
    for (int x = 0; x < 32; ++x) {
      frame.picture.image.SetPixelV(x, y, (x + y) % 5 == 0 ? kWhite : rgb(8 * x, 8 * y, 1));
      frame.picture.mask.SetPixelV(x, y, kBlack);
    }
  openFilm({frame});
  press(kToArea);
  state.current().neverSaved = false;
  press(kFromArea);
  EXPECT_TRUE(samePicture(session.frames().frame(1).picture, frame.picture));
}

TEST_F(AniExchangeTest, TheFilmIsIndependentOfTheIcon) {
  openFilm(1);
  press(kToArea);
  paint(3, 3);
  EXPECT_EQ(session.frames().frame(1).picture.image.GetPixel(3, 3), 1);
}

// From icon files.

TEST_F(AniExchangeTest, LoadsAnIconFileIntoTheFrame) {
  openFilm(3);
  press(kGoDown);
  Picture red = anyPicture(32, 24);
  red.color = [](int, int) { return Rgb{255, 0, 0}; };
  red.transparent = [](int x, int) { return x == 0; };
  load(build(entryOf(red)));
  EXPECT_THAT(dialogs.requests.back().filters, ElementsAre(FileFilter{"Icon files (*.ico)", "*.ico"}));
  const FilmFrame& frame = session.frames().frame(2);
  EXPECT_EQ(frame.picture.image.GetPixel(1, 0), rgb(255, 0, 0));
  EXPECT_EQ(frame.picture.mask.GetPixel(1, 0), kBlack);
  EXPECT_EQ(frame.picture.mask.GetPixel(0, 0), kWhite);
  EXPECT_EQ(frame.imageIndex, 0);
  EXPECT_EQ(frame.jiffies, 2);
  EXPECT_TRUE(session.isChanged());
  EXPECT_EQ(session.film().picFilm().GetPixel(14, 58), rgb(255, 0, 0));
}

TEST_F(AniExchangeTest, FilesThatCannotBeAFrameAreRefused) {
  openFilm(3);
  const std::string path = folder.file("load.ico");
  const std::string alpha = path + "\nCannot load a 32 BPP True Color icon";
  const struct {
    Bytes bytes;
    std::string refusal;
    BoxIcon icon;
  } rows[] = {
      {{1, 2}, path + "\nInvalid icon file or icon not a size of 16x16, 24x24, 32x32 or 48x48.", BoxIcon::Exclamation},
      {build(IcoFile{{anyEntry(32, 4), anyEntry(16, 4)}, 0, 1, {}}),
       path + "\nThis file is a multi-icon file.  Please load single-icon file only", BoxIcon::Exclamation},
      {build(anyEntry(48, 4)), path + "\n\nSize not of 32x32", BoxIcon::Exclamation},
      {build(entryOf(anyPicture(32, 24), 0, 16)), "Incoming icon is a True Color icon but not of 24 BPP or 32 BPP.",
       BoxIcon::Information},
      {build(anyEntry(32, 32)), alpha, BoxIcon::Exclamation},
      {build(IcoFile{{anyPngEntry(32)}, 0, 1, {}}), alpha, BoxIcon::Exclamation}};
  for (const auto& row : rows) {
    boxes.expectTold(row.refusal, row.icon);
    load(row.bytes);
    EXPECT_THAT(colors(), ElementsAre(1, 2, 3));
    EXPECT_FALSE(session.isChanged());
  }
}

TEST_F(AniExchangeTest, ACancelledDialogLoadsNothing) {
  openFilm(3);
  dialogs.paths = {""};
  press(kLoadIcon);
  EXPECT_FALSE(session.isChanged());
}

}  // namespace
}  // namespace gp::test

// The commands of the Alpha menu: their questions, and what each outcome of the screen makes of the Current Icon.
#include "alpha/AlphaFixture.h"
#include "colour/ColorCount.h"
#include "document/Announcements.h"
#include "document/Messages.h"
#include "files/opening/IconMessages.h"
#include "platform/files/FileLock.h"

#include <chrono>
#include <filesystem>

namespace gp::test {
namespace {

constexpr const char* kNoChannel = "Current Icon has no Alpha Channel.  Proceed still?";
constexpr const char* kNotTrueColor = "Current Icon is not a True Color icon.  Proceed still?";
constexpr const char* kAni = "Terminate animated cursor session?";
constexpr const char* kReminder =
    "Reminder:  The original icon file contains multiple icons.\n\n"
    " If you don't wish to overwrite it, save to a different name.\n\nProceed?";

using AlphaCommandsTest = AlphaFixture;

std::string paletteQuestion(int colors) {
  return "The actual color depth of image is of " + std::to_string(colors) +
         "-color only.\nSave with this palette mode instead?";
}

// Before the screen.

TEST_F(AlphaCommandsTest, WithoutAnIconTheScreenDoesNotOpen) {
  boxes.expectTold(kNoIconYet, BoxIcon::None);
  commands.mnuAlphaSub(kEditAlpha);
  EXPECT_TRUE(screen.icons.empty());
}

TEST_F(AlphaCommandsTest, AnIconWithAlphaIsShownWithoutAQuestionInTheModeOfTheEntry) {
  given(anyEntry(24, 32));
  const IconImage before = currentIcon(state);
  commands.mnuAlphaSub(kEditAlpha);
  commands.mnuAlphaSub(kConvertAlpha);
  EXPECT_EQ(screen.modes, (std::vector{AlphaMode::Edit, AlphaMode::Convert}));
  EXPECT_TRUE(samePixels(screen.icons[0].image, before.image));
  EXPECT_TRUE(samePixels(screen.icons[0].mask, before.mask));
  EXPECT_EQ(screen.icons[0].alpha, before.alpha);
}

TEST_F(AlphaCommandsTest, AnIconWithoutAlphaAsksByItsColors) {
  for (const int bits : {1, 4, 8, 24}) {
    given(anyEntry(16, bits));
    const char* question = bits == 24 ? kNoChannel : kNotTrueColor;
    boxes.expectAsked(question, BoxAnswer::No);
    commands.mnuAlphaSub(kEditAlpha);
    EXPECT_TRUE(screen.icons.empty()) << bits;
    boxes.expectAsked(question, BoxAnswer::Yes);
    commands.mnuAlphaSub(kConvertAlpha);
    ASSERT_EQ(screen.icons.size(), 1U) << bits;
    EXPECT_FALSE(screen.icons[0].hasAlphaValues());
    screen.icons.clear();
  }
}

TEST_F(AlphaCommandsTest, AnAnimatedCursorSessionEndsOnlyIfTheUserAgrees) {
  given(anyEntry(32, 32));
  state.screen.aniContainerVisible = true;
  boxes.expectAsked(kAni, BoxAnswer::No);
  commands.mnuAlphaSub(kEditAlpha);
  EXPECT_TRUE(screen.icons.empty());
  EXPECT_TRUE(state.screen.aniContainerVisible);
  boxes.expectAsked(kAni, BoxAnswer::Yes);
  commands.mnuAlphaSub(kEditAlpha);
  EXPECT_EQ(screen.icons.size(), 1U);
  EXPECT_FALSE(state.screen.aniContainerVisible);
}

TEST_F(AlphaCommandsTest, ASidePanelCloses) {
  given(anyEntry(32, 32));
  state.screen.mActivePanel = kRotatePanel;
  commands.mnuAlphaSub(kEditAlpha);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
}

TEST_F(AlphaCommandsTest, FloatingContentIsMergedBeforeTheIconIsShown) {
  given(anyEntry(32, 32));
  rooms.clipboard.hold(Surface(4, 4, kWhite));
  rooms.drawing.clipboardCommands.doPaste(true);
  ASSERT_TRUE(state.mRegionExists && state.mPendingPaint);
  commands.mnuAlphaSub(kEditAlpha);
  ASSERT_EQ(screen.icons.size(), 1U);
  EXPECT_EQ(screen.icons[0].image.GetPixel(3, 3), kWhite);
  EXPECT_EQ(screen.icons[0].mask.GetPixel(3, 3), kBlack);
  EXPECT_FALSE(state.mRegionExists || state.mPendingPaint);
  EXPECT_TRUE(panelIsUpToDate());
}

TEST_F(AlphaCommandsTest, MissingValuesAreReportedAndTheIconIsShownWithoutThem) {
  given(anyEntry(32, 32));
  alphaRec() = AlphaMatrix();
  boxes.expectTold("Original alpha values for current icon missing/removed.", BoxIcon::Exclamation);
  commands.mnuAlphaSub(kEditAlpha);
  ASSERT_EQ(screen.icons.size(), 1U);
  EXPECT_FALSE(screen.icons[0].hasAlphaValues());
}

TEST_F(AlphaCommandsTest, ValuesOfAnotherSizeAreReported) {
  given(anyEntry(32, 32));
  state.picAlpha = Surface(16, 16, kWhite);
  boxes.expectTold("Failed to copy alpha values for current icon.", BoxIcon::Exclamation);
  commands.mnuAlphaSub(kEditAlpha);
  ASSERT_EQ(screen.icons.size(), 1U);
  EXPECT_FALSE(screen.icons[0].hasAlphaValues());
}

// No outcome.

TEST_F(AlphaCommandsTest, AnAbortedSessionChangesNothing) {
  const std::string path = given(anyEntry(32, 32));
  const IconImage before = currentIcon(state);
  const Bytes file = bytesOf(path);
  rooms.drawing.history.recordUndo();
  commands.mnuAlphaSub(kEditAlpha);
  EXPECT_TRUE(samePixels(state.picImage, before.image));
  EXPECT_EQ(currentIcon(state).alpha, before.alpha);
  EXPECT_FALSE(record().modified);
  EXPECT_EQ(rooms.drawing.history.undoCount(), 2);
  EXPECT_EQ(bytesOf(path), file);
  EXPECT_TRUE(display.announced.empty());
}

TEST_F(AlphaCommandsTest, TheOutcomeForAnIconThatHasBeenReplacedIsDropped) {
  given(anyEntry(32, 32));
  screen.onAlpha = [this](const IconImage& icon) {
    EXPECT_TRUE(openQuietly(folder.write("other.ico", build(anyEntry(32, 32)))));
    return AlphaOutcome{AlphaResult::SaveChanged, target, withAlpha(icon, 9)};
  };
  commands.mnuAlphaSub(kEditAlpha);
  EXPECT_FALSE(std::filesystem::exists(target));
  EXPECT_EQ(record().path.trimmed(), folder.path("other.ico"));
  EXPECT_NE(currentIcon(state).alpha, AlphaMatrix(32, 32, 9));
}

TEST_F(AlphaCommandsTest, AContainerThatIsClearedInTheScreenStaysEmpty) {
  given(anyEntry(32, 32));
  screen.onAlpha = [this](const IconImage& icon) {
    rooms.document.iconsPanel.showEmptyContainer();
    return AlphaOutcome{AlphaResult::SaveChanged, target, withAlpha(icon, 9)};
  };
  commands.mnuAlphaSub(kEditAlpha);
  EXPECT_FALSE(record().used || record().present);
  EXPECT_FALSE(std::filesystem::exists(target));
}

// Changed alpha.

TEST_F(AlphaCommandsTest, ChangedValuesAreSavedAndBecomeThoseOfTheContainer) {
  given(anyEntry(32, 32));
  record().modified = true;
  saveWith(77);
  EXPECT_EQ(currentIcon(state).alpha, AlphaMatrix(32, 32, 77));
  EXPECT_EQ(alphaRec(), AlphaMatrix(32, 32, 77));
  EXPECT_EQ(record().path.trimmed(), target);
  EXPECT_EQ(record().sourceLabel.trimmed(), "ICO file");
  EXPECT_FALSE(record().modified || record().neverSaved || record().fromMultiIconFile);
  EXPECT_EQ(display.announced, std::vector<std::string>{news::kSaved});
  EXPECT_EQ(editor.count("AddHistory " + target), 1);
  EXPECT_EQ(state.screen.lblStatusPanel[static_cast<std::size_t>(StatusPanel::Path)], target);
  const Decoded saved = decode(bytesOf(target));
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) {
      ASSERT_EQ(saved.alpha.at(x, y), saved.mask.GetPixel(x, y) == kBlack ? 77 : 255) << x << " " << y;
    }
}

TEST_F(AlphaCommandsTest, UndoStartsAgainOnlyWhenAPixelHasChanged) {
  given(anyEntry(32, 32));
  rooms.drawing.history.recordUndo();
  screen.onAlpha = [this](const IconImage& icon) { return AlphaOutcome{AlphaResult::SaveChanged, target, icon}; };
  commands.mnuAlphaSub(kEditAlpha);
  EXPECT_EQ(rooms.drawing.history.undoCount(), 2) << "the same values";
  saveWith(77);
  EXPECT_EQ(rooms.drawing.history.undoCount(), 1) << "other values";
}

// The history is recorded after the file is written, which processes events.
TEST_F(AlphaCommandsTest, AnIconThatComesUpAfterTheWritingKeepsItsCopy) {
  given(anyEntry(32, 32));
  rooms.document.arrival.fillContainer(1, transparentIcon(32), NewRecord());
  screen.onAlpha = [this](const IconImage& icon) {
    pump.inside = [this] {
      rooms.document.iconsPanel.SwitchContainer(1);
      state.picMask.SetPixelV(4, 4, kBlack);
    };
    return AlphaOutcome{AlphaResult::SaveChanged, target, withAlpha(icon, 77)};
  };
  commands.mnuAlphaSub(kEditAlpha);
  ASSERT_EQ(state.mCurContainer, 1);
  EXPECT_EQ(state.picPanelMask[1].GetPixel(4, 4), kWhite) << "what is not stored yet";
  EXPECT_EQ(state.mAlphaRecs[0], AlphaMatrix(32, 32, 77));
  EXPECT_EQ(state.mIconRecs[0].path.trimmed(), target);
  EXPECT_EQ(state.mIconRecs[1].path.trimmed(), "Untitled");
  EXPECT_EQ(editor.count("AddHistory " + target), 1);
}

TEST_F(AlphaCommandsTest, AnOutcomeWithoutValuesIsReportedAndChangesNothing) {
  given(anyEntry(32, 32));
  const AlphaMatrix before = alphaRec();
  screen.onAlpha = [this](IconImage icon) {
    icon.alpha = AlphaMatrix();
    return AlphaOutcome{AlphaResult::SaveChanged, target, icon};
  };
  boxes.expectTold("Failed to copy the Alpha Channel values to record.", BoxIcon::Exclamation);
  commands.mnuAlphaSub(kEditAlpha);
  EXPECT_EQ(alphaRec(), before);
  EXPECT_TRUE(record().hasAlpha);
  EXPECT_FALSE(std::filesystem::exists(target));
}

// New alpha.

TEST_F(AlphaCommandsTest, AnIconThatGotAlphaIsOneOf32Bits) {
  for (const int bits : {4, 24}) {
    given(anyEntry(48, bits));
    ASSERT_FALSE(state.screen.imgAlphaOnStatusPanel);
    boxes.expectAsked(bits == 24 ? kNoChannel : kNotTrueColor, BoxAnswer::Yes);
    saveWith(128, AlphaResult::SaveNew);
    EXPECT_EQ(record().depth(), (ColorDepth{kTrueColor, 32})) << bits;
    EXPECT_EQ(record().headerDepth(), (ColorDepth{kTrueColor, 32}));
    EXPECT_TRUE(record().hasAlpha);
    EXPECT_EQ(alphaRec(), AlphaMatrix(48, 48, 128));
    EXPECT_EQ(bytesOf(target).size(), 22U + 40 + 48 * 48 * 4 + 48 * 8);
    EXPECT_TRUE(state.screen.imgAlphaOnStatusPanel);
    EXPECT_EQ(state.screen.lblStatusPanel[static_cast<std::size_t>(StatusPanel::Alpha)], "Alpha");
    EXPECT_EQ(state.screen.lblStatusPanel[static_cast<std::size_t>(StatusPanel::Discrepancy)], "");
  }
}

TEST_F(AlphaCommandsTest, OpaqueValuesMakeATableAndKeepTheUndoHistory) {
  given(anyEntry(32, 24));
  rooms.drawing.history.recordUndo();
  boxes.expectAsked(kNoChannel, BoxAnswer::Yes);
  saveWith(255, AlphaResult::SaveNew);
  EXPECT_EQ(alphaRec(), AlphaMatrix(32, 32, 255));
  EXPECT_EQ(rooms.drawing.history.undoCount(), 2);
}

TEST_F(AlphaCommandsTest, ANewIconAndACursorBecomeIconFiles) {
  saver.doNewIcon(32);
  boxes.expectAsked(kNotTrueColor, BoxAnswer::Yes);
  saveWith(40, AlphaResult::SaveNew);
  EXPECT_EQ(record().sourceLabel.trimmed(), "ICO file");
  record().isCursor = record().neverSaved = true;
  record().hotspotX = 3;
  saveWith(41);
  EXPECT_FALSE(record().isCursor || record().neverSaved);
  EXPECT_EQ(record().hotspotX, 0);
}

// Conversion to 24 bits.

TEST_F(AlphaCommandsTest, AConvertedIconHasTheColorsThatItShowedAndNoAlpha) {
  given(anyEntry(32, 32));
  rooms.drawing.history.recordUndo();
  const IconImage expected = convertRetainAlpha(currentIcon(state));
  convert();
  EXPECT_TRUE(samePixels(state.picImage, expected.image));
  EXPECT_TRUE(samePixels(state.picMask, expected.mask));
  EXPECT_TRUE(samePixels(state.picAlpha, Surface(32, 32, kWhite)));
  EXPECT_EQ(alphaRec(), AlphaMatrix());
  EXPECT_TRUE(panelIsUpToDate());
  EXPECT_EQ(record().depth(), (ColorDepth{kTrueColor, 24}));
  EXPECT_EQ(record().headerDepth(), (ColorDepth{kTrueColor, 24}));
  EXPECT_FALSE(record().hasAlpha || record().modified);
  EXPECT_EQ(record().path.trimmed(), target);
  EXPECT_FALSE(state.screen.imgAlphaOnStatusPanel);
  EXPECT_EQ(rooms.drawing.history.undoCount(), 1);
  EXPECT_TRUE(samePixels(decode(bytesOf(target)).image, expected.image));
  EXPECT_EQ(bytesOf(target)[14 + 22], 24);
}

TEST_F(AlphaCommandsTest, FewColorsAreOfferedAsAPalette) {
  struct Case {
    Rgb color;
    int colors, bits;
  };
  for (const Case& now :
       {Case{{255, 255, 255, 255}, 2, 1}, Case{{255, 0, 0, 255}, 16, 4}, Case{{1, 2, 3, 255}, 256, 8}})
    for (const BoxAnswer answer : {BoxAnswer::Yes, BoxAnswer::No}) {
      given(entryOf(plainPicture(16, now.color)));
      boxes.expectAsked(paletteQuestion(now.colors), answer);
      convert();
      const bool asPalette = answer == BoxAnswer::Yes;
      EXPECT_EQ(record().depth(), asPalette ? (ColorDepth{now.colors, now.bits}) : (ColorDepth{kTrueColor, 24}));
      EXPECT_EQ(record().headerDepth(), record().depth());
      EXPECT_EQ(bytesOf(target)[14 + 22], asPalette ? now.bits : 24) << now.colors;
      EXPECT_FALSE(record().hasAlpha);
    }
}

TEST_F(AlphaCommandsTest, APaletteIsNotOfferedForManyColors) {
  given(anyEntry(48, 32));
  convert();
  EXPECT_EQ(record().depth(), (ColorDepth{kTrueColor, 24}));
}

// 255 colours without black and white count as 256; with these two, a palette has no room for them.
TEST_F(AlphaCommandsTest, APaletteThatAFileCannotHaveIsNotOffered) {
  Picture picture = anyPicture(16, 32);
  picture.color = [](int x, int y) { return Rgb{1 + std::min(16 * y + x, 254), 7, 9, 255}; };
  picture.transparent = [](int, int) { return false; };
  given(entryOf(picture));
  int colors = 0;
  GetColorBitCount_Image(state.picImage, colors);
  ASSERT_EQ(colors, 256);
  convert();
  EXPECT_EQ(record().depth(), (ColorDepth{kTrueColor, 24}));
  EXPECT_TRUE(samePixels(decode(bytesOf(target)).image, state.picImage));
}

// The user agrees to a box, during which another program or a timer opens another icon.
class ReplacingBoxes : public MessageBoxes {
 public:
  std::function<void()> inside;
  BoxAnswer show(const std::string&, BoxButtons, BoxIcon, BoxAnswer) override { return inside(), BoxAnswer::Yes; }
};

TEST_F(AlphaCommandsTest, AnIconThatIsReplacedDuringAQuestionGetsNothing) {
  ReplacingBoxes replacing;
  replacing.inside = [this] { EXPECT_TRUE(openQuietly(folder.write("other.ico", build(anyEntry(16, 32))))); };
  const Context context{state, editor, display, replacing, pump};
  Files other{context, rooms.document, rooms.drawing, rooms.dialog, folder.path("scratch.ico")};
  AlphaCommands asking{other.context(), other.iconSaver};
  asking.attach(&screen);
  // The question about the palette, then that about the file of another container.
  for (const AlphaResult result : {AlphaResult::ConvertTo24, AlphaResult::SaveChanged}) {
    given(entryOf(plainPicture(16, {1, 2, 3, 255})));
    state.mIconRecs[3].path = result == AlphaResult::SaveChanged ? target : "";
    screen.onAlpha = [&](const IconImage& icon) { return AlphaOutcome{result, target, icon}; };
    asking.mnuAlphaSub(kEditAlpha);
    EXPECT_FALSE(std::filesystem::exists(target));
    EXPECT_TRUE(record().hasAlpha);
    EXPECT_EQ(record().path.trimmed(), folder.path("other.ico"));
  }
}

// Targets.

TEST_F(AlphaCommandsTest, TheMultiIconFileOfTheIconIsWrittenOverOnlyAfterAYes) {
  const std::string path = folder.write("target.ico", build(IcoFile{{anyEntry(32, 32), anyEntry(16, 4)}, 0, 1, {}}));
  ASSERT_TRUE(openQuietly(path));
  ASSERT_TRUE(record().fromMultiIconFile && record().hasAlpha);
  const Bytes before = bytesOf(path);
  const AlphaMatrix values = alphaRec();
  boxes.expectAsked(kReminder, BoxAnswer::No);
  saveWith(77);
  EXPECT_EQ(bytesOf(path), before);
  EXPECT_EQ(alphaRec(), values);
  EXPECT_TRUE(record().fromMultiIconFile);
  boxes.expectAsked(kReminder, BoxAnswer::Yes);
  saveWith(77);
  EXPECT_EQ(bytesOf(path)[4], 1);
  EXPECT_EQ(alphaRec(), AlphaMatrix(32, 32, 77));
  EXPECT_FALSE(record().fromMultiIconFile);
  EXPECT_EQ(record().multiIconIndex, 0);
}

TEST_F(AlphaCommandsTest, AnotherFileThanThatOfTheIconNeedsNoReminder) {
  ASSERT_TRUE(openQuietly(folder.write("many.ico", build(IcoFile{{anyEntry(32, 32), anyEntry(16, 4)}, 0, 1, {}}))));
  saveWith(77);
  EXPECT_EQ(record().path.trimmed(), target);
}

TEST_F(AlphaCommandsTest, AFileThatAnotherContainerHoldsIsAskedAboutAtEachOutcome) {
  folder.write("target.ico", {'o', 'l', 'd'});
  given(anyEntry(32, 32));
  state.mIconRecs[3].path = target;
  const IconImage before = currentIcon(state);
  const std::string held = "Container 4 holds an icon of this file.\nProceed?";
  for (const auto& save :
       {std::function<void()>([this] { saveWith(77); }), std::function<void()>([this] { convert(); })}) {
    boxes.expectAsked(held, BoxAnswer::No);
    save();
    EXPECT_EQ(bytesOf(target), (Bytes{'o', 'l', 'd'}));
    EXPECT_EQ(currentIcon(state).alpha, before.alpha);
    EXPECT_TRUE(samePixels(state.picImage, before.image));
  }
  boxes.expectAsked(held, BoxAnswer::Yes);
  saveWith(77);
  EXPECT_EQ(alphaRec(), AlphaMatrix(32, 32, 77));
}

// The target is a folder at first.
TEST_F(AlphaCommandsTest, TheScreenComesUpAgainWithItsValuesUntilTheyAreSavedOrGivenUp) {
  for (const AlphaResult result : {AlphaResult::SaveNew, AlphaResult::ConvertTo24}) {
    given(entryOf(anyPicture(16, 32)));
    const std::string folderOfThatName = folder.path("a folder.ico");
    std::filesystem::create_directory(folderOfThatName);
    const AlphaMatrix painted(16, 16, 77);
    const auto saveTo = [&](const std::string& path) {
      IconImage icon = withAlpha(currentIcon(state), 77);
      return AlphaOutcome{result, path, result == AlphaResult::SaveNew ? icon : convertRetainAlpha(icon), painted};
    };
    const int former = screen.resumptions;
    screen.onAlpha = [&](const IconImage&) { return saveTo(folderOfThatName); };
    screen.onResumed = [&](const AlphaMatrix& values) {
      EXPECT_EQ(values, painted);
      return saveTo(screen.resumptions - former < 3 ? folderOfThatName : target);
    };
    const auto expectPaletteQuestion = [&] {
      if (result == AlphaResult::ConvertTo24)
        boxes.expectAsked("The actual color depth of image is of 256-color only.\nSave with this palette mode instead?",
                          BoxAnswer::No);
    };
    for (int failure = 0; failure < 3; ++failure) {
      expectPaletteQuestion();
      boxes.expectTold(kReadOnlyFile, BoxIcon::Exclamation);
    }
    expectPaletteQuestion();
    commands.mnuAlphaSub(kEditAlpha);
    EXPECT_EQ(screen.resumptions, former + 3);
    EXPECT_EQ(record().path.trimmed(), target);
    EXPECT_EQ(record().hasAlpha, result == AlphaResult::SaveNew);
  }
}

TEST_F(AlphaCommandsTest, AFileThatAnotherProgramHasChangedOrUpdatesIsNotWritten) {
  const std::string path = given(anyEntry(32, 32), "target.ico");
  const AlphaMatrix values = alphaRec();
  const Bytes changed = build(IcoFile{{anyEntry(16, 4), anyEntry(32, 4)}, 0, 1, {}});
  folder.write("target.ico", changed);
  boxes.expectTold(path + "\n\nThis file has been changed meanwhile.\nNothing has been written to it.", BoxIcon::None);
  saveWith(77);
  EXPECT_EQ(bytesOf(path), changed);
  EXPECT_EQ(alphaRec(), values);
  folder.write("target.ico", build(anyEntry(32, 32)));
  const auto lock = FileLock::take(path, std::chrono::seconds(0));
  ASSERT_TRUE(lock);
  boxes.expectTold(path + "\n\nAnother program is changing this file.\nNothing has been written to it.\n",
                   BoxIcon::Exclamation);
  saveWith(77);
  EXPECT_EQ(bytesOf(path), build(anyEntry(32, 32)));
  EXPECT_EQ(alphaRec(), values);
}

}  // namespace
}  // namespace gp::test

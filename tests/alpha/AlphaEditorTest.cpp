// The rules of the alpha screen.
#include "alpha/AlphaConversion.h"
#include "alpha/AlphaEditor.h"
#include "document/EditState.h"
#include "document/IconSizes.h"
#include "document/ListTables.h"
#include "files/Files.h"
#include "support/Rooms.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <utility>

namespace gp::test {
namespace {

constexpr const char* kTo32 = "Not all hardware peripherals are always capable of\nsupporting True Color.  Proceed?";
constexpr const char* kTo24 = "Change the current icon to 24 BPP?";
constexpr const char* kRestore = "Restore to original alpha values?";
constexpr const char* kExit = "Exit without saving?";
constexpr AlphaButton kButtons[] = {AlphaButton::ConvertTo24, AlphaButton::ChangeTo32, AlphaButton::Save,
                                    AlphaButton::Abort};

bool sameSurface(const Surface& a, const Surface& b) { return std::ranges::equal(a.pixels(), b.pixels()); }

// Painted in the left half.
IconImage halfIcon(int size = 32) {
  IconImage icon = transparentIcon(size);
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size / 2; ++x) {
      icon.image.SetPixelV(x, y, rgb(x + 100, y, 7));
      icon.mask.SetPixelV(x, y, kBlack);
    }
  return icon;
}

IconImage withAlpha(IconImage icon, int alpha) {
  icon.alpha = AlphaMatrix(icon.width(), icon.height(), static_cast<std::uint8_t>(alpha));
  return icon;
}

class AlphaScreen : public testing::Test {
 protected:
  void open(const IconImage& icon, AlphaMode mode = AlphaMode::Edit) {
    editor = std::make_unique<AlphaEditor>(icon, mode, files.context());
  }
  void openWithAlpha(int alpha = 60, AlphaMode mode = AlphaMode::Edit) { open(withAlpha(halfIcon(), alpha), mode); }
  void openAndChange(AlphaMode mode = AlphaMode::Edit) {
    open(halfIcon(), mode);
    boxes.expectAsked(kTo32, BoxAnswer::Yes);
    editor->cmdAlpha(AlphaButton::ChangeTo32);
  }
  // The mouse in the middle of an icon pixel.
  double at(int pixel) const { return (pixel + 0.5) * editor->canvas().magnification(); }
  void press(int x, int y, bool straight = false) { editor->press(at(x), at(y), straight); }
  void move(int x, int y, bool straight = false) { editor->move(at(x), at(y), straight); }
  void paint(int x, int y, int value) {
    editor->setValue(value);
    press(x, y);
    editor->release();
  }
  int alphaAt(int x, int y) const { return editor->canvas().icon().alpha.at(x, y); }
  std::vector<AlphaButton> enabled() const {
    std::vector<AlphaButton> buttons;
    std::ranges::copy_if(kButtons, std::back_inserter(buttons), [this](AlphaButton b) { return editor->isEnabled(b); });
    return buttons;
  }
  void expectReadouts(const char* position, const char* color, const char* alpha) const {
    EXPECT_EQ(editor->positionText(), position);
    EXPECT_EQ(editor->colorText(), color);
    EXPECT_EQ(editor->alphaText(), alpha);
  }
  void expectOpenWithoutOutcome() const {
    EXPECT_FALSE(editor->isClosed());
    EXPECT_EQ(editor->outcome().result, AlphaResult::None);
    EXPECT_EQ(editor->outcome().target, "");
  }

  TempFolder folder;
  Rooms rooms;
  EditState& state = rooms.state;
  ScriptedBoxes& boxes = rooms.boxes;
  ScriptedDialogs& dialogs = rooms.dialogs;
  Files files{rooms.context, rooms.document, rooms.drawing, rooms.dialog, folder.file("gptmp.ico")};
  std::unique_ptr<AlphaEditor> editor;
  const std::string target = folder.file("out.ico");
};

// Opening.

TEST_F(AlphaScreen, TheCaptionIsThatOfTheMenuEntry) {
  openWithAlpha();
  EXPECT_STREQ(editor->caption(), "View/Edit/Create Alpha Channel");
  openWithAlpha(60, AlphaMode::Convert);
  EXPECT_STREQ(editor->caption(), "Convert 32 to 24 BPP (& Retain Alpha Effects)");
}

TEST_F(AlphaScreen, AnIconWithAlphaCanBeEditedAtOnce) {
  openWithAlpha();
  EXPECT_TRUE(editor->hadAlpha());
  EXPECT_TRUE(editor->isEditing());
  EXPECT_FALSE(editor->isChanged());
  EXPECT_TRUE(editor->canPaint());
  EXPECT_TRUE(editor->isRestoreEnabled());
  EXPECT_EQ(enabled(), (std::vector{AlphaButton::ConvertTo24, AlphaButton::Save, AlphaButton::Abort}));
  expectOpenWithoutOutcome();
}

TEST_F(AlphaScreen, AnIconWithoutAlphaIsOnlyViewed) {
  open(halfIcon());
  EXPECT_FALSE(editor->hadAlpha());
  EXPECT_FALSE(editor->isEditing());
  EXPECT_FALSE(editor->canPaint());
  EXPECT_FALSE(editor->isRestoreEnabled());
  EXPECT_EQ(enabled(), (std::vector{AlphaButton::ChangeTo32, AlphaButton::Abort}));
  paint(1, 1, 9);
  EXPECT_EQ(alphaAt(1, 1), 255);
  EXPECT_FALSE(editor->isChanged());
  for (const AlphaButton button : {AlphaButton::ConvertTo24, AlphaButton::Save}) editor->cmdAlpha(button);
  editor->cmdRestoreAlpha();
  expectOpenWithoutOutcome();
}

TEST_F(AlphaScreen, TheModeThatConvertsHidesTheValues) {
  openWithAlpha(60, AlphaMode::Convert);
  EXPECT_FALSE(editor->canPaint());
  EXPECT_FALSE(editor->isRestoreEnabled());
  EXPECT_EQ(enabled(), (std::vector{AlphaButton::ConvertTo24, AlphaButton::Save, AlphaButton::Abort}));
  paint(1, 1, 9);
  EXPECT_EQ(alphaAt(1, 1), 60);
  EXPECT_FALSE(editor->isChanged());
}

TEST_F(AlphaScreen, EachSizeFillsTheSameArea) {
  for (const int size : kIconSides) {
    open(withAlpha(halfIcon(size), 60));
    EXPECT_EQ(editor->canvas().picDisp().width(), 384);
    paint(size / 2 - 1, size - 1, 9);
    EXPECT_EQ(alphaAt(size / 2 - 1, size - 1), 9) << size;
    editor->press(383.9, 383.9, false);
    EXPECT_EQ(editor->positionText(), "X= " + std::to_string(size - 1) + "  Y= " + std::to_string(size - 1));
  }
}

TEST_F(AlphaScreen, TheGridIsThatOfTheEditingArea) {
  openWithAlpha(255);
  const Color lines = editor->canvas().picDisp().GetPixel(12, 5);
  EXPECT_EQ(lines, rgb(101 & 0x60, 0, 7 & 0x60));
  state.gGridColor = kNoGrid;
  openWithAlpha(255);
  EXPECT_EQ(editor->canvas().picDisp().GetPixel(12, 5), rgb(101, 0, 7));
}

// The value.

TEST_F(AlphaScreen, TheListHasAllValuesInOrder) {
  const FilledList list = fillList("cboAlphaValue");
  ASSERT_EQ(list.entries.size(), 256u);
  for (int value = 0; value < 256; ++value)
    EXPECT_EQ(list.entries.at(static_cast<std::size_t>(value)), std::to_string(value));
  openWithAlpha();
  EXPECT_EQ(editor->value(), list.first);
}

TEST_F(AlphaScreen, AValueShowsItsTextAndShade) {
  openWithAlpha();
  for (const auto& [value, shade] : {std::pair{255, 0}, {254, 3}, {128, 128}, {2, 255}, {0, 255}}) {
    editor->setValue(value);
    EXPECT_EQ(editor->lblAlpha(), std::to_string(value));
    EXPECT_EQ(editor->picAlphaValue(), rgb(shade, shade, shade)) << value;
  }
}

TEST_F(AlphaScreen, StepsDownEndAtZero) {
  openWithAlpha();
  for (const auto& [from, to] : {std::pair{255, 238}, {35, 18}, {18, 1}, {17, 0}, {10, 0}, {1, 0}, {0, 0}}) {
    editor->setValue(from);
    editor->stepDown();
    EXPECT_EQ(editor->value(), to) << from;
  }
}

TEST_F(AlphaScreen, StepsUpEndAt254) {
  openWithAlpha();
  for (const auto& [from, to] : {std::pair{0, 17},
                                 {10, 27},
                                 {236, 253},
                                 {237, 254},
                                 {238, 254},
                                 {240, 254},
                                 {253, 254},
                                 {254, 254},
                                 {255, 255}}) {
    editor->setValue(from);
    editor->stepUp();
    EXPECT_EQ(editor->value(), to) << from;
  }
}

// Painting.

TEST_F(AlphaScreen, APressPaintsThePixelUnderTheMouse) {
  openWithAlpha();
  editor->setValue(9);
  editor->press(12 * 3 + 11.9, 12 * 5, false);
  EXPECT_EQ(alphaAt(3, 5), 9);
  AlphaMatrix expected(32, 32, 60);
  expected.at(3, 5) = 9;
  EXPECT_EQ(editor->canvas().icon().alpha, expected);
  EXPECT_TRUE(editor->isChanged());
}

TEST_F(AlphaScreen, AMovePaintsWhileTheButtonIsHeld) {
  openWithAlpha();
  editor->setValue(9);
  move(1, 1);
  EXPECT_EQ(alphaAt(1, 1), 60);
  press(2, 2);
  move(4, 4);
  editor->release();
  move(6, 6);
  EXPECT_EQ(alphaAt(2, 2), 9);
  EXPECT_EQ(alphaAt(3, 3), 60) << "a fast drag leaves gaps";
  EXPECT_EQ(alphaAt(4, 4), 9);
  EXPECT_EQ(alphaAt(6, 6), 60);
}

TEST_F(AlphaScreen, OutsideTheIconNothingIsPainted) {
  openWithAlpha();
  for (const auto& [x, y] : {std::pair{-0.5, 5.0}, {5.0, -0.5}, {384.0, 5.0}, {5.0, 384.0}, {-1e9, 5.0}, {1e9, 1e9}}) {
    editor->press(x, y, false);
    expectReadouts("", "", "");
  }
  EXPECT_EQ(editor->canvas().icon().alpha, AlphaMatrix(32, 32, 60));
  EXPECT_FALSE(editor->isChanged());
  press(-3, 4);
  move(3, 4);
  EXPECT_EQ(alphaAt(3, 4), 128) << "a drag can come in from outside";
}

TEST_F(AlphaScreen, ATransparentPixelGetsNoValue) {
  openWithAlpha();
  paint(20, 4, 9);
  EXPECT_EQ(alphaAt(20, 4), 60);
  EXPECT_FALSE(editor->isChanged());
}

TEST_F(AlphaScreen, PaintingLeavesColorsAndMask) {
  const IconImage icon = halfIcon();
  openWithAlpha();
  paint(3, 3, 0);
  EXPECT_TRUE(sameSurface(editor->canvas().icon().image, icon.image));
  EXPECT_TRUE(sameSurface(editor->canvas().icon().mask, icon.mask));
  EXPECT_EQ(alphaAt(3, 3), 0);
  EXPECT_EQ(editor->canvas().picIconAlpha().GetPixel(3, 3), kGround);
  EXPECT_EQ(editor->canvas().picMaskAlpha().GetPixel(3, 3), kWhite);
}

TEST_F(AlphaScreen, TheSameValueAgainIsAChange) {
  openWithAlpha(60);
  paint(3, 3, 60);
  EXPECT_TRUE(editor->isChanged());
}

TEST_F(AlphaScreen, ShiftPaintsALineFromTheLastPixel) {
  openWithAlpha();
  paint(2, 2, 9);
  press(2, 8, true);
  editor->release();
  for (int y = 2; y <= 8; ++y) EXPECT_EQ(alphaAt(2, y), 9) << y;
  EXPECT_EQ(alphaAt(2, 9), 60);
}

TEST_F(AlphaScreen, TheBrushIsThatOfTheMainForm) {
  openWithAlpha();
  EXPECT_EQ(editor->brushIndex(), 0);
  editor->setBrush(2);
  EXPECT_EQ(editor->brushIndex(), 2);
  paint(4, 4, 9);
  EXPECT_EQ(alphaAt(6, 6), 9);
  EXPECT_EQ(alphaAt(7, 6), 60);
  EXPECT_EQ(alphaAt(3, 4), 60);
  EXPECT_EQ(fillList("cboBrushSize").entries.size(), static_cast<std::size_t>(AlphaBrush::kSizes));
}

// Readouts.

TEST_F(AlphaScreen, TheReadoutsShowThePixelUnderTheMouse) {
  openWithAlpha();
  expectReadouts("", "", "");
  move(3, 5);
  expectReadouts("X= 3  Y= 5", "RGB:  103, 5, 7", "Alpha =  60");
  move(0, 0);
  expectReadouts("X= 0  Y= 0", "RGB:  100, 0, 7", "Alpha =  60");
  move(20, 31);
  expectReadouts("X= 20  Y= 31", "RGB:  N/A", "Alpha =  N/A");
  editor->leave();
  expectReadouts("", "", "");
  paint(3, 5, 9);
  expectReadouts("X= 3  Y= 5", "RGB:  103, 5, 7", "Alpha =  9");
}

TEST_F(AlphaScreen, WithoutAlphaValuesTheReadoutsAreNotAvailable) {
  open(halfIcon());
  move(3, 5);
  expectReadouts("X= 3  Y= 5", "RGB:  N/A", "Alpha =  N/A");
  boxes.expectAsked(kTo32, BoxAnswer::Yes);
  editor->cmdAlpha(AlphaButton::ChangeTo32);
  expectReadouts("X= 3  Y= 5", "RGB:  103, 5, 7", "Alpha =  255");
}

TEST_F(AlphaScreen, AnyPixelCanBeSpoken) {
  openWithAlpha();
  EXPECT_EQ(editor->pixelText(3, 5), "X= 3  Y= 5  RGB:  103, 5, 7  Alpha =  60");
  EXPECT_EQ(editor->pixelText(20, 5), "X= 20  Y= 5  transparent");
  open(halfIcon());
  EXPECT_EQ(editor->pixelText(3, 5), "X= 3  Y= 5  RGB:  N/A  Alpha =  N/A");
}

// Restore.

TEST_F(AlphaScreen, RestoreBringsTheOriginalValuesBack) {
  openWithAlpha();
  paint(3, 3, 9);
  boxes.expectAsked(kRestore, BoxAnswer::No);
  editor->cmdRestoreAlpha();
  EXPECT_EQ(alphaAt(3, 3), 9);
  EXPECT_TRUE(editor->isChanged());
  boxes.expectAsked(kRestore, BoxAnswer::Yes);
  editor->cmdRestoreAlpha();
  EXPECT_EQ(editor->canvas().icon().alpha, AlphaMatrix(32, 32, 60));
  EXPECT_FALSE(editor->isChanged());
  EXPECT_TRUE(
      sameSurface(editor->canvas().picIconAlpha(), AlphaCanvas(withAlpha(halfIcon(), 60), Grid()).picIconAlpha()));
  EXPECT_TRUE(editor->mayClose()) << "nothing is changed";
}

TEST_F(AlphaScreen, ALineAfterRestoreStartsAtItsPress) {
  openWithAlpha();
  paint(3, 3, 9);
  boxes.expectAsked(kRestore, BoxAnswer::Yes);
  editor->cmdRestoreAlpha();
  press(8, 8, true);
  EXPECT_EQ(alphaAt(8, 8), 9);
  EXPECT_EQ(alphaAt(3, 3), 60);
  EXPECT_EQ(alphaAt(5, 5), 60);
}

// The change to 32 bits.

TEST_F(AlphaScreen, TheChangeTo32BitsAsksAndMakesAllOpaque) {
  open(halfIcon());
  boxes.expectAsked(kTo32, BoxAnswer::No);
  editor->cmdAlpha(AlphaButton::ChangeTo32);
  EXPECT_FALSE(editor->isEditing());
  EXPECT_FALSE(editor->isChanged());
  boxes.expectAsked(kTo32, BoxAnswer::Yes);
  editor->cmdAlpha(AlphaButton::ChangeTo32);
  EXPECT_TRUE(editor->isEditing());
  EXPECT_FALSE(editor->hadAlpha());
  EXPECT_TRUE(editor->canPaint());
  EXPECT_TRUE(editor->isChanged());
  EXPECT_EQ(editor->canvas().icon().alpha, AlphaMatrix(32, 32, 255));
  EXPECT_EQ(enabled(), (std::vector{AlphaButton::ConvertTo24, AlphaButton::Save, AlphaButton::Abort}));
  expectOpenWithoutOutcome();
  paint(3, 3, 9);
  EXPECT_EQ(alphaAt(3, 3), 9);
}

TEST_F(AlphaScreen, RestoreAfterTheChangeMakesAllOpaque) {
  openAndChange();
  paint(3, 3, 9);
  boxes.expectAsked(kRestore, BoxAnswer::Yes);
  editor->cmdRestoreAlpha();
  EXPECT_EQ(editor->canvas().icon().alpha, AlphaMatrix(32, 32, 255));
}

TEST_F(AlphaScreen, AnIconWithAlphaIsNotChangedTo32Bits) {
  openWithAlpha();
  editor->cmdAlpha(AlphaButton::ChangeTo32);
  EXPECT_FALSE(editor->isChanged());
}

TEST_F(AlphaScreen, TheModeThatConvertsWaitsForTheChangeTo32Bits) {
  open(halfIcon(), AlphaMode::Convert);
  EXPECT_EQ(enabled(), (std::vector{AlphaButton::ChangeTo32, AlphaButton::Abort}));
  editor->cmdAlpha(AlphaButton::ConvertTo24);
  openAndChange(AlphaMode::Convert);
  EXPECT_FALSE(editor->canPaint()) << "the panel stays hidden";
  dialogs.paths = {target};
  boxes.expectAsked(kTo24, BoxAnswer::Yes);
  editor->cmdAlpha(AlphaButton::ConvertTo24);
  EXPECT_EQ(editor->outcome().result, AlphaResult::ConvertTo24);
  EXPECT_TRUE(sameSurface(editor->outcome().icon.image, halfIcon().image));
}

// Save.

TEST_F(AlphaScreen, SavingAsksForAFileAndThenWhetherToProceed) {
  openWithAlpha();
  paint(3, 3, 9);
  dialogs.paths = {target};
  boxes.expectAsked("Proceed to save to " + target + "?", BoxAnswer::Yes);
  editor->cmdAlpha(AlphaButton::Save);
  EXPECT_TRUE(editor->isClosed());
  EXPECT_EQ(editor->outcome().result, AlphaResult::SaveChanged);
  EXPECT_EQ(editor->outcome().target, target);
  AlphaMatrix expected(32, 32, 60);
  expected.at(3, 3) = 9;
  EXPECT_EQ(editor->outcome().icon.alpha, expected);
  EXPECT_TRUE(sameSurface(editor->outcome().icon.image, halfIcon().image));
  EXPECT_TRUE(sameSurface(editor->outcome().icon.mask, halfIcon().mask));
  EXPECT_TRUE(editor->mayClose()) << "there is an outcome";
}

TEST_F(AlphaScreen, AnIconThatHadNoAlphaIsSavedAsNew) {
  openAndChange();
  paint(3, 3, 0);
  dialogs.paths = {target};
  boxes.expectAsked("Proceed to save to " + target + "?", BoxAnswer::Yes);
  editor->cmdAlpha(AlphaButton::Save);
  EXPECT_EQ(editor->outcome().result, AlphaResult::SaveNew);
  EXPECT_EQ(editor->outcome().target, target);
  AlphaMatrix expected(32, 32, 255);
  expected.at(3, 3) = 0;
  EXPECT_EQ(editor->outcome().icon.alpha, expected) << "as it was painted";
}

TEST_F(AlphaScreen, SavingCanBeCancelledTwice) {
  openWithAlpha();
  dialogs.paths = {""};
  editor->cmdAlpha(AlphaButton::Save);
  expectOpenWithoutOutcome();
  dialogs.paths = {target};
  boxes.expectAsked("Proceed to save to " + target + "?", BoxAnswer::No);
  editor->cmdAlpha(AlphaButton::Save);
  expectOpenWithoutOutcome();
}

TEST_F(AlphaScreen, TheSaveDialogIsThatOfIcons) {
  openWithAlpha();
  state.current().path = folder.file("a.b.ico");
  dialogs.paths = {"", ""};
  editor->cmdAlpha(AlphaButton::Save);
  ASSERT_EQ(dialogs.requests.size(), 1u);
  const FileDialogRequest& request = dialogs.requests.front();
  EXPECT_EQ(request.fileName, "a.b");
  EXPECT_EQ(request.defaultExtension, "ico");
  ASSERT_EQ(request.filters.size(), 1u);
  EXPECT_EQ(request.filters.front().description, "Icon files (*.ico)");
  EXPECT_EQ(request.filters.front().pattern, "*.ico");
  constexpr unsigned kOverwritePrompt = 2, kHideReadOnly = 4;
  EXPECT_EQ(request.flags, kOverwritePrompt | kHideReadOnly);
  state.current().fromMultiIconFile = true;
  editor->cmdAlpha(AlphaButton::Save);
  EXPECT_EQ(dialogs.requests.back().fileName, "") << "it would be that of the whole file";
}

// Conversion.

TEST_F(AlphaScreen, ConvertingAsksAndThenForAFile) {
  openWithAlpha(255);
  paint(3, 3, 128);
  paint(4, 4, 2);
  dialogs.paths = {target};
  boxes.expectAsked(kTo24, BoxAnswer::Yes);
  editor->cmdAlpha(AlphaButton::ConvertTo24);
  EXPECT_TRUE(editor->isClosed());
  EXPECT_EQ(editor->outcome().result, AlphaResult::ConvertTo24);
  EXPECT_EQ(editor->outcome().target, target);
  const IconImage& converted = editor->outcome().icon;
  EXPECT_FALSE(converted.hasAlphaValues());
  EXPECT_EQ(converted.image.GetPixel(3, 3), rgb(147, 97, 99));
  EXPECT_EQ(converted.mask.GetPixel(3, 3), kBlack);
  EXPECT_EQ(converted.image.GetPixel(4, 4), kBlack);
  EXPECT_EQ(converted.mask.GetPixel(4, 4), kWhite) << "0 percent becomes transparent";
  EXPECT_EQ(converted.image.GetPixel(5, 5), rgb(105, 5, 7));
  EXPECT_EQ(converted.mask.GetPixel(20, 5), kWhite);
}

TEST_F(AlphaScreen, ConvertingCanBeCancelledTwice) {
  openWithAlpha();
  boxes.expectAsked(kTo24, BoxAnswer::No);
  editor->cmdAlpha(AlphaButton::ConvertTo24);
  expectOpenWithoutOutcome();
  dialogs.paths = {""};
  boxes.expectAsked(kTo24, BoxAnswer::Yes);
  editor->cmdAlpha(AlphaButton::ConvertTo24);
  expectOpenWithoutOutcome();
  EXPECT_TRUE(editor->canPaint());
}

TEST_F(AlphaScreen, AlphaOfAllZeroBecomesAnEmptyIconAndAllOpaqueKeepsIts) {
  for (const int alpha : {0, 255}) {
    openWithAlpha(alpha);
    dialogs.paths = {target};
    boxes.expectAsked(kTo24, BoxAnswer::Yes);
    editor->cmdAlpha(AlphaButton::ConvertTo24);
    const IconImage expected = alpha == 0 ? transparentIcon(32) : halfIcon();
    EXPECT_TRUE(sameSurface(editor->outcome().icon.image, expected.image)) << alpha;
    EXPECT_TRUE(sameSurface(editor->outcome().icon.mask, expected.mask)) << alpha;
  }
}

// Closing.

TEST_F(AlphaScreen, AResumedSessionGoesOnWithItsValues) {
  for (const bool hadAlpha : {true, false}) {
    hadAlpha ? openWithAlpha(60) : open(halfIcon());
    const AlphaMatrix values(32, 32, 200);
    editor->resume(values);
    EXPECT_TRUE(editor->isEditing() && editor->isChanged() && editor->canPaint());
    EXPECT_FALSE(editor->isEnabled(AlphaButton::ChangeTo32));
    EXPECT_EQ(alphaAt(3, 4), 200);
    EXPECT_EQ(editor->canvas().picMaskAlpha().GetPixel(3, 4), rgb(56, 56, 56));
    boxes.expectAsked(kExit, BoxAnswer::No);
    EXPECT_FALSE(editor->mayClose());
    paint(1, 1, 9);
    dialogs.paths = {"/tmp/out.ico"};
    boxes.expectAsked("Proceed to save to /tmp/out.ico?", BoxAnswer::Yes);
    editor->cmdAlpha(AlphaButton::Save);
    EXPECT_EQ(editor->outcome().result, hadAlpha ? AlphaResult::SaveChanged : AlphaResult::SaveNew);
    EXPECT_EQ(editor->outcome().values.at(1, 1), 9);
    EXPECT_EQ(editor->outcome().values.at(2, 1), 200);
  }
  openWithAlpha(60);
  editor->resume(AlphaMatrix(32, 32, 200));
  boxes.expectAsked(kRestore, BoxAnswer::Yes);
  editor->cmdRestoreAlpha();
  EXPECT_EQ(alphaAt(3, 4), 60) << "the values with which the icon arrived";
}

TEST_F(AlphaScreen, AConversionLeavesTheValuesToo) {
  openWithAlpha(60, AlphaMode::Convert);
  boxes.expectAsked(kTo24, BoxAnswer::Yes);
  dialogs.paths = {"/tmp/out.ico"};
  editor->cmdAlpha(AlphaButton::ConvertTo24);
  EXPECT_EQ(editor->outcome().values, AlphaMatrix(32, 32, 60));
}

TEST_F(AlphaScreen, AbortDoesNotAsk) {
  openWithAlpha();
  paint(3, 3, 9);
  editor->cmdAlpha(AlphaButton::Abort);
  EXPECT_TRUE(editor->isClosed());
  EXPECT_EQ(editor->outcome().result, AlphaResult::None);
  EXPECT_EQ(editor->outcome().target, "");
  EXPECT_TRUE(editor->mayClose());
}

TEST_F(AlphaScreen, TheCloseBoxAsksAfterAChangeOnly) {
  openWithAlpha();
  EXPECT_TRUE(editor->mayClose());
  paint(3, 3, 9);
  boxes.expectAsked(kExit, BoxAnswer::No);
  EXPECT_FALSE(editor->mayClose());
  boxes.expectAsked(kExit, BoxAnswer::Yes);
  EXPECT_TRUE(editor->mayClose());
  EXPECT_EQ(editor->outcome().result, AlphaResult::None);
  openAndChange();
  boxes.expectAsked(kExit, BoxAnswer::No);
  EXPECT_FALSE(editor->mayClose());
}

TEST_F(AlphaScreen, NothingOutsideChanges) {
  const EditState before = state;
  openWithAlpha();
  paint(3, 3, 9);
  editor->cmdAlpha(AlphaButton::Abort);
  EXPECT_TRUE(sameSurface(state.picImage, before.picImage));
  EXPECT_TRUE(sameSurface(state.picMask, before.picMask));
  EXPECT_TRUE(sameSurface(state.picAlpha, before.picAlpha));
  EXPECT_EQ(state.mAlphaRecs, before.mAlphaRecs);
  EXPECT_FALSE(state.current().modified);
}

}  // namespace
}  // namespace gp::test

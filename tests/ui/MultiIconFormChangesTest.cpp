// frmGPMultiIcon where it writes or answers: saves, removals, new sequences and the add face.
#include "ui/MultiIconFormFixture.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include <functional>
#include <initializer_list>
#include <utility>

namespace gp {
namespace {

using test::kAllSizes;
using test::kStandard;
using test::Told;

using MultiIconForm = test::MultiIconFormFixture;

// Saving entries.

TEST_F(MultiIconForm, SaveSingleWritesTheSelectedEntry) {
  open();
  dialogs.paths = {folder.file("one.ico")};
  access(Qt::Key_S);
  ASSERT_EQ(dialogs.requests.size(), 1U);
  EXPECT_EQ(dialogs.requests[0].fileName, "icons_32_16.ico");
  EXPECT_EQ(folder.read("one.ico"), test::iconFileOf({kStandard[2]}));
  EXPECT_EQ(form->focusWidget(), icons());
}

TEST_F(MultiIconForm, SplitSaveWritesAllAndSelectsTheFormerAgain) {
  open();
  dialogs.paths = {folder.makeFolder("parts")};
  boxes.expectAsked("Single-icon files will be saved as " + folder.file("parts/icons") +
                        "_(Size)_(Color), ...\nTotally 5 items on list.\n\nProceed?",
                    BoxAnswer::Yes);
  click("cmdSplitSave(0)");
  for (const auto& [name, index] : std::initializer_list<std::pair<const char*, std::size_t>>{
           {"16_16", 0}, {"24_16", 1}, {"32_16", 2}, {"32_32bpp", 3}, {"48_16", 4}})
    EXPECT_EQ(folder.read(std::string("parts/icons_") + name + ".ico"), test::iconFileOf({kStandard[index]})) << name;
  EXPECT_EQ(icons()->selected(), 2);
  EXPECT_EQ(find("picIconInFile(0)")->size(), QSize(32, 32));
}

// Removing.

constexpr const char* kRemoveQuestion = "Permanently remove the selected icon from the multi-icon file.\n";
constexpr const char* kRemoveAssurance = "\n\nSure to remove this icon permanently?\n\n";

TEST_F(MultiIconForm, RemoveByKeyKeepsTheFocusInTheList) {
  open();
  boxes.expectAsked(kRemoveQuestion + file + kRemoveAssurance, BoxAnswer::Yes);
  key(Qt::Key_End);
  access(Qt::Key_R);
  EXPECT_EQ(folder.read("icons.ico"), test::iconFileOf({kStandard.begin(), kStandard.end() - 1}));
  EXPECT_EQ(icons()->count(), 4);
  EXPECT_EQ(icons()->selected(), 3);
  EXPECT_EQ(form->focusWidget(), icons());
  key(Qt::Key_Up);
  EXPECT_EQ(icons()->selected(), 2);
}

TEST_F(MultiIconForm, RemoveByMouseGivesTheFocusToTheListAlsoWhenTheButtonIsDisabledThen) {
  open({kStandard[0], kStandard[1]});
  boxes.expectAsked(kRemoveQuestion + file + kRemoveAssurance, BoxAnswer::Yes);
  click("cmdRemove(0)");
  EXPECT_EQ(icons()->count(), 1);
  EXPECT_EQ(icons()->selected(), 0);
  EXPECT_FALSE(find("cmdRemove(0)")->isEnabled());
  EXPECT_EQ(form->focusWidget(), icons());
}

TEST_F(MultiIconForm, ARefusedRemoveChangesNothing) {
  open();
  boxes.expectAsked(kRemoveQuestion + file + kRemoveAssurance, BoxAnswer::No);
  click("cmdRemove(0)");
  EXPECT_EQ(folder.read("icons.ico"), test::iconFileOf(kStandard));
  EXPECT_EQ(icons()->selected(), 2);
}

TEST_F(MultiIconForm, AFileInTheIconsPanelIsNotChanged) {
  state.multiIcon.gFileInPanel = true;
  open();
  boxes.expectTold(
      "As currently there is at least an icon from this file loaded in Icons Panel, \nhence no deletion is allowed.",
      BoxIcon::None);
  boxes.expectTold(
      "As currently there is at least an icon from this file loaded in Icons Panel, \nhence no reposition is allowed.",
      BoxIcon::None);
  click("cmdRemove(0)");
  click("cmdReposition(0)");
  EXPECT_TRUE(isShown("picContainer(0)"));
}

// Repositioning.

TEST_F(MultiIconForm, RepositionListsAllSizesWithTheFirstSelected) {
  open(kAllSizes);
  access(Qt::Key_O);
  EXPECT_TRUE(isShown("picContainer(2)"));
  EXPECT_FALSE(isShown("picContainer(0)"));
  EXPECT_FALSE(isShown("fraOtherIcons"));
  EXPECT_EQ(sequence()->count(), 7);
  EXPECT_EQ(sequence()->item(5)->text(), "Ref 6  \t4 BPP\t16-Color\t   64 x  64");
  EXPECT_EQ(sequence()->selected(), 0);
  EXPECT_EQ(form->focusWidget(), sequence());
  EXPECT_EQ(find("picReposition")->size(), QSize(16, 16));
  key(Qt::Key_Down);
  EXPECT_EQ(find("picReposition")->size(), QSize(24, 24));
}

TEST_F(MultiIconForm, ShiftButtonsAreEnabledBetweenTheEnds) {
  open();
  click("cmdReposition(0)");
  EXPECT_FALSE(find("cmdShift(0)")->isEnabled());
  EXPECT_TRUE(find("cmdShift(1)")->isEnabled());
  access(Qt::Key_D);
  EXPECT_EQ(sequence()->selected(), 1);
  EXPECT_EQ(sequence()->item(1)->text(), "Ref 1  \t4 BPP\t16-Color\t   16 x  16");
  EXPECT_TRUE(find("cmdShift(0)")->isEnabled());
  key(Qt::Key_End);
  EXPECT_TRUE(find("cmdShift(0)")->isEnabled());
  EXPECT_FALSE(find("cmdShift(1)")->isEnabled());
}

TEST_F(MultiIconForm, AShiftButtonThatReachesTheEndGivesItsFocusToTheList) {
  open({kStandard[0], kStandard[1]});
  click("cmdReposition(0)");
  click("cmdShift(1)");
  EXPECT_EQ(form->focusWidget(), sequence());
  click("cmdShift(0)");
  EXPECT_EQ(form->focusWidget(), sequence());
  EXPECT_EQ(sequence()->selected(), 0);
}

TEST_F(MultiIconForm, NothingInTheSequenceIsDestructive) {
  open();
  click("cmdReposition(0)");
  click("cmdShift(1)");
  sequence()->setFocus();
  key(Qt::Key_Return);
  doubleClickItem(sequence(), 3);
  EXPECT_TRUE(isShown("picContainer(2)"));
  EXPECT_EQ(folder.read("icons.ico"), test::iconFileOf(kStandard));
  EXPECT_EQ(state.multiIcon.gMultiIconResult, "");
}

TEST_F(MultiIconForm, AbortAndEscapeLeaveThePaneOnly) {
  open(kAllSizes);
  for (const auto& leave : std::initializer_list<std::function<void()>>{[&] { click("cmdRepositionAbort"); },
                                                                        [&] { key(Qt::Key_Escape); }}) {
    click("cmdReposition(0)");
    access(Qt::Key_D);
    leave();
    EXPECT_TRUE(isShown("picContainer(0)"));
    EXPECT_TRUE(isShown("fraOtherIcons"));
    EXPECT_EQ(icons()->selected(), 2);
    EXPECT_EQ(form->focusWidget(), icons());
  }
  EXPECT_EQ(folder.read("icons.ico"), test::iconFileOf(kAllSizes));
}

TEST_F(MultiIconForm, TheFrameClosesTheFormAlsoFromThePane) {
  open();
  click("cmdReposition(0)");
  form->close();
  EXPECT_FALSE(form->isVisible());
}

TEST_F(MultiIconForm, ProceedWritesTheNewSequenceAndComesBack) {
  open(kAllSizes);
  click("cmdReposition(0)");
  access(Qt::Key_D);
  boxes.expectAsked(file + "\nProceed to save re-positioned sequence of icons in file?\n", BoxAnswer::Yes);
  boxes.expectTold("Repositioned icons sequence in " + file + "\n", BoxIcon::None);
  access(Qt::Key_P);
  std::vector<Told> expected = kAllSizes;
  std::swap(expected[0], expected[1]);
  EXPECT_EQ(folder.read("icons.ico"), test::iconFileOf(expected));
  EXPECT_TRUE(isShown("picContainer(0)"));
  EXPECT_TRUE(isShown("fraOtherIcons"));
  EXPECT_EQ(form->focusWidget(), icons());
  EXPECT_EQ(icons()->item(0)->text(), "Ref 1  \t4 BPP\t16-Color\t   24 x  24");
}

TEST_F(MultiIconForm, AnUnchangedSequenceIsNotWritten) {
  open();
  click("cmdReposition(0)");
  boxes.expectTold("There is no change in original sequence.", BoxIcon::None);
  click("cmdRepositionProceed");
  EXPECT_TRUE(isShown("picContainer(2)"));
}

// Adding.

TEST_F(MultiIconForm, TheAddFaceShowsTheIconAndPositionsWithNothingSelected) {
  openToAdd(kAllSizes);
  EXPECT_EQ(form->windowTitle(), "Add Icon To Existing Icon File");
  EXPECT_EQ(find<TextCell>("lblExistingFile(1)")->text(), toText(ShortenPath(file)));
  EXPECT_EQ(find<QLabel>("lblCurrIcon(1)")->text(), "16-color  Size: 32x32");
  EXPECT_EQ(find("PicCurrIcon")->size(), QSize(32, 32));
  EXPECT_EQ(icons()->selected(), -1);
  EXPECT_EQ(form->focusWidget(), icons());
  auto* positions = find<QComboBox>("cboAddToPosition");
  EXPECT_EQ(positions->count(), 8);
  EXPECT_EQ(positions->currentText(), "8");
  EXPECT_TRUE(find<QPushButton>("cmdSaveAdd(0)")->isDefault());
  key(Qt::Key_Down);
  EXPECT_EQ(icons()->selected(), 0);
  EXPECT_EQ(find("picIconInFile(1)")->size(), QSize(16, 16));
}

TEST_F(MultiIconForm, SaveAppendsAtTheEnd) {
  openToAdd();
  key(Qt::Key_Down);
  boxes.expectAsked("Append to position ref 6.   \n\nConfirm?\n", BoxAnswer::Yes);
  key(Qt::Key_Return);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(state.multiIcon.gMultiIconResult, "1/6");
}

TEST_F(MultiIconForm, SaveAsInsertsAtThePositionThatIsChosen) {
  openToAdd();
  clickItem(icons(), 1);
  access(Qt::Key_I);
  EXPECT_EQ(form->focusWidget(), find("cboAddToPosition"));
  key(Qt::Key_Home);
  boxes.expectAsked("Insert to position ref 1.   \n\nConfirm?\n", BoxAnswer::Yes);
  access(Qt::Key_A);
  EXPECT_EQ(state.multiIcon.gMultiIconResult, "2/1");
}

TEST_F(MultiIconForm, AnUnconfirmedAddStays) {
  openToAdd();
  boxes.expectTold("No icon in file listed", BoxIcon::None);
  click("cmdSaveAdd(0)");
  clickItem(icons(), 1);
  boxes.expectAsked("Append to position ref 6.   \n\nConfirm?\n", BoxAnswer::No);
  click("cmdSaveAdd(0)");
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(state.multiIcon.gMultiIconResult, "");
}

TEST_F(MultiIconForm, ADoubleClickOnTheAddFaceOnlySelects) {
  openToAdd();
  doubleClickItem(icons(), 1);
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(icons()->selected(), 1);
}

TEST_F(MultiIconForm, RemovingOnTheAddFaceTakesAPositionAway) {
  openToAdd();
  clickItem(icons(), 4);
  boxes.expectAsked(kRemoveQuestion + file + kRemoveAssurance, BoxAnswer::Yes);
  click("cmdRemove(1)");
  EXPECT_EQ(find<QComboBox>("cboAddToPosition")->count(), 5);
  EXPECT_EQ(find<QComboBox>("cboAddToPosition")->currentText(), "5");
  EXPECT_EQ(icons()->selected(), 3);
}

TEST_F(MultiIconForm, CloseEndsTheAddFaceWithoutAnAnswer) {
  openToAdd();
  click("cmdClose(1)");
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(state.multiIcon.gMultiIconResult, "");
}

}  // namespace
}  // namespace gp

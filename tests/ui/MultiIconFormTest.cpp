// frmGPMultiIcon, used by mouse and keyboard on real files.
#include "files/ui/frmGPMultiIcon.h"
#include "ui/MultiIconFormFixture.h"

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QToolButton>

#include <algorithm>

namespace gp {
namespace {

using test::kAllSizes;
using test::kStandard;
using test::Told;

constexpr const char* kNoBitmap = "\x89PNG\r\n\x1A\n";

using MultiIconForm = test::MultiIconFormFixture;

// Opening.

TEST_F(MultiIconForm, ComesUpWithTheDefaultEntryPreviewedAndTheFocusInItsList) {
  open();
  EXPECT_EQ(form->windowTitle(), "Edit Icon In Multi-Icon File");
  EXPECT_EQ(icons()->count(), 5);
  EXPECT_EQ(icons()->item(3)->text(), "Ref 4  \t32 BPP\tTrue-Color\t   32 x  32");
  EXPECT_EQ(icons()->selected(), 2);
  EXPECT_EQ(form->focusWidget(), icons());
  EXPECT_EQ(find("picIconInFile(0)")->size(), QSize(32, 32));
  EXPECT_EQ(find<TextCell>("lblFileToEdit(0)")->text(), toText(ShortenPath(file)));
  EXPECT_TRUE(isShown("picContainer(0)"));
  EXPECT_FALSE(isShown("picContainer(2)"));
  EXPECT_FALSE(isShown("lblFileToEdit(2)"));
  EXPECT_EQ(exchange.gMultiIconResult, "");
}

TEST_F(MultiIconForm, AFileThatCannotBeReadShowsNothing) {
  for (const char* content : {"", "no icon", "\0\0\1\0\5\0"}) {
    make(folder.write("text.ico", content));
    EXPECT_FALSE(form->comeUp());
    EXPECT_FALSE(form->isVisible());
    form->run();
    EXPECT_FALSE(form->isVisible());
  }
}

TEST_F(MultiIconForm, TheFirstIconThatCannotBeShownIsReportedOverTheForm) {
  std::vector<Told> entries = kStandard;
  entries[2].image = kNoBitmap;
  boxes.expectTold("Ref 3\nUnable to get this one", BoxIcon::None);
  bool wasUp = false;
  boxes.inside = [&] { wasUp = form->isVisible() && QApplication::activeModalWidget() == form.get(); };
  open(entries);
  EXPECT_TRUE(wasUp);
  EXPECT_EQ(icons()->selected(), -1);
  key(Qt::Key_Down);
  EXPECT_EQ(icons()->selected(), 0);
  EXPECT_EQ(find("picIconInFile(0)")->size(), QSize(16, 16));
}

TEST_F(MultiIconForm, MessageBoxesStandOverIt) {
  open();
  EXPECT_EQ(DialogOwner().window(), form.get());
}

TEST_F(MultiIconForm, TheFileIsNamedInFullInTheTooltip) {
  openFile(folder.write("<b>odd.ico", test::iconFileOf(kStandard)));
  EXPECT_EQ(find("lblFileToEdit(0)")->toolTip(), pathToText(file).toHtmlEscaped());
}

TEST_F(MultiIconForm, TheFootnoteStandsWhereAnEntryHasNoBitCount) {
  std::vector<Told> entries = kStandard;
  entries[0].bits = 0;
  open(entries);
  EXPECT_TRUE(isShown("lblFileToEdit(2)"));
  EXPECT_EQ(find<QLabel>("lblFileToEdit(2)")->text(), "* Remarks: Listed BPP as per original file only");
  EXPECT_EQ(icons()->item(0)->text(), "Ref 1  \t0 BPP*\t16-Color\t   16 x  16");
  openToAdd(entries);
  clickItem(icons(), 1);
  EXPECT_TRUE(isShown("lblExistingFile(3)"));
  EXPECT_EQ(find<QLabel>("lblExistingFile(3)")->text(), "* Remarks: Listed BPP as per original file only");
}

// Selecting.

TEST_F(MultiIconForm, KeysAndClicksPreviewOtherEntries) {
  open();
  const auto expectSelected = [&](int item, int side) {
    EXPECT_EQ(icons()->selected(), item);
    EXPECT_EQ(find("picIconInFile(0)")->size(), QSize(side, side));
  };
  for (const auto& [code, item, side] : std::initializer_list<std::tuple<Qt::Key, int, int>>{{Qt::Key_Down, 3, 32},
                                                                                             {Qt::Key_Up, 2, 32},
                                                                                             {Qt::Key_End, 4, 48},
                                                                                             {Qt::Key_Home, 0, 16},
                                                                                             {Qt::Key_PageDown, 4, 48},
                                                                                             {Qt::Key_PageUp, 0, 16}}) {
    key(code);
    expectSelected(item, side);
  }
  clickItem(icons(), 4);
  expectSelected(4, 48);
}

TEST_F(MultiIconForm, AnEntryThatCannotBeShownGivesTheSelectionBack) {
  std::vector<Told> entries = kStandard;
  entries.back().image = kNoBitmap;
  open(entries);
  boxes.expectTold("Ref 5\nUnable to get this one", BoxIcon::None);
  key(Qt::Key_End);
  EXPECT_EQ(icons()->selected(), 2);
  EXPECT_EQ(find("picIconInFile(0)")->size(), QSize(32, 32));
  EXPECT_EQ(form->focusWidget(), icons());
}

TEST_F(MultiIconForm, AssistiveTechnologyHearsListAndPreview) {
  open();
  EXPECT_EQ(accessible("lisIcons(0)", QAccessible::Name), "Icons in file");
  EXPECT_EQ(accessible("lblIconInFile(0)", QAccessible::Name), "Preview");
  EXPECT_EQ(accessible("lblIconInFile(0)", QAccessible::Value), "32 by 32 pixels");
  EXPECT_EQ(accessible("imgShowOtherSizes(0)", QAccessible::Name), "Show icons of other sizes");
  EXPECT_EQ(find("cboContainerRef")->accessibleName(), "Load to container ref");
}

// Loading.

TEST_F(MultiIconForm, EnterInTheListLoadsAndExits) {
  open();
  EXPECT_TRUE(find<QPushButton>("cmdEdit")->isDefault());
  key(Qt::Key_Home);
  key(Qt::Key_Return);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(exchange.gMultiIconResult, "1/00/16/16/16/4/16/4");
  EXPECT_FALSE(exchange.gLoadAndReturn);
}

TEST_F(MultiIconForm, ADoubleClickLoadsAndExits) {
  open();
  doubleClickItem(icons(), 4);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(exchange.gMultiIconResult, "1/04/48/48/16/4/16/4");
}

TEST_F(MultiIconForm, LoadAsksToComeBack) {
  open();
  click("cmdLoad");
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(exchange.gMultiIconResult, "1/02/32/32/16/4/16/4");
  EXPECT_TRUE(exchange.gLoadAndReturn);
}

TEST_F(MultiIconForm, LoadsIntoTheContainerThatIsChosen) {
  exchange.gMultiIconResult = "3";
  open();
  auto* containers = find<QComboBox>("cboContainerRef");
  QStringList items;
  for (int i = 0; i < containers->count(); ++i) items << containers->itemText(i);
  EXPECT_EQ(items, (QStringList{"1", "2", "3", "4", "5", "6"}));
  EXPECT_EQ(containers->currentText(), "4");
  EXPECT_EQ(find<QLabel>("lblFileToEdit(3)")->text().remove('&'), "Load to container ref:");
  access(Qt::Key_C);
  EXPECT_EQ(form->focusWidget(), containers);
  key(Qt::Key_Down);
  access(Qt::Key_E);
  EXPECT_EQ(exchange.gMultiIconResult, "5/02/32/32/16/4/16/4");
}

TEST_F(MultiIconForm, WithoutACurrentContainerThereIsNoneToChoose) {
  exchange.gMultiIconResult = "";
  open(kStandard, Face::EditWithoutContainer);
  EXPECT_FALSE(isShown("cboContainerRef"));
  EXPECT_FALSE(isShown("lblFileToEdit(3)"));
}

TEST_F(MultiIconForm, AStrangeBitCountIsReportedAndTheFormStays) {
  std::vector<Told> entries = kStandard;
  entries[2].bits = 3;
  open(entries);
  clickItem(icons(), 2);
  boxes.expectTold("Selected item is below 8 BPP, but not 1, 4 (or 0 if old Win 95 icons)", BoxIcon::None);
  key(Qt::Key_Return);
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(form->focusWidget(), icons());
}

// Closing.

TEST_F(MultiIconForm, EscapeExitAndTheFrameCloseIt) {
  for (const auto& close :
       std::initializer_list<std::function<void()>>{[&] { key(Qt::Key_Escape); }, [&] { click("cmdClose(0)"); },
                                                    [&] { form->close(); }, [&] { access(Qt::Key_X); }}) {
    open();
    close();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(exchange.gMultiIconResult, "");
  }
  EXPECT_EQ(folder.read("icons.ico"), test::iconFileOf(kStandard));
}

TEST_F(MultiIconForm, ItRunsUntilItIsAnswered) {
  make(folder.write("icons.ico", test::iconFileOf(kStandard)));
  QTimer::singleShot(0, form.get(), [&] {
    EXPECT_EQ(QApplication::activeModalWidget(), form.get());
    QTest::keyClick(icons(), Qt::Key_Return);
  });
  form->run();
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(exchange.gMultiIconResult, "1/02/32/32/16/4/16/4");
}

TEST_F(MultiIconForm, EnterOnAButtonPressesThatButton) {
  open();
  find("cmdClose(0)")->setFocus();
  key(Qt::Key_Return);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(exchange.gMultiIconResult, "");
}

// Buttons.

TEST_F(MultiIconForm, ButtonsHaveTheirTextsAndTips) {
  open();
  expectButtons({{"cmdLoad", "Load", "Load highlighted icon (and come back)"},
                 {"cmdEdit", "Load & Exit", "Load highlighted icon and exit"},
                 {"cmdSaveSingle(0)", "Save Single", "Save selected to a single-icon file"},
                 {"cmdSplitSave(0)", "Split Save", "Split save all to single-icon files"},
                 {"cmdRemove(0)", "Remove", "Remove highlighted icon"},
                 {"cmdReposition(0)", "Reposition", "Reposition sequence of icons"},
                 {"cmdClose(0)", "Exit", "Exit without loading"},
                 {"cmdShift(0)", "Up", "Shift position up"},
                 {"cmdShift(1)", "Down", "Shift position down"},
                 {"cmdRepositionAbort", "Abort", "Cancel and exit"},
                 {"cmdRepositionProceed", "Proceed", "Proceed to save repositioned sequence"}});
  openToAdd();
  expectButtons({{"cmdSaveAdd(0)", "Save", "Add to listed file spec"},
                 {"cmdSaveAdd(1)", "Save As", "Save to a different file spec"},
                 {"cmdSaveSingle(1)", "Save Single", "Save selected to a single-icon file"},
                 {"cmdSplitSave(1)", "Split Save", "Split save all to single-icon files"},
                 {"cmdRemove(1)", "Remove", "Remove highlighted icon"},
                 {"cmdReposition(1)", "Reposition", "Reposition sequence of icons"},
                 {"cmdClose(1)", "Close", "Close without adding"}});
}

TEST_F(MultiIconForm, OneIconLeavesOnlyTheLoads) {
  open({kStandard[0]});
  EXPECT_EQ(enabledButtons(), (QStringList{"cmdLoad", "cmdEdit", "cmdClose(0)"}));
  openToAdd({kStandard[0]});
  EXPECT_EQ(enabledButtons(), QStringList{"cmdClose(1)"});
  clickItem(icons(), 0);
  EXPECT_EQ(enabledButtons(), (QStringList{"cmdSaveAdd(0)", "cmdSaveAdd(1)", "cmdClose(1)"}));
}

TEST_F(MultiIconForm, OtherSizesAloneLeaveNothingToPress) {
  open({kAllSizes[5]});
  EXPECT_EQ(icons()->count(), 0);
  EXPECT_EQ(enabledButtons(), QStringList{"cmdClose(0)"});
  EXPECT_TRUE(isShown("fraOtherIcons"));
  key(Qt::Key_Return);
  EXPECT_TRUE(form->isVisible());
  openToAdd({kAllSizes[5]});
  EXPECT_EQ(enabledButtons(), (QStringList{"cmdSaveAdd(0)", "cmdSaveAdd(1)", "cmdClose(1)"}));
}

TEST_F(MultiIconForm, OfAHundredEntriesTheLastCannotBeSelectedByKeyOrMouse) {
  open(std::vector<Told>(100, kStandard[0]));
  EXPECT_EQ(icons()->count(), 100);
  const auto click = [this](int row) {
    icons()->scrollToItem(icons()->item(row));
    QTest::mouseClick(icons()->viewport(), Qt::LeftButton, {}, icons()->visualItemRect(icons()->item(row)).center());
  };
  click(98);
  EXPECT_EQ(icons()->selected(), 98);
  EXPECT_TRUE(icons()->viewport()->rect().contains(icons()->visualItemRect(icons()->item(98))));
  for (const bool byKey : {true, false}) {
    boxes.expectTold("Ref 100\nUnable to get this one", BoxIcon::None);
    if (byKey)
      key(Qt::Key_End);
    else
      click(99);
    EXPECT_EQ(icons()->selected(), 98);
    EXPECT_TRUE(boxes.done());
  }
  EXPECT_TRUE(find("cmdRemove(0)")->isEnabled());
  boxes.expectTold("Ref 100\nUnable to get this one", BoxIcon::None);
  QTest::mouseClick(find("cmdReposition(0)"), Qt::LeftButton);
  EXPECT_FALSE(isShown("picContainer(2)"));
}

TEST_F(MultiIconForm, AccessLettersAreUniqueOnEachFace) {
  open();
  EXPECT_EQ(accessLetters("picContainer(0)"), "CELNOPRSX");
  EXPECT_EQ(accessLetters("picContainer(2)"), "ADPU");
  openToAdd();
  EXPECT_EQ(accessLetters("picContainer(1)"), "ACGINOPRS");
}

TEST_F(MultiIconForm, TabFollowsTheEye) {
  open(kAllSizes);
  EXPECT_EQ(tabOrder(11), (QStringList{"lisIcons(0)", "cboContainerRef", "imgHideOtherSizes(0)", "cmdLoad", "cmdEdit",
                                       "cmdSaveSingle(0)", "cmdSplitSave(0)", "cmdRemove(0)", "cmdReposition(0)",
                                       "cmdClose(0)", "lisOtherIcons"}));
}

// Other sizes.

// When scaled, the offscreen platform's screen is small.
bool screenHasRoom() { return QGuiApplication::primaryScreen()->availableSize().width() > kOtherSizesShownWidth; }

TEST_F(MultiIconForm, OtherSizesComeUpWithTheFormAndOnlyTheirPictureSwaps) {
  if (!screenHasRoom()) GTEST_SKIP() << "the screen is too small";
  open(kAllSizes);
  EXPECT_TRUE(isShown("fraOtherIcons"));
  EXPECT_EQ(find<CaptionFrame>("fraOtherIcons")->caption(), "Remarks:  Icons of other sizes in file");
  EXPECT_EQ(others()->count(), 2);
  EXPECT_EQ(others()->item(0)->text(), "Ref 6  \t4 BPP\t16-Color\t  64 x 64");
  EXPECT_TRUE(isShown("imgHideOtherSizes(0)"));
  EXPECT_FALSE(isShown("imgShowOtherSizes(0)"));
  const QSize shown = form->size();
  click("imgHideOtherSizes(0)");
  EXPECT_FALSE(isShown("fraOtherIcons"));
  EXPECT_LT(form->height(), shown.height());
  EXPECT_LE(form->width(), shown.width());
  click("imgShowOtherSizes(0)");
  EXPECT_EQ(form->size(), shown);
}

TEST_F(MultiIconForm, WithoutOtherSizesTheFormOpensWithoutTheirList) {
  open();
  EXPECT_FALSE(isShown("fraOtherIcons"));
  EXPECT_TRUE(isShown("imgShowOtherSizes(0)"));
}

TEST_F(MultiIconForm, ItIsAsWideAsItHasToBe) {
  if (!screenHasRoom()) GTEST_SKIP() << "the screen is too small";
  open(kAllSizes);
  EXPECT_EQ(form->width(), std::max(kOtherSizesShownWidth, form->minimumSizeHint().width()));
  click("imgHideOtherSizes(0)");
  EXPECT_EQ(form->width(), std::max(kOtherSizesHiddenWidth, form->minimumSizeHint().width()));
}

TEST_F(MultiIconForm, ThePictureThatTakesTheOthersPlaceTakesItsFocus) {
  open(kAllSizes);
  find("imgHideOtherSizes(0)")->setFocus();
  key(Qt::Key_Space);
  EXPECT_EQ(form->focusWidget(), find("imgShowOtherSizes(0)"));
  key(Qt::Key_Return);
  EXPECT_EQ(form->focusWidget(), find("imgHideOtherSizes(0)"));
  EXPECT_TRUE(form->isVisible());
  EXPECT_TRUE(isShown("fraOtherIcons"));
}

TEST_F(MultiIconForm, GrowingKeepsItOnTheScreen) {
  // A form larger than the screen begins at the corner of the screen.
  const auto expectOn = [&](const QRect& screen) {
    const QRect frame = form->frameGeometry();
    EXPECT_GE(frame.left(), screen.left());
    EXPECT_GE(frame.top(), screen.top());
    EXPECT_TRUE(frame.right() <= screen.right() || frame.left() == screen.left());
    EXPECT_TRUE(frame.bottom() <= screen.bottom() || frame.top() == screen.top());
  };
  open();
  const QRect screen = form->screen()->availableGeometry();
  form->move(screen.bottomRight() - QPoint(form->width(), form->height()));
  click("imgShowOtherSizes(0)");
  expectOn(screen);
  form->resize(form->width(), screen.height());
  click("imgHideOtherSizes(0)");
  click("imgShowOtherSizes(0)");
  expectOn(screen);
}

TEST_F(MultiIconForm, ItGrowsDownwardsAsFarAsTheScreenHasRoom) {
  if (!screenHasRoom()) GTEST_SKIP() << "the screen is too small";
  open();
  const QRect screen = form->screen()->availableGeometry();
  const QPoint corner(10, screen.bottom() - form->height() - 128);
  form->move(corner);
  click("imgShowOtherSizes(0)");
  EXPECT_EQ(form->pos(), corner);
  EXPECT_LE(form->frameGeometry().bottom(), screen.bottom());
  EXPECT_TRUE(isShown("fraOtherIcons"));
  click("imgHideOtherSizes(0)");
  EXPECT_EQ(form->pos(), corner);
}

TEST_F(MultiIconForm, TheButtonForOtherSizesSaysSo) {
  open();
  for (const char* name : {"imgShowOtherSizes(0)", "imgHideOtherSizes(0)"}) {
    const auto* button = find<QToolButton>(name);
    EXPECT_EQ(button->text(), "Other sizes");
    EXPECT_GE(button->width(), button->sizeHint().width());
  }
  EXPECT_EQ(find("imgShowOtherSizes(0)")->accessibleName(), "Show icons of other sizes");
}

TEST_F(MultiIconForm, OtherSizesCannotBeSelected) {
  open(kAllSizes);
  clickItem(others(), 0);
  EXPECT_EQ(others()->selected(), -1);
  key(Qt::Key_Down);
  EXPECT_EQ(others()->selected(), -1);
  EXPECT_EQ(icons()->selected(), 2);
}

// Screenshots.

constexpr int kLargePoints = 13;

TEST_F(MultiIconForm, LooksRight) {
  std::vector<Told> noted = kAllSizes;
  noted[1].bits = 0;
  const QFont font = QApplication::font();
  const auto picture = [&](const char* name, auto show) {
    QFont large = font;
    large.setPointSize(kLargePoints);
    QApplication::setFont(large);
    show();
    test::savePicture(*form, QString("frmGPMultiIcon-%1-large").arg(name));
    QApplication::setFont(font);
    test::saveInBothThemes(QString("frmGPMultiIcon-%1").arg(name), [&] {
      show();
      return std::move(form);
    });
  };
  picture("edit", [&] { open(); });
  picture("edit-other-sizes", [&] { open(noted); });
  picture("edit-nothing", [&] { open({kAllSizes[5]}); });
  picture("add", [&] { openToAdd(noted); });
  picture("reposition", [&] {
    open(kAllSizes);
    click("cmdReposition(0)");
  });
  picture("hundred", [&] { open(std::vector<Told>(100, kStandard[3])); });
}

}  // namespace
}  // namespace gp

// frmGPHeaderDiff, worked by mouse and keyboard.
#include "document/ui/QtDisplay.h"
#include "files/Files.h"
#include "files/ui/EntryView.h"
#include "files/ui/frmGPHeaderDiff.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/TabbedList.h"
#include "platform/qt/widgets/TextCell.h"
#include "platform/text/Paths.h"
#include "support/Rooms.h"
#include "support/ShellFixture.h"
#include "support/TempFolder.h"
#include "ui/IconFiles.h"
#include "ui/Screens.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>

namespace gp {
namespace {

using test::iconFileOf;
using test::Told;

constexpr const char* kNoIcon = "No icon retrieved.";

// The image of a uniform icon of 16 colours.
std::string imageOf(int size, int colorIndex = 3) { return test::plainIconFile(size, colorIndex).substr(6 + 16); }

const std::vector<Told> kLying{{16, 16, 4, imageOf(16)},    {24, 0, 24, imageOf(24, 9)},
                               {32, 16, 8, imageOf(32)},    {48, 16, 4, imageOf(48, 12)},
                               {64, 16, 4, imageOf(64, 2)}, {16, 0, 32, "\x89PNG\r\n\x1A\n"}};

class HeaderDiffForm : public testing::Test {
 protected:
  std::unique_ptr<frmGPHeaderDiff> make(const std::string& path) {
    files.context().multiIcon.gMultiIconFile = path;
    rooms.display.onChanged = [this](DisplayPart part) { display.changed(part); };
    auto made = std::make_unique<frmGPHeaderDiff>(files.context(), display, nullptr);
    made->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(made.get()));
    QTest::qWait(1);
    return made;
  }
  void open(const std::vector<Told>& entries = kLying) { form = make(folder.write("lies.ico", iconFileOf(entries))); }

  template <class Widget = QWidget>
  Widget* find(const char* name) {
    auto* found = form->findChild<Widget*>(name);
    if (!found) ADD_FAILURE() << "no " << name;
    return found;
  }
  void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(form->focusWidget(), code, modifiers);
  }
  QStringList cells() {
    QStringList texts;
    for (const char* name : {"lblIDEColor", "lblIDEBPP", "lblBIHColor", "lblBIHBPP", "lblActualColor", "lblActualBPP"})
      texts << find<TextCell>(name)->text();
    return texts;
  }
  TabbedList* list() { return find<TabbedList>("lisIcons"); }

  test::TempFolder folder;
  test::Rooms rooms;
  EditState& state = rooms.state;
  test::ScriptedBoxes& boxes = rooms.boxes;
  test::ScriptedDialogs& dialogs = rooms.dialogs;
  QtDisplay display;
  Files files{rooms.context, rooms.document, rooms.drawing, rooms.dialog, folder.file("gptmp.ico")};
  std::unique_ptr<frmGPHeaderDiff> form;
};

TEST_F(HeaderDiffForm, ComesUpWithTheDefaultEntryByTheDirectory) {
  open();
  EXPECT_EQ(form->windowTitle(), "Header Entry Diff");
  EXPECT_EQ(list()->count(), 6);
  EXPECT_EQ(list()->selected(), 2);
  EXPECT_EQ(list()->item(1)->text(), "2\t24-BPP\tTrue-Color\t24 x 24");
  EXPECT_TRUE(find<QRadioButton>("optBase(0)")->isChecked());
  EXPECT_EQ(cells(), (QStringList{"16", "8   (?)", "16", "4", "256", "8"}));
  EXPECT_EQ(form->focusWidget(), list());
  EXPECT_EQ(find<QPushButton>("cmdSalvage")->toolTip(),
            "Salvage basing on bitmap header entry only (irrespective of actual color depth)");
}

TEST_F(HeaderDiffForm, KeysAndClicksShowOtherEntries) {
  open();
  key(Qt::Key_Down);
  EXPECT_EQ(list()->selected(), 3);
  EXPECT_EQ(find("picIconInFile")->size(), QSize(48, 48));
  EXPECT_EQ(cells(), (QStringList{"16", "4", "16", "4", "256", "8"}));
  QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, list()->visualItemRect(list()->item(0)).center());
  EXPECT_EQ(find("picIconInFile")->size(), QSize(16, 16));
  key(Qt::Key_Home);
  EXPECT_EQ(list()->selected(), 0);
}

TEST_F(HeaderDiffForm, ThePreviewStandsInTheMiddleOnTheGround) {
  open();
  const QImage frame = find("lblIconInFile")->grab().toImage();
  const QPoint middle = frame.rect().center();
  const int cell = static_cast<int>(frame.devicePixelRatio());  // device pixels per icon pixel
  EXPECT_EQ(frame.pixelColor(middle), QColor(252, 3, 48));      // palette entries are blue, green, red
  EXPECT_EQ(frame.pixelColor(middle - QPoint(15, 15) * cell), QColor(252, 3, 48));
  EXPECT_EQ(frame.pixelColor(middle - QPoint(18, 0) * cell), QColor(0xC0, 0xC0, 0xC0));
  EXPECT_EQ(frame.pixelColor(middle + QPoint(18, 0) * cell), QColor(0xC0, 0xC0, 0xC0));
  EXPECT_EQ(frame.pixelColor(3, 3), QColor(0xC0, 0xC0, 0xC0));
  EXPECT_NE(frame.pixelColor(0, 0), QColor(0xC0, 0xC0, 0xC0)) << "the outline";
}

TEST_F(HeaderDiffForm, TheLargestPreviewFits) {
  open({{255, 0, 8, imageOf(32)}});
  EXPECT_EQ(find("picIconInFile")->size(), QSize(255, 255));
  EXPECT_TRUE(find("lblIconInFile")->rect().contains(find("picIconInFile")->geometry()));
}

TEST_F(HeaderDiffForm, AnEntryThatCannotBeShownGivesTheSelectionBack) {
  open();
  boxes.expectTold("Ref 6\nUnable to get this one", BoxIcon::None);
  key(Qt::Key_End);
  QTest::qWait(1);
  EXPECT_EQ(list()->selected(), 2);
  EXPECT_EQ(cells().first(), "16");
}

TEST_F(HeaderDiffForm, AnotherBaseListsByTheBitmapHeaders) {
  open();
  QTest::mouseClick(find("optBase(1)"), Qt::LeftButton, {}, QPoint(10, find("optBase(1)")->height() / 2));
  EXPECT_EQ(list()->item(1)->text(), "2\t4-BPP\t16-Color\t24 x 24");
  EXPECT_EQ(list()->selected(), 2);
  find("optBase(1)")->setFocus();
  key(Qt::Key_Up);
  EXPECT_TRUE(find<QRadioButton>("optBase(0)")->isChecked());
  EXPECT_EQ(list()->item(1)->text(), "2\t24-BPP\tTrue-Color\t24 x 24");
}

TEST_F(HeaderDiffForm, AFileWithoutIconsIsReportedAndTheFormStaysEmpty) {
  boxes.expectTold(kNoIcon, BoxIcon::None);
  form = make(folder.write("text.ico", "no icon"));
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(list()->count(), 0);
  EXPECT_EQ(cells(), QStringList({"", "", "", "", "", ""}));
  EXPECT_FALSE(find("cmdSalvage")->isEnabled());
}

TEST_F(HeaderDiffForm, SalvageWritesTheCopy) {
  open();
  const std::string target = folder.file("out.ico");
  dialogs.paths = {target};
  boxes.expectAsked("Salvage to \n\n" + target + "\nProceed?", BoxAnswer::Yes);
  boxes.expectTold(
      "File salvaged to " + target + "\n\n(per bitmap header entry, irrespective of actual color depth)\n\n",
      BoxIcon::None);
  QTest::keyClick(form.get(), Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return boxes.done(); }));
  std::vector<Told> truth = kLying;
  truth[1].bits = truth[2].bits = 4;
  EXPECT_EQ(folder.read("out.ico"), iconFileOf(truth));
  EXPECT_TRUE(form->isVisible());
}

TEST_F(HeaderDiffForm, ExitEscapeAndEnterCloseIt) {
  for (const Qt::Key closing : {Qt::Key_Escape, Qt::Key_Return}) {
    open();
    key(closing);
    EXPECT_FALSE(form->isVisible());
  }
  open();
  QTest::mouseClick(find("cmdExit"), Qt::LeftButton);
  EXPECT_FALSE(form->isVisible());
}

TEST_F(HeaderDiffForm, TabFollowsTheEye) {
  open();
  QStringList order;
  for (int i = 0; i < 5; ++i) {
    order << form->focusWidget()->objectName();
    QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(order, (QStringList{"lisIcons", "optBase(0)", "cmdSalvage", "cmdExit", "lisIcons"}));
}

TEST_F(HeaderDiffForm, AccessLettersAreUnique) {
  open();
  QString letters;
  const auto note = [&](const QString& caption) { letters += caption.mid(caption.indexOf('&') + 1, 1).toUpper(); };
  for (const QLabel* label : form->findChildren<QLabel*>())
    if (label->buddy()) note(label->text());
  for (const QAbstractButton* button : form->findChildren<QAbstractButton*>()) note(button->text());
  EXPECT_EQ(letters.size(), 5);
  QString sorted = letters;
  std::sort(sorted.begin(), sorted.end());
  EXPECT_EQ(sorted, "BEISX");
}

TEST_F(HeaderDiffForm, TheFileIsNamedInFullInTheTooltip) {
  const std::string path = folder.write("<b>odd.ico", iconFileOf(kLying));
  form = make(path);
  EXPECT_EQ(find("lblFileSpec")->toolTip(), pathToText(path).toHtmlEscaped());
  EXPECT_EQ(find<TextCell>("lblFileSpec")->text(), toText(ShortenPath(path)));
}

TEST_F(HeaderDiffForm, AssistiveTechnologyHearsTheTable) {
  open();
  QAccessibleInterface* cell = QAccessible::queryAccessibleInterface(find("lblIDEColor"));
  EXPECT_EQ(cell->text(QAccessible::Name), "Colors per icon directory entry");
  EXPECT_EQ(cell->text(QAccessible::Value), "16");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(find("lblIconInFile"))->text(QAccessible::Value), "32 by 32 pixels");
}

TEST_F(HeaderDiffForm, NothingMovesWhenTheListFills) {
  boxes.expectTold(kNoIcon, BoxIcon::None);
  form = make(folder.write("text.ico", "no icon"));
  const QSize empty = form->minimumSizeHint();
  open();
  EXPECT_EQ(form->minimumSizeHint(), empty);
}

TEST_F(HeaderDiffForm, LooksRight) {
  const std::string path =
      folder.write("an icon file with a rather long name, made by a careless program.ico", iconFileOf(kLying));
  test::saveInBothThemes("frmGPHeaderDiff", [&] { return make(path); });
}

}  // namespace
}  // namespace gp

// fraPanel(1): the Icons List on the screen, by mouse and keyboard.
#include "document/PanelNumbers.h"
#include "document/ui/SurfacePainting.h"
#include "platform/qt/widgets/PanelFrame.h"
#include "ui/FormFixture.h"
#include "ui/IconFiles.h"
#include "ui/Screens.h"

#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>
#include <QWindow>

namespace gp {
namespace {

constexpr int kRing = 2;
constexpr int kIcons = 30;
// The number behind names that sort as numbers do.
std::string numbered(int i) { return (i < 10 ? "icon0" : "icon") + std::to_string(i) + ".ico"; }

class IconsListViewTest : public test::FormFixture {
 protected:
  IconsList& list() { return shell.extraction().list; }
  QWidget* frame() { return find("fraPanel(1)"); }
  QWidget* surface() { return find("picIconsList"); }
  QScrollBar* bar() { return find<QScrollBar>("VsrIconsList"); }
  template <class Widget = QWidget>
  Widget* inFrame(const char* name) {
    return frame()->findChild<Widget*>(name);
  }

  // A folder of icons whose colours follow from their names.
  std::string iconFolder(int count) {
    const std::string path = folder.makeFolder("icons" + std::to_string(count));
    for (int i = 0; i < count; ++i)
      folder.write("icons" + std::to_string(count) + "/" + numbered(i), test::plainIconFile(32, i % 16));
    return path;
  }
  void listFolder(const std::string& path) {
    dialogs.paths = {path};
    find<QAction>("mnuFileSub(8)")->trigger();
    settle();
  }
  void openFolder(int count = kIcons) {
    start();
    listFolder(iconFolder(count));
  }
  // The middle of a cell's icon in the widget.
  QPoint middleOfIcon(int cell) {
    const CellPlace place = list().grid().iconPlace(cell);
    return {kRing + place.left + 16, kRing + place.top + 16 - list().scrollValue()};
  }
  QColor pixel(const QPoint& at) { return surface()->grab().toImage().pixelColor(at); }
  void clickCell(int cell, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(surface(), button, Qt::NoModifier, middleOfIcon(cell));
    settle();
  }
  std::string currentFile() { return state.current().path.trimmed(); }
  QString spoken(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Description);
  }
  std::string inFolder(int count, int i) {
    return folder.path() + "/icons" + std::to_string(count) + "/" + numbered(i);
  }
};

TEST_F(IconsListViewTest, AFolderIsShownWithItsKindSourceCountsAndPages) {
  openFolder();
  EXPECT_TRUE(frame()->isVisible());
  EXPECT_TRUE(surface()->hasFocus());
  EXPECT_EQ(valueOf(inFrame("lblExtract(1)")), "Icons  30 / 30");
  EXPECT_EQ(valueOf(inFrame("lblForExtendedFrame")).toStdString(), folder.path() + "/icons30");
  EXPECT_EQ(find<QComboBox>("cboPanelNum")->count(), 1);
  EXPECT_FALSE(find("cmdNextPanel")->isEnabled());
  for (int page = 0; page < 4; ++page) EXPECT_EQ(indexed("cmdPageRef", page)->isVisible(), page < 3) << page;
  EXPECT_TRUE(find("cmdNextPage")->isVisible());
  EXPECT_FALSE(find("cmdSaveAllExtractToFiles(0)")->isVisible());
  EXPECT_FALSE(find("cmdPrintIconsList")->isEnabled());
  EXPECT_EQ(find("cmdPrintIconsList")->toolTip(), "Print icons in the list");
}

TEST_F(IconsListViewTest, FourRowsAreVisibleAtTheSmallestSize) {
  openFolder();
  form->resize(100, 100);
  settle();
  ASSERT_EQ(form->size(), QSize(793, 576));
  const ListGrid& grid = list().grid();
  EXPECT_EQ(grid.baseHeight(), surface()->height() - 2 * kRing);
  EXPECT_EQ(grid.width(), surface()->width() - 2 * kRing);
  const CellPlace last = grid.iconPlace(kCellsOnPage - 1);
  EXPECT_LE(last.top + 32, grid.baseHeight());
  EXPECT_GE(last.top + 32, grid.baseHeight() * 3 / 4) << "all of the height is used";
}

TEST_F(IconsListViewTest, TheIconsAreOnTheGroundThatDoesNotFollowTheTheme) {
  openFolder();
  for (const int cell : {0, 1, 2, 11}) {
    const CellPlace place = list().grid().iconPlace(cell);
    const QImage shown = surface()->grab().toImage();
    const Surface& picture = list().cells()[static_cast<std::size_t>(cell)].picture;
    ASSERT_EQ(picture.width(), 32);
    for (const QPoint at : {QPoint(0, 0), QPoint(31, 31), QPoint(9, 20)})
      EXPECT_EQ(shown.pixel(QPoint(kRing + place.left, kRing + place.top) + at),
                toRgb(picture.GetPixel(at.x(), at.y())))
          << cell;
  }
  EXPECT_EQ(pixel({kRing + 1, surface()->height() - kRing - 1}).rgb(), toRgb(kGround));
}

TEST_F(IconsListViewTest, ALeftClickBringsTheIconAndStaysAndARightClickLeaves) {
  openFolder();
  clickCell(4);
  EXPECT_EQ(currentFile(), inFolder(30, 4));
  EXPECT_EQ(list().markedCell(), 4);
  EXPECT_EQ(state.screen.mActivePanel, kIconsListPanel);
  clickCell(7, Qt::RightButton);
  EXPECT_EQ(currentFile(), inFolder(30, 7));
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
}

TEST_F(IconsListViewTest, AReleaseOutsideOfTheIconsDoesNothing) {
  openFolder();
  QTest::mousePress(surface(), Qt::LeftButton, Qt::NoModifier, middleOfIcon(0));
  QTest::mouseRelease(surface(), Qt::LeftButton, Qt::NoModifier, QPoint(20, surface()->height() + 40));
  QTest::mouseClick(surface(), Qt::MiddleButton, Qt::NoModifier, middleOfIcon(0));
  settle();
  EXPECT_EQ(list().markedCell(), -1);
  EXPECT_FALSE(state.current().used);
}

TEST_F(IconsListViewTest, TheMarkIsARectangleAroundTheCell) {
  openFolder();
  const QImage before = surface()->grab().toImage();
  clickCell(4);
  const QImage after = surface()->grab().toImage();
  const CellPlace cell = list().grid().cellPlace(4);
  const QPoint corner(kRing + cell.left, kRing + cell.top);
  const QColor mark = after.pixelColor(corner);
  EXPECT_NE(mark.rgb(), toRgb(kGround));
  EXPECT_EQ(after.pixelColor(corner + QPoint(1, 1)), mark) << "two pixels wide";
  EXPECT_EQ(after.pixelColor(corner + QPoint(cell.width - 1, cell.height - 1)), mark);
  EXPECT_EQ(after.pixelColor(corner + QPoint(2, 2)), before.pixelColor(corner + QPoint(2, 2)));
  clickCell(0);
  EXPECT_EQ(pixel(corner).rgb(), toRgb(kGround)) << "the former mark is gone";
}

TEST_F(IconsListViewTest, KeysMoveTheMarkAndTakeTheIcon) {
  openFolder();
  key(Qt::Key_Home);
  EXPECT_EQ(list().markedCell(), 0);
  key(Qt::Key_Right);
  key(Qt::Key_Down);
  EXPECT_EQ(list().markedCell(), 4);
  key(Qt::Key_Left);
  key(Qt::Key_Up);
  EXPECT_EQ(list().markedCell(), 0);
  key(Qt::Key_PageDown);
  EXPECT_EQ(list().markedCell(), 12);
  EXPECT_GT(bar()->value(), 0) << "the marked cell is visible";
  key(Qt::Key_PageUp);
  EXPECT_EQ(list().markedCell(), 0);
  key(Qt::Key_End);
  EXPECT_EQ(list().markedCell(), kIcons - 1);
  EXPECT_EQ(currentFile(), "") << "moving takes nothing";
  key(Qt::Key_Return);
  EXPECT_EQ(currentFile(), inFolder(30, kIcons - 1));
  EXPECT_EQ(state.screen.mActivePanel, kIconsListPanel);
  key(Qt::Key_Home);
  key(Qt::Key_Enter, Qt::ControlModifier);
  EXPECT_EQ(currentFile(), inFolder(30, 0));
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
}

TEST_F(IconsListViewTest, EscClosesThePanel) {
  openFolder();
  key(Qt::Key_Escape);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
}

TEST_F(IconsListViewTest, ThePageButtonsScrollAndShowTheCurrentPage) {
  openFolder();
  EXPECT_TRUE(find<QAbstractButton>("cmdPageRef(0)")->isChecked());
  click("cmdPageRef(2)");
  EXPECT_EQ(bar()->value(), bar()->maximum() / 3 * 2);
  EXPECT_TRUE(find<QAbstractButton>("cmdPageRef(2)")->isChecked());
  EXPECT_FALSE(find<QAbstractButton>("cmdPageRef(0)")->isChecked());
  click("cmdNextPage");
  EXPECT_TRUE(find<QAbstractButton>("cmdPageRef(0)")->isChecked()) << "behind the last page comes the first";
  EXPECT_EQ(bar()->value(), 0);
}

TEST_F(IconsListViewTest, ThePageButtonOfTheCurrentPageDiffersByMoreThanItsColor) {
  openFolder();
  QWidget* current = indexed("cmdPageRef", 0);
  QWidget* other = indexed("cmdPageRef", 1);
  const QImage shown = current->grab().toImage(), plain = other->grab().toImage();
  EXPECT_EQ(shown.pixel(4, 4), toRgb(0xFFFF80));
  EXPECT_EQ(plain.pixel(4, 4), toRgb(kGround));
  for (const QPoint at : {QPoint(0, 0), QPoint(1, 1)}) EXPECT_EQ(shown.pixelColor(at), QColor(Qt::black));
  EXPECT_NE(plain.pixelColor(1, 1), QColor(Qt::black));
}

TEST_F(IconsListViewTest, TheWheelScrollsAndLeavesThePages) {
  openFolder();
  QWidget* strip = find("picIconsListBase");  // which gets the wheel also from the icons
  const QPointF at = strip->rect().center();
  QWheelEvent turn(at, strip->mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                   false);
  QApplication::sendEvent(strip, &turn);
  settle();
  EXPECT_GT(list().scrollValue(), 0);
  EXPECT_EQ(bar()->value(), list().scrollValue());
  for (int page = 0; page < 3; ++page)
    EXPECT_FALSE(find<QAbstractButton>(QString("cmdPageRef(%1)").arg(page))->isChecked());
  bar()->setValue(0);
  EXPECT_EQ(list().scrollValue(), 0);
}

TEST_F(IconsListViewTest, ClicksFollowTheScrollPosition) {
  openFolder();
  click("cmdPageRef(1)");
  const int scroll = list().scrollValue();
  ASSERT_GT(scroll, 0);
  clickCell(13);
  EXPECT_EQ(list().markedCell(), 13);
  EXPECT_EQ(currentFile(), inFolder(30, 13));
}

TEST_F(IconsListViewTest, MorePanelsAreReachedByListAndButton) {
  openFolder(100);
  auto* panels = find<QComboBox>("cboPanelNum");
  ASSERT_EQ(panels->count(), 3);
  EXPECT_EQ(panels->itemText(2), "3");
  click("cmdNextPanel");
  EXPECT_EQ(panels->currentIndex(), 1);
  panels->setCurrentIndex(2);
  emit panels->activated(2);
  settle();
  EXPECT_EQ(list().panelItem(), 2);
  EXPECT_EQ(valueOf(inFrame("lblExtract(1)")), "Icons  4 / 100");
  clickCell(3);
  EXPECT_EQ(currentFile(), inFolder(100, 99));
}

TEST_F(IconsListViewTest, AnInvalidCellHasADiagonalLine) {
  start();
  const std::string path = folder.makeFolder("bad");
  folder.write("bad/a.ico", test::plainIconFile(32, 3));
  folder.write("bad/b.ico", "no icon");
  listFolder(path);
  ASSERT_EQ(list().cells().size(), 2u);
  EXPECT_FALSE(list().cells()[1].valid);
  const CellPlace icon = list().grid().iconPlace(1);
  const QImage shown = surface()->grab().toImage();
  for (const int i : {0, 10, 31})
    EXPECT_EQ(shown.pixelColor(kRing + icon.left + i, kRing + icon.top + i), QColor(Qt::black)) << i;
  EXPECT_EQ(shown.pixel(kRing + icon.left + 20, kRing + icon.top + 10), toRgb(kGround));
  boxes.expectTold("This one is an invalid icon file or of a size not 16x16, 24x24, 32x32 or 48x48.", BoxIcon::None);
  clickCell(1);
}

TEST_F(IconsListViewTest, ACellHasTheWholeNameOfItsFileAsTooltip) {
  start();
  const std::string path = folder.makeFolder("names");
  folder.write("names/a long <b>name of an icon.ico", test::plainIconFile(32, 3));
  listFolder(path);
  ASSERT_EQ(list().cells().front().label, "a long <..");
  const auto tip = [&](const QPoint& at) {
    QHelpEvent help(QEvent::ToolTip, at, surface()->mapToGlobal(at));
    QApplication::sendEvent(surface(), &help);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
  };
  EXPECT_EQ(tip(middleOfIcon(0)), "a long &lt;b&gt;name of an icon.ico");
}

TEST_F(IconsListViewTest, EveryControlIsNamedAndTabFollowsTheEye) {
  openFolder(100);
  const auto name = [](QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
  };
  EXPECT_EQ(name(find("cmdPageRef(1)")), "Page 2");
  EXPECT_EQ(name(find("cmdNextPage")), "Next page");
  EXPECT_EQ(name(find("cmdNextPanel")), "Next panel");
  EXPECT_EQ(name(find("cmdInvokeFolderOrFileDialog")), "Choose another folder or file");
  EXPECT_EQ(name(find("cmdPrintIconsList")), "Print icons in the list");
  EXPECT_EQ(name(find("VsrIconsList")), "Scroll icons");
  EXPECT_EQ(name(surface()), "Icons");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(surface())->role(), QAccessible::List);
  find("cmdInvokeFolderOrFileDialog")->setFocus();
  for (const char* control :
       {"cmdInvokeFolderOrFileDialog", "cboPanelNum", "cmdNextPanel", "picIconsList", "cmdPageRef(0)", "cmdPageRef(1)",
        "cmdPageRef(2)", "cmdPageRef(3)", "cmdNextPage", "cmdCancel"}) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), control);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
}

TEST_F(IconsListViewTest, TheMarkedIconIsSpoken) {
  openFolder();
  EXPECT_EQ(spoken(surface()), "Icons 30 / 30");
  key(Qt::Key_Home);
  EXPECT_EQ(spoken(surface()).toStdString(), list().spokenMark());
  EXPECT_EQ(spoken(surface()), "Icon 1 of 30, icon00.ico, 32 by 32");
}

// What happens while the list is being drawn: at its first pump.
class IconsListDrawingTest : public IconsListViewTest {
 protected:
  // Runs `action` while the icons of a folder are drawn, with the panel open.
  void whileDrawing(const std::function<void()>& action) {
    openFolder();
    bool ran = false;
    pump.inside = [&] { once(action, ran); };
    clickPanels();
    EXPECT_TRUE(ran) << "the list was drawn without a pump";
  }
  void once(const std::function<void()>& action, bool& ran) {
    if (!list().isDrawing()) {
      pump.inside = [this, &action, &ran] { once(action, ran); };
      return;
    }
    ran = true;
    action();
  }
  // Lists the same folder again.
  void clickPanels() {
    dialogs.paths = {folder.path() + "/icons30"};
    click("cmdInvokeFolderOrFileDialog");
  }
  int drawnCells() {
    return static_cast<int>(std::ranges::count_if(list().cells(), [](const ListCell& cell) { return cell.isDrawn; }));
  }
};

TEST_F(IconsListDrawingTest, EscStopsItAndThePanelStays) {
  whileDrawing([this] { QTest::keyClick(form->windowHandle(), Qt::Key_Escape); });
  EXPECT_FALSE(list().isDrawing());
  EXPECT_LT(drawnCells(), kIcons);
  EXPECT_EQ(state.screen.mActivePanel, kIconsListPanel);
  EXPECT_TRUE(find("cboPanelNum")->isEnabled());
}

TEST_F(IconsListDrawingTest, MouseAndKeysOfTheFormDoNothing) {
  whileDrawing([this] {
    EXPECT_FALSE(find("cboPanelNum")->isEnabled());
    EXPECT_FALSE(find("cmdPageRef(0)")->isEnabled());
    EXPECT_TRUE(surface()->hasFocus());
    QWidget* button = find("cmdCancel");
    const QPoint at = button->mapTo(form.get(), button->rect().center());
    QTest::mouseClick(form->windowHandle(), Qt::LeftButton, Qt::NoModifier, at);
    QTest::keyClick(form->windowHandle(), Qt::Key_2, Qt::ControlModifier);
    QTest::keyClick(form->windowHandle(), Qt::Key_Return);
  });
  EXPECT_EQ(state.screen.mActivePanel, kIconsListPanel);
  EXPECT_EQ(drawnCells(), kIcons);
  EXPECT_TRUE(find("cmdInvokeFolderOrFileDialog")->hasFocus()) << "where it was";
}

// Otherwise the next control that is enabled, Close, would have it.
TEST_F(IconsListDrawingTest, TheIconsHaveTheFocusMeanwhile) {
  openFolder(100);
  click("cmdPageRef(3)");
  bool ran = false;
  const std::function<void()> look = [this] { EXPECT_TRUE(surface()->hasFocus()); };
  pump.inside = [&] { once(look, ran); };
  click("cmdNextPage");
  EXPECT_TRUE(ran);
  EXPECT_EQ(list().panelItem(), 1);
  EXPECT_TRUE(find("cmdNextPage")->hasFocus());
}

TEST_F(IconsListViewTest, LooksRightInBothThemes) {
  for (const char* theme : {"", "-dark"}) {
    QApplication::setPalette(*theme ? test::darkPalette() : QPalette());
    start();
    const std::string path = folder.makeFolder("mixed");
    for (int i = 0; i < 26; ++i) folder.write("mixed/" + numbered(i), test::plainIconFile(i % 2 ? 16 : 32, i % 16));
    folder.write("mixed/a long name of an icon.ico", test::plainIconFile(48, 5));
    folder.write("mixed/bad.ico", "no icon");
    listFolder(path);
    key(Qt::Key_Home);
    key(Qt::Key_Right);
    screenshot(QString("icons-list%1").arg(theme));
    key(Qt::Key_Escape);
    form.reset();
  }
  QApplication::setPalette(QPalette());
}

}  // namespace
}  // namespace gp

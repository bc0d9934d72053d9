#include "document/ui/IconsPanelView.h"
#include "document/ui/SurfacePainting.h"
#include "ui/FormFixture.h"

#include <QMimeData>
#include <QUrl>

namespace gp {
namespace {

class IconsPanelViewTest : public test::FormFixture {
 protected:
  QColor labelColor(int container) { return indexed("lblPanelIcon", container)->palette().color(QPalette::Window); }
  // A drag of files over a container; true when it is accepted.
  bool drag(int container, const std::vector<std::string>& files) {
    QMimeData data;
    QList<QUrl> urls;
    for (const std::string& file : files) urls << QUrl::fromLocalFile(toText(file));
    data.setUrls(urls);
    return drag(container, data);
  }
  bool drag(int container, const QMimeData& data) {
    QWidget* target = indexed("picPanelIcon", container);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(target, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &drop);
    settle();
    return true;
  }
};

TEST_F(IconsPanelViewTest, AClickOnAContainerOrItsLabelMakesItCurrent) {
  start();
  click(indexed("picPanelIcon", 2));
  EXPECT_EQ(state.mCurContainer, 2);
  EXPECT_EQ(labelColor(2), Qt::white);
  EXPECT_EQ(labelColor(0), QColor(0xE0, 0xE0, 0xE0));
  click(indexed("lblPanelIcon", 4));
  EXPECT_EQ(state.mCurContainer, 4);
  QTest::mouseDClick(indexed("picPanelIcon", 1), Qt::LeftButton);
  QTest::mouseRelease(indexed("picPanelIcon", 1), Qt::LeftButton);
  EXPECT_EQ(state.mCurContainer, 1);
  click(indexed("picPanelIcon", 5), Qt::RightButton);
  EXPECT_EQ(state.mCurContainer, 5);
}

TEST_F(IconsPanelViewTest, ContainersAreRadioButtonsDescribedByTheirFile) {
  startWithIcon(16);
  for (int i = 0; i < kContainerCount; ++i) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(indexed("picPanelIcon", i));
    EXPECT_EQ(spoken->text(QAccessible::Name), QString("Container %1").arg(i + 1));
    EXPECT_EQ(spoken->role(), QAccessible::RadioButton);
    EXPECT_EQ(spoken->text(QAccessible::Description), i == 0 ? "icon.ico" : "empty");
    EXPECT_TRUE(spoken->state().checkable);
    EXPECT_EQ(static_cast<bool>(spoken->state().checked), i == 0);
  }
  QAccessible::queryAccessibleInterface(indexed("picPanelIcon", 3))
      ->actionInterface()
      ->doAction(QAccessibleActionInterface::pressAction());
  QTest::qWait(200);
  EXPECT_EQ(state.mCurContainer, 3);
  EXPECT_TRUE(QAccessible::queryAccessibleInterface(indexed("picPanelIcon", 3))->state().checked);
  EXPECT_FALSE(QAccessible::queryAccessibleInterface(indexed("picPanelIcon", 0))->state().checked);
}

TEST_F(IconsPanelViewTest, ArrowsAndDigitsMoveWithinTheColumnEnterAndSpaceSwitch) {
  start();
  indexed("picPanelIcon", 0)->setFocus(Qt::TabFocusReason);
  key(Qt::Key_Down);
  key(Qt::Key_Down);
  EXPECT_EQ(QApplication::focusWidget(), indexed("picPanelIcon", 2));
  EXPECT_EQ(state.mCurContainer, 0);
  key(Qt::Key_Return);
  EXPECT_EQ(state.mCurContainer, 2);
  key(Qt::Key_6);
  EXPECT_EQ(QApplication::focusWidget(), indexed("picPanelIcon", 5));
  key(Qt::Key_Space);
  EXPECT_EQ(state.mCurContainer, 5);
}

TEST_F(IconsPanelViewTest, ADropIsACopyWhateverTheSourceProposes) {
  start();
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(toText(folder.write("a.ico", test::plainIconFile(16, 3))))});
  QWidget* target = indexed("picPanelIcon", 2);
  const auto send = [&](QDropEvent& event, Qt::DropAction proposed) {
    event.setDropAction(proposed);
    event.ignore();
    QCoreApplication::sendEvent(target, &event);
  };
  for (const Qt::DropAction proposed : {Qt::MoveAction, Qt::LinkAction, Qt::CopyAction}) {
    const Qt::DropActions possible = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
    QDragEnterEvent enter(QPoint(5, 5), possible, &data, Qt::LeftButton, Qt::ShiftModifier);
    QDragMoveEvent over(QPoint(5, 5), possible, &data, Qt::LeftButton, Qt::ShiftModifier);
    QDropEvent drop(QPointF(5, 5), possible, &data, Qt::LeftButton, Qt::ShiftModifier);
    for (QDropEvent* event : {static_cast<QDropEvent*>(&enter), static_cast<QDropEvent*>(&over), &drop}) {
      send(*event, proposed);
      EXPECT_TRUE(event->isAccepted());
      EXPECT_EQ(event->dropAction(), Qt::CopyAction);
    }
    settle();
    EXPECT_TRUE(state.mIconRecs[2].used);
    shell.document().iconsPanel.showEmptyContainer();
  }
}

TEST_F(IconsPanelViewTest, ASourceThatOffersOnlyToMoveItsFileIsRefused) {
  start();
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(toText(folder.write("a.ico", test::plainIconFile(16, 3))))});
  QWidget* target = indexed("picPanelIcon", 2);
  QDragEnterEvent onlyMove(QPoint(5, 5), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
  onlyMove.accept();
  QCoreApplication::sendEvent(target, &onlyMove);
  EXPECT_FALSE(onlyMove.isAccepted());
  // Nor may it offer a copy at first and only a move later.
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(target, &enter);
  ASSERT_TRUE(enter.isAccepted());
  QDragMoveEvent over(QPoint(5, 5), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
  QDropEvent drop(QPointF(5, 5), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
  for (QDropEvent* event : {static_cast<QDropEvent*>(&over), &drop}) {
    event->accept();
    QCoreApplication::sendEvent(target, event);
    EXPECT_FALSE(event->isAccepted());
  }
  settle();
  EXPECT_FALSE(state.mIconRecs[2].used);
}

TEST_F(IconsPanelViewTest, ADroppedIconFileOpensInItsContainerWithoutAQuestion) {
  startWithIcon(16);
  EXPECT_TRUE(drag(3, {folder.write("d r\xC3\xB6p.ICO", test::plainIconFile(32, 2)), folder.file("other.ico")}));
  EXPECT_EQ(state.mCurContainer, 3);
  EXPECT_EQ(state.current().size, 32);
  EXPECT_EQ(state.current().path.trimmed(), folder.file("d r\xC3\xB6p.ICO"));
  EXPECT_TRUE(indexed("picPanelIcon", 3)->toolTip().endsWith(QString::fromUtf8("d r\xC3\xB6p.ICO")));
}

TEST_F(IconsPanelViewTest, ADropOfABitmapIsRefused) {
  start();
  EXPECT_FALSE(drag(3, {folder.file("picture.bmp")}));
  EXPECT_FALSE(drag(3, {folder.file("picture.bmp"), folder.file("icon.ico")})) << "the first file counts";
  EXPECT_FALSE(drag(3, std::vector<std::string>()));
}

TEST_F(IconsPanelViewTest, ADroppedNameNeedNotBeText) {
  start();
  QMimeData data;
  const std::string path = folder.write("a\xFF.ico", test::plainIconFile(16, 2));
  data.setData("text/uri-list", QByteArray::fromStdString("file://" + path).replace('\xFF', "%FF"));
  EXPECT_TRUE(drag(1, data));
  EXPECT_EQ(state.current().path.trimmed(), path);
  EXPECT_EQ(state.mCurContainer, 1);
}

TEST_F(IconsPanelViewTest, IconsStandOneToOneInTheMiddleOfTheirContainer) {
  startWithIcon(16);
  const QImage shown = indexed("picPanelIcon", 0)->grab().toImage();
  ASSERT_EQ(shown.size(), QSize(54, 54));
  constexpr int kCorner = (54 - 16) / 2;
  EXPECT_EQ(shown.pixel(kCorner - 1, 27), toRgb(kGround));
  EXPECT_EQ(shown.pixel(kCorner, kCorner), toRgb(rgb(252, 3, 48)));
  EXPECT_EQ(shown.pixel(kCorner + 15, kCorner + 15), toRgb(rgb(252, 3, 48)));
  EXPECT_EQ(shown.pixel(kCorner + 16, kCorner + 16), toRgb(kGround));
}

TEST_F(IconsPanelViewTest, TheUpdateButtonCopiesThePaintedIconToItsContainer) {
  startWithIcon(16);
  EXPECT_EQ(find("imgUpdIconsPanel")->toolTip(), "Update icons panel / clear Undo (same as clicking on icons panel)");
  state.mCurrentColor = rgb(1, 2, 3);
  click("imgTool(4)");
  QTest::mouseClick(find("picDisp"), Qt::LeftButton, {}, middleOf(0, 0));
  EXPECT_NE(state.picPanelIcon[0].GetPixel(0, 0), rgb(1, 2, 3));
  click("imgUpdIconsPanel");
  EXPECT_EQ(state.picPanelIcon[0].GetPixel(0, 0), rgb(1, 2, 3));
}

TEST_F(IconsPanelViewTest, TheSmallPictureTellsWhetherAnIconIsLoaded) {
  start();
  settle();
  EXPECT_EQ(find("PicIcon")->toolTip(), "Current icon (not loaded)");
  find<QAction>("mnuFileSub(2)")->trigger();
  EXPECT_EQ(find("PicIcon")->toolTip(), "Current icon");
  EXPECT_EQ(find("lblIcon")->toolTip(), "Current icon");
}

}  // namespace
}  // namespace gp

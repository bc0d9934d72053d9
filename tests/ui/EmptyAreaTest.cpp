// The Editing Area without an icon, and icon files dropped on it.
#include "document/ui/EmptyArea.h"
#include "document/ui/SurfacePainting.h"
#include "ui/Contrast.h"
#include "ui/FormFixture.h"
#include "ui/WholeTexts.h"

#include <QAbstractScrollArea>
#include <QMimeData>
#include <QUrl>

namespace gp {
namespace {

constexpr const char* kSaveQuestion = "Save current icon to file?";

class EmptyArea : public test::FormFixture {
 protected:
  ~EmptyArea() override { QApplication::setPalette(QPalette()); }
  // The ground around the Editing Area.
  QWidget* room() { return find<QAbstractScrollArea>("picDispContainer")->viewport(); }
  QImage area() { return test::seen(*find("picDisp")); }
  QImage ground() {
    QImage image(find("picDisp")->size(), QImage::Format_RGB32);
    image.fill(toRgb(kGround));
    return image;
  }
  bool drop(QWidget* target, const std::string& file) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(toText(file))});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(target, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
    settle();
    return true;
  }
};

TEST_F(EmptyArea, SaysHowAnIconComesThereWithinItsEdgesInEveryThemeAndSize) {
  EXPECT_STREQ(kEmptyAreaText, "Drop an icon here, Ctrl+O opens, Ctrl+N makes a new one");
  for (const int lightness : {239, 53}) {
    QApplication::setPalette(test::paletteOf(lightness));
    for (const int points : {9, 12, 14, 24}) {
      SCOPED_TRACE(points);
      const test::FontOf font(points);
      start();
      const QImage image = area();
      const QRect text = test::differenceOf(image, ground());
      EXPECT_GT(text.width(), 150);
      EXPECT_TRUE(image.rect().adjusted(20, 20, -20, -20).contains(text));
      EXPECT_NEAR(text.center().x(), image.rect().center().x(), 4);
      EXPECT_NEAR(text.center().y(), image.rect().center().y(), 4);
      double most = 0;
      for (int y = text.top(); y <= text.bottom(); ++y)
        for (int x = text.left(); x <= text.right(); ++x)
          most = std::max(most, test::contrast(image.pixelColor(x, y), QColor(toRgb(kGround))));
      EXPECT_GE(most, 4.5) << "text to read";
      form.reset();
    }
  }
}

TEST_F(EmptyArea, TheTextIsGoneWithTheFirstIconAndBackInAnEmptyContainer) {
  start();
  const QImage empty = area();
  find<QAction>("mnuFileSub(2)")->trigger();
  settle();
  state.current().neverSaved = state.current().modified = false;
  EXPECT_EQ(state.current().size, 32);
  EXPECT_NE(area(), empty);
  click(indexed("picPanelIcon", 3));
  EXPECT_EQ(area(), empty);
}

TEST_F(EmptyArea, AFileDroppedOnTheAreaOrAroundItOpensInTheCurrentContainer) {
  start();
  EXPECT_FALSE(drop(room(), folder.file("picture.bmp")));
  EXPECT_TRUE(room()->acceptDrops());
  EXPECT_TRUE(find("picDispContainer")->isAncestorOf(find("picDisp"))) << "a drop on the child comes to its parent";
  EXPECT_FALSE(find("picDisp")->acceptDrops());
  click(indexed("picPanelIcon", 2));
  EXPECT_TRUE(drop(room(), folder.write("a.ico", test::plainIconFile(16, 3))));
  EXPECT_EQ(state.mCurContainer, 2);
  EXPECT_TRUE(state.current().present);
  EXPECT_EQ(state.current().size, 16);
}

TEST_F(EmptyArea, ADropOverUnsavedWorkAsksAndCancelKeepsTheIcon) {
  start();
  find<QAction>("mnuFileSub(2)")->trigger();
  settle();
  QTest::mouseClick(find("picDisp"), Qt::LeftButton, {}, middleOf(1, 1));
  ASSERT_TRUE(state.IsIconChanged());
  const std::string path = folder.write("a.ico", test::plainIconFile(16, 3));
  boxes.expect(kSaveQuestion, BoxButtons::YesNoCancel, BoxIcon::Question, BoxAnswer::Cancel);
  EXPECT_TRUE(drop(room(), path));
  EXPECT_TRUE(boxes.done());
  EXPECT_EQ(state.current().size, 32);
}

}  // namespace
}  // namespace gp

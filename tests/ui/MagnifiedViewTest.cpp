#include "document/IconSizes.h"
#include "document/Magnifier.h"
#include "document/ui/MagnifiedView.h"
#include "document/ui/SurfacePainting.h"

#include <QAccessible>
#include <QDialog>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace gp {
namespace {

// A view as on a screen of another density.
class ViewAtRatio : public MagnifiedView {
 public:
  ViewAtRatio(QWidget* parent, const MagnifiedPicture& picture, double ratio)
      : MagnifiedView(parent, "view", "Alpha values", picture), ratio_(ratio) {
    refresh();
  }

 protected:
  int metric(PaintDeviceMetric which) const override {
    if (which == PdmDevicePixelRatioScaled) return static_cast<int>(ratio_ * devicePixelRatioFScale());
    return MagnifiedView::metric(which);
  }

 private:
  const double ratio_;
};

// A Surface that belongs to no icon on the Editing Area: each pixel has its own colour, with lines as grid.
struct Picture {
  explicit Picture(int size, int factor) : magnification(factor) {
    Surface image(size, size), mask(size, size, kBlack);
    for (int y = 0; y < size; ++y)
      for (int x = 0; x < size; ++x) image.SetPixelV(x, y, rgb(200 + x, 150 + y, 0xF0));
    surface = magnified(image, mask, factor, gridOf(gridColorOf(0)));
  }
  MagnifiedPicture shown() const { return {surface, magnification}; }

  Surface surface;
  int magnification;
};

constexpr double kRatios[] = {1.0, 1.25, 1.5, 2.0};

TEST(MagnifiedView, ShowsEachCellInTheSameWholeDevicePixelsAndLinesInOne) {
  for (const double ratio : kRatios)
    for (const int factor : {8, 10, 12, 15}) {
      const Picture picture(16, factor);
      ViewAtRatio view(nullptr, picture.shown(), ratio);
      const QImage shown = view.grab().toImage();
      const int cell = static_cast<int>(factor * ratio);
      ASSERT_GE(shown.width(), 16 * cell) << ratio;
      int wrong = 0;
      for (int y = 0; y < 16 * cell; ++y)
        for (int x = 0; x < 16 * cell; ++x) {
          const Color pixel = rgb(200 + x / cell, 150 + y / cell, 0xF0);
          const bool isLine = (x > 0 && x % cell == 0) || (y > 0 && y % cell == 0);
          wrong += shown.pixel(x, y) != toRgb(isLine ? pixel & 0x606060 : pixel);
        }
      EXPECT_EQ(wrong, 0) << "ratio " << ratio << ", factor " << factor;
    }
}

TEST(MagnifiedView, ReportsTheMouseInPixelsOfTheSurfaceAtEachRatio) {
  for (const double ratio : kRatios) {
    const Picture picture(16, 12);
    ViewAtRatio view(nullptr, picture.shown(), ratio);
    QSignalSpy pressed(&view, &MagnifiedView::pressed);
    const int cell = static_cast<int>(12 * ratio);
    const QPointF middle = QPointF(5.5 * cell, 9.5 * cell) / ratio;
    QTest::mousePress(&view, Qt::LeftButton, {}, middle.toPoint());
    ASSERT_EQ(pressed.size(), 1);
    const QPoint source = pressed[0][0].toPointF().toPoint();
    EXPECT_EQ(QPoint(source.x() / 12, source.y() / 12), QPoint(5, 9)) << ratio;
    EXPECT_EQ(view.pixelCursor(), QPoint(5, 9)) << ratio;
  }
}

TEST(MagnifiedView, FollowsASurfaceOfAnotherSizeAndMagnification) {
  Picture picture(16, 12);
  ViewAtRatio view(nullptr, picture.shown(), 1.0);
  EXPECT_EQ(view.size(), QSize(192, 192));
  picture = Picture(48, 8);
  view.refresh();
  EXPECT_EQ(view.size(), QSize(384, 384));
  EXPECT_EQ(view.grab().toImage().pixel(383, 383), toRgb(rgb(247, 197, 0xF0)));
}

TEST(MagnifiedView, TheKeyboardMovesThePixelCursorAndActsInTheMiddleOfACell) {
  const Picture picture(16, 12);
  ViewAtRatio view(nullptr, picture.shown(), 1.0);
  QSignalSpy pressed(&view, &MagnifiedView::pressed);
  QSignalSpy moved(&view, &MagnifiedView::moved);
  QSignalSpy released(&view, &MagnifiedView::released);
  QTest::keyClick(&view, Qt::Key_End);
  QTest::keyClick(&view, Qt::Key_Down);
  EXPECT_EQ(view.pixelCursor(), QPoint(15, 1));
  ASSERT_EQ(moved.size(), 2);
  EXPECT_EQ(moved[1][0].toPointF(), QPointF(15 * 12 + 6, 12 + 6));
  QTest::keyClick(&view, Qt::Key_Space);
  ASSERT_EQ(pressed.size(), 1);
  ASSERT_EQ(released.size(), 1);
  EXPECT_EQ(pressed[0][0].toPointF(), QPointF(15 * 12 + 6, 12 + 6));
  EXPECT_EQ(released[0][0], pressed[0][0]);
}

TEST(MagnifiedView, SpeaksWhatItsOwnerSaysOfThePixelUnderTheCursor) {
  const Picture picture(16, 12);
  ViewAtRatio view(nullptr, picture.shown(), 1.0);
  EXPECT_EQ(view.accessibleValue(), "");
  view.setPixelDescription([](QPoint pixel) { return QString("Alpha of %1, %2: 255").arg(pixel.x()).arg(pixel.y()); });
  QTest::keyClick(&view, Qt::Key_Right);
  EXPECT_EQ(view.accessibleValue(), "Alpha of 1, 0: 255");
  EXPECT_EQ(view.accessibleName(), "Alpha values");
  EXPECT_EQ(view.accessibleRole(), QAccessible::Canvas);
}

TEST(MagnifiedView, InADialogItEndsAHeldStrokeWhenAnotherWindowOpensOverIt) {
  const Picture picture(16, 12);
  QDialog dialog;
  dialog.setModal(true);
  auto* view = new ViewAtRatio(&dialog, picture.shown(), 1.0);
  (new QVBoxLayout(&dialog))->addWidget(view);
  dialog.show();
  QSignalSpy released(view, &MagnifiedView::released);
  QTest::mousePress(view, Qt::LeftButton, {}, QPoint(30, 40));
  QDialog question(&dialog);
  question.setModal(true);
  question.show();
  QCoreApplication::processEvents();
  ASSERT_EQ(released.size(), 1);
  EXPECT_EQ(released[0][0].toPointF(), QPointF(30, 40));
  question.close();
  QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(30, 40));
  EXPECT_EQ(released.size(), 1) << "the stroke has ended once";
}

TEST(MagnifiedView, PaintsOnlyThePartThatChanged) {
  const Picture picture(16, 12);
  struct Watched : ViewAtRatio {
    using ViewAtRatio::ViewAtRatio;
    QRegion painted;
    void paintEvent(QPaintEvent* event) override {
      painted += event->region();
      ViewAtRatio::paintEvent(event);
    }
  } view(nullptr, picture.shown(), 1.0);
  view.show();
  QCoreApplication::processEvents();
  view.painted = {};
  view.refreshPart(24, 36, 12, 12);
  QCoreApplication::processEvents();
  EXPECT_TRUE(view.painted.contains(QRect(24, 36, 12, 12)));
  EXPECT_TRUE(QRect(22, 34, 17, 17).contains(view.painted.boundingRect()));
}

}  // namespace
}  // namespace gp

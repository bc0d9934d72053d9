// The panels of sphere and gradient on the main form, used by mouse and keyboard.
#include "document/Containers.h"
#include "document/PanelNumbers.h"
#include "document/ui/SampleView.h"
#include "document/ui/SurfacePainting.h"
#include "effects/EffectCases.h"
#include "effects/GradientPanel.h"
#include "effects/SpherePanel.h"
#include "ui/FormFixture.h"

#include <QAction>
#include <QComboBox>
#include <QRadioButton>

namespace gp {
namespace {

constexpr Color kFirst = rgb(0, 0, 255);
constexpr int kSphereEntry = 2, kGradientEntry = 4;

class SphereGradientPanelsTest : public test::FormFixture {
 protected:
  void startWith(int size, int entry) {
    start();
    shell.document().arrival.arrive(test::generatedIcons(size).back(), NewRecord());
    settle();
    find<QAction>(QString("mnuEffectsSub(%1)").arg(entry))->trigger();
    settle();
  }
  SpherePanel& sphere() { return shell.effects().panel<SpherePanel>(); }
  GradientPanel& gradient() { return shell.effects().panel<GradientPanel>(); }
  // The middle of a pixel of a sample, in its own coordinates.
  QPoint pointIn(const char* name, int pixels, int x, int y) {
    const auto* sample = dynamic_cast<SampleView*>(find(name));
    const int factor = sample->place().width() / pixels;
    const QPoint device = sample->place().topLeft() + QPoint(x * factor + factor / 2, y * factor + factor / 2);
    return device / sample->devicePixelRatioF();
  }
  void clickAt(const char* name, int pixels, int x, int y, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(find(name), button, Qt::NoModifier, pointIn(name, pixels, x, y));
    settle();
  }
  static QString spoken(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Value);
  }
  static QString nameOf(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
  }
  void expectLight(int x, int y) {
    const IconImage ball =
        findEffect("sphere")->apply(transparentIcon(32), {kFirst, pointValue(x, y), sphere().sizeIndex(), 5});
    for (int pixel = 0; pixel < 32; ++pixel)
      if (ball.mask.GetPixel(pixel, 16) == kBlack) {
        ASSERT_EQ(sphere().PicSphere().GetPixel(pixel, 16), ball.image.GetPixel(pixel, 16)) << x << " " << y;
      }
  }
};

TEST_F(SphereGradientPanelsTest, TheControlsOfTheSphereHaveNames) {
  startWith(32, kSphereEntry);
  EXPECT_EQ(nameOf(find("cmdSphereColor")), "Click to select sphere color");
  EXPECT_EQ(find("cmdSphereColor")->toolTip(), "Click to select sphere color");
  EXPECT_EQ(find("cboSphere(0)")->accessibleName(), "Color adj factor");
  EXPECT_EQ(find("cboSphere(1)")->accessibleName(), "Size");
  EXPECT_EQ(nameOf(find("PicSphere(0)")), "Click to set the light");
  EXPECT_EQ(find("cmdSphereColor")->accessibleDescription(), "RGB: 0, 0, 255");
  EXPECT_EQ(find<QComboBox>("cboSphere(0)")->currentText(), "0.5");
  EXPECT_EQ(find<QComboBox>("cboSphere(1)")->currentText(), "Normal Size");
  for (const char* control : {"cmdSphereColor", "cboSphere(0)", "cboSphere(1)", "PicSphere(0)"})
    EXPECT_TRUE(find(control)->focusPolicy() & Qt::TabFocus) << control;
}

TEST_F(SphereGradientPanelsTest, TheLightMovesByMouse) {
  startWith(48, kSphereEntry);
  clickAt("PicSphere(0)", 32, 20, 24);
  expectLight(20, 24);
  EXPECT_EQ(spoken(find("PicSphere(0)")), "20, 24");
  // Every part of a pixel belongs to it.
  const auto* sample = dynamic_cast<SampleView*>(find("PicSphere(0)"));
  const int factor = sample->place().width() / 32;
  QTest::mouseClick(find("PicSphere(0)"), Qt::LeftButton, Qt::NoModifier,
                    sample->place().topLeft() + QPoint(21, 25) * factor - QPoint(1, 1));
  expectLight(20, 24);
  QTest::mouseClick(find("PicSphere(0)"), Qt::LeftButton, Qt::NoModifier,
                    sample->place().topLeft() + QPoint(20, 24) * factor);
  expectLight(20, 24);
  clickAt("PicSphere(0)", 32, 5, 14, Qt::RightButton);
  expectLight(20, 24);
  boxes.expectTold("Please click a point on sphere", BoxIcon::None);
  clickAt("PicSphere(0)", 32, 0, 0);
  expectLight(20, 24);
}

TEST_F(SphereGradientPanelsTest, TheLightMovesByArrowKeysAndEnterAndThePointIsSpoken) {
  startWith(32, kSphereEntry);
  QWidget* sample = find("PicSphere(0)");
  EXPECT_EQ(QApplication::focusWidget(), find("cboSphere(1)"));
  for (int i = 0; i < 3; ++i) key(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), sample) << "size, factor, color, light";
  EXPECT_EQ(spoken(sample), "11, 11");
  for (int i = 0; i < 3; ++i) key(Qt::Key_Right);
  key(Qt::Key_Down);
  key(Qt::Key_Up);
  key(Qt::Key_Down);
  EXPECT_EQ(spoken(sample), "14, 12");
  expectLight(11, 11);
  key(Qt::Key_Return);
  EXPECT_EQ(state.screen.mActivePanel, SpherePanel::kNumber) << "not Proceed";
  expectLight(14, 12);
  key(Qt::Key_Left);
  key(Qt::Key_Space);
  expectLight(13, 12);
  key(Qt::Key_Home);
  key(Qt::Key_Left);
  EXPECT_EQ(spoken(sample), "0, 12");
  key(Qt::Key_Escape);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
}

TEST_F(SphereGradientPanelsTest, TheFactorIsDisabledOnSmallerBallsAndARefusedSizeGoesBack) {
  startWith(24, kSphereEntry);
  auto* size = find<QComboBox>("cboSphere(1)");
  EXPECT_EQ(size->currentText(), "Small");
  EXPECT_FALSE(find("cboSphere(0)")->isEnabled());
  boxes.expectTold("Current icon is less then 32x 32.", BoxIcon::None);
  QTest::keyClick(size, Qt::Key_Home);
  EXPECT_EQ(size->currentText(), "Small");
  QTest::keyClick(size, Qt::Key_End);
  EXPECT_EQ(size->currentText(), "Tiny");
  EXPECT_EQ(sphere().sizeIndex(), 2);
}

TEST_F(SphereGradientPanelsTest, TheColorButtonOpensTheDialogByMouseAndKeys) {
  startWith(32, kSphereEntry);
  dialogs.colors = {rgb(10, 20, 30), rgb(1, 1, 1), rgb(2, 2, 2)};
  click("cmdSphereColor");
  EXPECT_EQ(find("cmdSphereColor")->accessibleDescription(), "RGB: 10, 20, 30");
  find("cmdSphereColor")->setFocus();
  key(Qt::Key_Space);
  EXPECT_EQ(sphere().color(), rgb(1, 1, 1));
  key(Qt::Key_Return);
  EXPECT_EQ(sphere().color(), rgb(2, 2, 2));
  EXPECT_EQ(state.screen.mActivePanel, SpherePanel::kNumber);
}

TEST_F(SphereGradientPanelsTest, TheFourGradientsAreSideBySideWithNames) {
  startWith(48, kGradientEntry);
  int right = -1;
  const char* const captions[] = {"Linear", "Symmetric", "Square", "Spherical"};
  for (int kind = 0; kind < kGradientKinds; ++kind) {
    QWidget* sample = indexed("PicGradient", kind);
    EXPECT_GT(sample->x(), right);
    EXPECT_EQ(sample->y(), indexed("PicGradient", 0)->y());
    right = sample->geometry().right();
    EXPECT_EQ(nameOf(indexed("OptGradType", kind)), captions[kind]);
    EXPECT_EQ(sample->grab().toImage().pixel(dynamic_cast<SampleView*>(sample)->place().topLeft() + QPoint(24, 24)),
              toRgb(gradient().PicGradient(kind).GetPixel(24, 24)))
        << kind;
  }
  EXPECT_EQ(nameOf(find("PicGradient(3)")), "Click to change center point");
  EXPECT_EQ(nameOf(find("cmdGradientColor(0)")), "Click for first color");
  EXPECT_EQ(nameOf(find("cmdGradientColor(1)")), "Click for second color");
  EXPECT_EQ(nameOf(find("cmdGradientColor(2)")), "Swap 1st & 2nd colors");
  EXPECT_EQ(find("cboGradientAngle(0)")->accessibleName(), "Linear angle");
  EXPECT_EQ(find("cboGradientAngle(1)")->accessibleName(), "Symmetric angle");
  EXPECT_EQ(find<QComboBox>("cboGradientAngle(0)")->count(), 361);
  EXPECT_EQ(find<QComboBox>("cboGradientAngle(1)")->count(), 361);
}

TEST_F(SphereGradientPanelsTest, TheKindIsChosenByMouseAndArrowKeys) {
  startWith(32, kGradientEntry);
  EXPECT_EQ(QApplication::focusWidget(), find("OptGradType(0)"));
  key(Qt::Key_Down);
  EXPECT_EQ(gradient().kind(), GradientKind::Symmetric);
  click("OptGradType(3)");
  EXPECT_EQ(gradient().kind(), GradientKind::Spherical);
  EXPECT_TRUE(find<QRadioButton>("OptGradType(3)")->isChecked());
  key(Qt::Key_Return);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
}

TEST_F(SphereGradientPanelsTest, TheCenterMovesByTheLeftButtonAndByKeys) {
  startWith(16, kGradientEntry);
  const auto isAround = [this](int x, int y) {
    return test::samePixels(gradient().PicGradient(3),
                            gradientPicture(16, 16, {3, kFirst, kWhite, 0, pointValue(x, y)}));
  };
  EXPECT_TRUE(isAround(8, 8));
  EXPECT_EQ(spoken(find("PicGradient(3)")), "8, 8");
  clickAt("PicGradient(3)", 16, 2, 13, Qt::RightButton);
  EXPECT_TRUE(isAround(8, 8));
  clickAt("PicGradient(3)", 16, 2, 13);
  EXPECT_TRUE(isAround(2, 13));
  EXPECT_EQ(spoken(find("PicGradient(3)")), "2, 13");
  EXPECT_EQ(QApplication::focusWidget(), find("PicGradient(3)"));
  key(Qt::Key_End);
  key(Qt::Key_Return);
  EXPECT_TRUE(isAround(15, 13));
}

TEST_F(SphereGradientPanelsTest, AnglesAndColorsReachTheSamples) {
  startWith(32, kGradientEntry);
  QTest::keyClick(find<QComboBox>("cboGradientAngle(1)"), Qt::Key_Down);
  EXPECT_EQ(gradient().angle(1), 1);
  QTest::keyClick(find<QComboBox>("cboGradientAngle(0)"), Qt::Key_End);
  EXPECT_EQ(gradient().angle(0), 360);
  dialogs.colors = {rgb(5, 6, 7)};
  click("cmdGradientColor(1)");
  click("cmdGradientColor(2)");
  EXPECT_EQ(gradient().color(0), rgb(5, 6, 7));
  EXPECT_EQ(gradient().color(1), kFirst);
  EXPECT_EQ(find("cmdGradientColor(0)")->accessibleDescription(), "RGB: 5, 6, 7");
}

}  // namespace
}  // namespace gp

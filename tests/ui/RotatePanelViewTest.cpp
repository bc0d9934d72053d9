#include "document/ui/SampleView.h"
#include "drawing/RegionFixture.h"
#include "drawing/ui/RotatePanelView.h"
#include "ui/Screens.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

namespace gp {
namespace {

constexpr int kPanelWidth = 264;
constexpr int kPanelHeight = 460;

class RotatePanelViewTest : public test::RegionFixture {
 protected:
  QWidget window;
  RotatePanelView* view = nullptr;

  void SetUp() override {
    makeIcon(16, {"", "", ".aaaaaaaaaaaa", ".abbbbbbbbbba", ".abc", ".abc", ".abc", ".abc", ".abc"});
    window.resize(kPanelWidth, kPanelHeight);
    view = new RotatePanelView(&window, rotatePanel);
    view->setGeometry(0, 0, kPanelWidth, kPanelHeight);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    display.onChanged = [this](DisplayPart part) {
      if (part == DisplayPart::SidePanel) view->refresh();
    };
    rotatePanel.open();
  }
  template <class Widget = QWidget>
  Widget* find(const QString& name) {
    auto* found = view->findChild<Widget*>(name);
    if (!found) ADD_FAILURE() << "no " << name.toStdString();
    return found;
  }
  QComboBox* angle() { return find<QComboBox>("cboRotateImageAngle"); }
  QSlider* slider() { return find<QSlider>("hsrRotateImageAngle"); }
  QCheckBox* antialias() { return find<QCheckBox>("ckbRotateImageAntiAlias"); }
  QWidget* sample() { return find("picRotateImageSample"); }
  void type(const QString& text) {
    angle()->setFocus();
    angle()->lineEdit()->selectAll();
    QTest::keyClicks(angle(), text);
  }
};

TEST_F(RotatePanelViewTest, NamesAndCaptions) {
  EXPECT_EQ(view->objectName(), "fraPanel(4)");
  EXPECT_EQ(antialias()->text(), "Antialias");
  EXPECT_EQ(find("cmdCancel")->toolTip(), "Close/cancel");
  EXPECT_TRUE(find<QPushButton>("cmdProceed")->isDefault());
  for (QWidget* control : {static_cast<QWidget*>(angle()), static_cast<QWidget*>(slider()),
                           static_cast<QWidget*>(antialias()), sample(), find("cmdProceed"), find("cmdCancel")})
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty())
        << control->objectName().toStdString();
}

TEST_F(RotatePanelViewTest, TheListHasAnItemForEachWholeAngle) {
  EXPECT_EQ(angle()->count(), 721);
  EXPECT_EQ(angle()->itemText(0), "-360");
  EXPECT_EQ(angle()->itemText(360), "0");
  EXPECT_EQ(angle()->itemText(720), "360");
  EXPECT_EQ(slider()->minimum(), -360);
  EXPECT_EQ(slider()->maximum(), 360);
}

TEST_F(RotatePanelViewTest, AnItemPickedMovesTheSliderAndTheSample) {
  angle()->setFocus();
  const Surface before = rotatePanel.picRotateImageSample();
  QTest::keyClick(angle(), Qt::Key_Down);
  EXPECT_EQ(rotatePanel.hsrRotateImageAngle(), 1);
  EXPECT_EQ(slider()->value(), 1);
  EXPECT_EQ(angle()->currentText(), "1");
  for (int i = 0; i < 4; ++i) QTest::keyClick(angle(), Qt::Key_PageDown);
  EXPECT_EQ(slider()->value(), rotatePanel.hsrRotateImageAngle());
  EXPECT_FALSE(std::ranges::equal(before.pixels(), rotatePanel.picRotateImageSample().pixels()));
}

TEST_F(RotatePanelViewTest, TheSliderWritesTheAngle) {
  slider()->setValue(-90);
  EXPECT_EQ(angle()->currentText(), "-90");
  EXPECT_EQ(angle()->currentIndex(), 270);
  slider()->setFocus();
  QTest::keyClick(slider(), Qt::Key_Right);
  EXPECT_EQ(rotatePanel.cboRotateImageAngle(), "-89");
}

TEST_F(RotatePanelViewTest, ATypedAngleStaysAsItIsTyped) {
  type("33.5");
  EXPECT_EQ(angle()->currentText(), "33.5") << "no completion, no rounding";
  EXPECT_EQ(rotatePanel.cboRotateImageAngle(), "33.5");
  EXPECT_EQ(slider()->value(), 34);
  type("-");
  EXPECT_EQ(angle()->currentText(), "-");
  EXPECT_EQ(slider()->value(), 0);
}

TEST_F(RotatePanelViewTest, TypingInTheMiddleKeepsItsPlace) {
  type("15");
  QTest::keyClick(angle(), Qt::Key_Home);
  QTest::keyClicks(angle(), "-3");
  EXPECT_EQ(angle()->currentText(), "-315");
  EXPECT_EQ(angle()->lineEdit()->cursorPosition(), 2);
  EXPECT_EQ(slider()->value(), -315);
}

TEST_F(RotatePanelViewTest, TheArrowsGoOnFromATypedAngle) {
  type("45");
  QTest::keyClick(angle(), Qt::Key_Down);
  EXPECT_EQ(angle()->currentText(), "46");
}

TEST_F(RotatePanelViewTest, WhatIsNoAngleDoesNoHarm) {
  for (const char* text : {"", "abc", "1e999", "-1e999", "nan", "99999999999999999999", "--5"}) {
    type("7");
    type(text);
    if (*text == 0) QTest::keyClick(angle(), Qt::Key_Delete);
    EXPECT_EQ(angle()->currentText(), text);
    EXPECT_GE(slider()->value(), -360);
    EXPECT_LE(slider()->value(), 360);
  }
}

TEST_F(RotatePanelViewTest, AntialiasChangesTheSampleOnly) {
  slider()->setValue(33);
  const Surface hard = rotatePanel.picRotateImageSample();
  const test::Rows before = icon();
  QTest::keyClick(antialias(), Qt::Key_Space);
  EXPECT_TRUE(rotatePanel.ckbRotateImageAntiAlias());
  EXPECT_FALSE(std::ranges::equal(hard.pixels(), rotatePanel.picRotateImageSample().pixels()));
  EXPECT_EQ(icon(), before);
}

TEST_F(RotatePanelViewTest, TheSampleShowsThePixelsOfThePanel) {
  slider()->setValue(90);
  const QImage shown = sample()->grab().toImage();
  const Surface& held = rotatePanel.picRotateImageSample();
  const QRect place = dynamic_cast<SampleView*>(sample())->place();
  ASSERT_EQ(place.size(), 3 * QSize(held.width(), held.height()));
  int others = 0;
  for (int y = 0; y < held.height(); ++y) {
    for (int x = 0; x < held.width(); ++x) {
      const Color color = held.GetPixel(x, y);
      for (const QPoint corner : {QPoint(0, 0), QPoint(2, 2)})
        EXPECT_EQ(shown.pixel(place.topLeft() + 3 * QPoint(x, y) + corner),
                  qRgb(redOf(color), greenOf(color), blueOf(color)));
      others += color != kGround;
    }
  }
  EXPECT_GT(others, 20);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(sample())->text(QAccessible::Value), "90 degrees");
}

TEST_F(RotatePanelViewTest, EnterIsProceedAndEscIsClose) {
  const QSignalSpy proceeds(view, &PanelFrame::proceed);
  const QSignalSpy closes(view, &PanelFrame::closeRequested);
  int expected = 0;
  for (QWidget* control : {static_cast<QWidget*>(angle()), static_cast<QWidget*>(slider()),
                           static_cast<QWidget*>(antialias()), find("cmdProceed")}) {
    control->setFocus();
    ++expected;
    QTest::keyClick(control, Qt::Key_Return);
    EXPECT_EQ(proceeds.count(), expected) << control->objectName().toStdString();
    QTest::keyClick(control, Qt::Key_Escape);
    EXPECT_EQ(closes.count(), expected) << control->objectName().toStdString();
  }
}

TEST_F(RotatePanelViewTest, EnterOnCloseCloses) {
  const QSignalSpy proceeds(view, &PanelFrame::proceed);
  const QSignalSpy closes(view, &PanelFrame::closeRequested);
  find("cmdCancel")->setFocus();
  QTest::keyClick(find("cmdCancel"), Qt::Key_Return);
  EXPECT_EQ(closes.count(), 1);
  EXPECT_EQ(proceeds.count(), 0);
}

TEST_F(RotatePanelViewTest, TheButtonsTellOnce) {
  const QSignalSpy proceeds(view, &PanelFrame::proceed);
  const QSignalSpy closes(view, &PanelFrame::closeRequested);
  QTest::mouseClick(find("cmdProceed"), Qt::LeftButton);
  QTest::mouseClick(find("cmdCancel"), Qt::LeftButton);
  EXPECT_EQ(proceeds.count(), 1);
  EXPECT_EQ(closes.count(), 1);
}

TEST_F(RotatePanelViewTest, TheFocusGoesToTheAngleAndTabFollowsTheEye) {
  view->focusFirstControl();
  for (const char* name :
       {"cboRotateImageAngle", "hsrRotateImageAngle", "ckbRotateImageAntiAlias", "cmdProceed", "cmdCancel"}) {
    QWidget* focused = QApplication::focusWidget();
    ASSERT_NE(focused, nullptr) << name;
    EXPECT_TRUE(focused->objectName() == name || focused->parentWidget()->objectName() == name)
        << focused->objectName().toStdString() << " in the place of " << name;
    QTest::keyClick(focused, Qt::Key_Tab);
  }
}

TEST_F(RotatePanelViewTest, IsPhotographed) {
  slider()->setValue(33);
  test::saveInBothThemes("rotate-panel", [this] {
    auto form = std::make_unique<QWidget>();
    form->resize(kPanelWidth, kPanelHeight);
    auto* shown = new RotatePanelView(form.get(), rotatePanel);
    shown->setGeometry(0, 0, kPanelWidth, kPanelHeight);
    return form;
  });
  EXPECT_TRUE(QFile::exists(GP_BINARY_DIR "/screens/rotate-panel-dark.png"));
}

}  // namespace
}  // namespace gp

// frmGPAlpha, worked by mouse and keyboard.
#include "document/ui/MagnifiedView.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/CaptionFrame.h"
#include "platform/qt/widgets/TextCell.h"
#include "ui/AlphaFormFixture.h"
#include "ui/Screens.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QSlider>

#include <algorithm>

namespace gp {
namespace {

using test::discIcon;

constexpr const char* kTo32 = "Not all hardware peripherals are always capable of\nsupporting True Color.  Proceed?";
constexpr const char* kExit = "Exit without saving?";
constexpr int kCell = 12;    // pixels of picDisp per pixel of an icon of 32
constexpr int kFirst = 128;  // the value that is painted at first

class AlphaForm : public test::AlphaFormFixture {
 protected:
  MagnifiedView* area() { return find<MagnifiedView>("picDisp"); }
  static QPoint middleOf(int x, int y) { return {x * kCell + kCell / 2, y * kCell + kCell / 2}; }
  void click(const char* name) { QTest::mouseClick(find(name), Qt::LeftButton); }
  void key(int code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(form->focusWidget(), static_cast<Qt::Key>(code), modifiers);
  }
  QStringList readouts() {
    QStringList texts;
    for (int i = 0; i < 3; ++i) texts << find<TextCell>(QString("lblDispXY(%1)").arg(i))->text();
    return texts;
  }
  QStringList enabledButtons() {
    QStringList names;
    for (int i = 0; i < 4; ++i)
      if (const QString name = QString("cmdAlpha(%1)").arg(i); find(name)->isEnabled()) names << name;
    return names;
  }
  QColor colorAt(int x, int y) {
    const QImage shown = area()->grab().toImage();
    return shown.pixelColor(middleOf(x, y) * static_cast<int>(shown.devicePixelRatio()));
  }
  // The colour in the middle of a sample, beside which the icon's pixel (16, 16) is.
  QColor sampleMiddle(int index) {
    const QImage sample = find(QString("picSample(%1)").arg(index))->grab().toImage();
    return sample.pixelColor(sample.rect().center() + QPoint(1, 1));
  }
  // The alpha values after saving to a file.
  AlphaMatrix saved() {
    dialogs.paths = {"/tmp/out.ico"};
    boxes.expectAsked("Proceed to save to /tmp/out.ico?", BoxAnswer::Yes);
    click("cmdAlpha(2)");
    return form->outcome().icon.alpha;
  }
};

TEST_F(AlphaForm, ComesUpWithTheIcon) {
  openWithAlpha();
  EXPECT_EQ(form->windowTitle(), "View/Edit/Create Alpha Channel");
  EXPECT_TRUE(form->isModal());
  EXPECT_EQ(area()->size(), QSize(384, 384));
  EXPECT_EQ(form->focusWidget(), area());
  EXPECT_TRUE(find("fraAlphaValuePanel")->isVisible());
  EXPECT_EQ(enabledButtons(), (QStringList{"cmdAlpha(0)", "cmdAlpha(2)", "cmdAlpha(3)"}));
  EXPECT_EQ(readouts(), (QStringList{"", "", ""}));
  EXPECT_EQ(find<QComboBox>("cboAlphaValue")->count(), 256);
  EXPECT_EQ(find<TextCell>("lblAlpha")->text(), QString::number(kFirst));
}

TEST_F(AlphaForm, TheOtherEntryHasItsCaptionAndNoValues) {
  openWithAlpha(AlphaMode::Convert);
  EXPECT_EQ(form->windowTitle(), "Convert 32 to 24 BPP (& Retain Alpha Effects)");
  EXPECT_FALSE(find("fraAlphaValuePanel")->isVisible());
}

TEST_F(AlphaForm, TheMousePaintsAndReadsOut) {
  openWithAlpha();
  QTest::mouseMove(area(), middleOf(16, 16));
  EXPECT_EQ(readouts(), (QStringList{"X= 16  Y= 16", "RGB:  191, 80, 0", "Alpha =  255"}));
  QTest::mouseMove(area(), middleOf(0, 0));
  EXPECT_EQ(readouts(), (QStringList{"X= 0  Y= 0", "RGB:  N/A", "Alpha =  N/A"}));
  QTest::mousePress(area(), Qt::LeftButton, Qt::NoModifier, middleOf(16, 16));
  QTest::mouseMove(area(), middleOf(17, 16));
  QTest::mouseRelease(area(), Qt::LeftButton, Qt::NoModifier, middleOf(17, 16));
  QTest::mouseMove(area(), middleOf(18, 16));
  EXPECT_EQ(readouts().last(), "Alpha =  255");
  QTest::mouseClick(area(), Qt::LeftButton, Qt::NoModifier, middleOf(0, 0));
  QTest::mouseClick(area(), Qt::RightButton, Qt::NoModifier, middleOf(20, 16));
  AlphaMatrix expected = discIcon(32, true).alpha;
  expected.at(16, 16) = expected.at(17, 16) = kFirst;
  EXPECT_EQ(saved(), expected);
}

TEST_F(AlphaForm, AResumedSessionShowsItsValues) {
  open(discIcon(32, false));
  AlphaMatrix values(32, 32, 255);
  values.at(18, 14) = 0;
  form->resume(values);
  EXPECT_TRUE(find("fraAlphaValuePanel")->isVisible());
  EXPECT_EQ(enabledButtons(), (QStringList{"cmdAlpha(0)", "cmdAlpha(2)", "cmdAlpha(3)"}));
  EXPECT_EQ(colorAt(18, 14), QColor(192, 192, 192));
  QTest::mouseMove(area(), middleOf(18, 14));
  EXPECT_EQ(readouts().last(), "Alpha =  0");
}

TEST_F(AlphaForm, ThePaintedCellIsShownAtOnce) {
  openWithAlpha();
  EXPECT_EQ(colorAt(16, 16), QColor(191, 80, 0));
  QTest::mouseClick(area(), Qt::LeftButton, Qt::NoModifier, middleOf(16, 16));
  EXPECT_EQ(colorAt(16, 16), QColor(191, 136, 96));
  EXPECT_EQ(sampleMiddle(0), QColor(223, 167, 127));
  EXPECT_EQ(sampleMiddle(1), QColor(191, 136, 96));
  EXPECT_EQ(sampleMiddle(2), QColor(127, 72, 32));
  EXPECT_EQ(sampleMiddle(3), QColor(128, 128, 128)) << "the shade";
}

TEST_F(AlphaForm, TheKeyboardMovesAndPaintsAsOnTheEditingArea) {
  openWithAlpha();
  key(Qt::Key_Right);
  key(Qt::Key_Down);
  EXPECT_EQ(area()->pixelCursor(), QPoint(1, 1));
  key(Qt::Key_Right, Qt::ControlModifier);
  key(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(area()->pixelCursor(), QPoint(9, 9));
  EXPECT_EQ(readouts().first(), "X= 9  Y= 9");
  key(Qt::Key_Space);
  key(Qt::Key_End);
  EXPECT_EQ(area()->pixelCursor(), QPoint(31, 9));
  key(Qt::Key_PageDown);
  EXPECT_EQ(area()->pixelCursor(), QPoint(31, 31));
  key(Qt::Key_Home);
  key(Qt::Key_PageUp);
  EXPECT_EQ(area()->pixelCursor(), QPoint(0, 0));
  AlphaMatrix expected = discIcon(32, true).alpha;
  expected.at(9, 9) = kFirst;
  EXPECT_EQ(saved(), expected);
}

TEST_F(AlphaForm, ShiftPaintsAStraightLineByMouseAndByKeyboard) {
  openWithAlpha();
  QTest::mouseClick(area(), Qt::LeftButton, Qt::NoModifier, middleOf(10, 16));
  QTest::mouseClick(area(), Qt::LeftButton, Qt::ShiftModifier, middleOf(14, 16));
  key(Qt::Key_Down);
  key(Qt::Key_Down);
  key(Qt::Key_Space, Qt::ShiftModifier);
  AlphaMatrix expected = discIcon(32, true).alpha;
  for (int x = 10; x <= 14; ++x) expected.at(x, 16) = kFirst;
  for (int y = 16; y <= 18; ++y) expected.at(14, y) = kFirst;
  EXPECT_EQ(saved(), expected);
}

TEST_F(AlphaForm, TheBrushPaintsASquare) {
  openWithAlpha();
  find<QComboBox>("cboBrushSize")->setCurrentIndex(2);
  QTest::mouseClick(area(), Qt::LeftButton, Qt::NoModifier, middleOf(14, 14));
  AlphaMatrix expected = discIcon(32, true).alpha;
  for (int y = 14; y <= 16; ++y)
    for (int x = 14; x <= 16; ++x) expected.at(x, y) = kFirst;
  EXPECT_EQ(saved(), expected);
}

TEST_F(AlphaForm, ListSliderAndStepsShowOneValue) {
  openWithAlpha();
  const auto expectValue = [this](int value) {
    EXPECT_EQ(find<QComboBox>("cboAlphaValue")->currentIndex(), value);
    EXPECT_EQ(find<QComboBox>("cboAlphaValue")->currentText(), QString::number(value));
    EXPECT_EQ(find<QSlider>("hsrAlphaValue")->value(), value);
    EXPECT_EQ(find<TextCell>("lblAlpha")->text(), QString::number(value));
  };
  expectValue(kFirst);
  find<QComboBox>("cboAlphaValue")->setCurrentIndex(240);
  expectValue(240);
  click("imgIncDecAlpha(1)");
  expectValue(254);
  click("imgIncDecAlpha(1)");
  expectValue(254);
  find<QSlider>("hsrAlphaValue")->setValue(10);
  expectValue(10);
  click("imgIncDecAlpha(0)");
  expectValue(0);
  find("hsrAlphaValue")->setFocus();
  key(Qt::Key_End);
  expectValue(255);
  EXPECT_EQ(find("picAlphaValue")->grab().toImage().pixelColor(10, 10), QColor(0, 0, 0));
}

TEST_F(AlphaForm, TheChangeTo32BitsShowsTheValuesAndMovesNothing) {
  open(discIcon(32, false));
  EXPECT_FALSE(find("fraAlphaValuePanel")->isVisible());
  EXPECT_EQ(enabledButtons(), (QStringList{"cmdAlpha(1)", "cmdAlpha(3)"}));
  QTest::mouseMove(area(), middleOf(16, 16));
  EXPECT_EQ(readouts(), (QStringList{"X= 16  Y= 16", "RGB:  N/A", "Alpha =  N/A"}));
  const QSize before = form->size();
  const QRect button = find("cmdAlpha(0)")->geometry();
  boxes.expectAsked(kTo32, BoxAnswer::Yes);
  click("cmdAlpha(1)");
  QTest::qWait(1);
  EXPECT_TRUE(find("fraAlphaValuePanel")->isVisible());
  EXPECT_EQ(enabledButtons(), (QStringList{"cmdAlpha(0)", "cmdAlpha(2)", "cmdAlpha(3)"}));
  EXPECT_EQ(readouts().last(), "Alpha =  255");
  EXPECT_EQ(form->focusWidget(), area()) << "the button is disabled";
  EXPECT_EQ(form->size(), before);
  EXPECT_EQ(find("cmdAlpha(0)")->geometry(), button);
}

TEST_F(AlphaForm, RestoreShowsTheFormerValues) {
  openWithAlpha();
  QTest::mouseClick(area(), Qt::LeftButton, Qt::NoModifier, middleOf(16, 16));
  EXPECT_EQ(readouts().last(), "Alpha =  128");
  boxes.expectAsked("Restore to original alpha values?", BoxAnswer::Yes);
  click("cmdRestoreAlpha");
  EXPECT_EQ(readouts().last(), "Alpha =  255");
  EXPECT_EQ(colorAt(16, 16), QColor(191, 80, 0));
}

TEST_F(AlphaForm, AnOutcomeClosesTheForm) {
  openWithAlpha();
  EXPECT_EQ(saved(), discIcon(32, true).alpha);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(form->outcome().result, AlphaResult::SaveChanged);
  openWithAlpha();
  click("cmdAlpha(3)");
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(form->outcome().result, AlphaResult::None);
}

TEST_F(AlphaForm, EscapeAndTheCloseBoxAskAfterAChange) {
  for (const bool byKey : {true, false}) {
    openWithAlpha();
    const auto close = [&] { byKey ? key(Qt::Key_Escape) : static_cast<void>(form->close()); };
    QTest::mouseClick(area(), Qt::LeftButton, Qt::NoModifier, middleOf(16, 16));
    boxes.expectAsked(kExit, BoxAnswer::No);
    close();
    EXPECT_TRUE(form->isVisible());
    boxes.expectAsked(kExit, BoxAnswer::Yes);
    close();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->outcome().result, AlphaResult::None);
  }
  openWithAlpha();
  key(Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible()) << "nothing was changed";
}

TEST_F(AlphaForm, EnterPressesOnlyTheButtonWithTheFocus) {
  openWithAlpha();
  for (const char* name : {"picDisp", "hsrAlphaValue", "cboAlphaValue", "cboBrushSize"}) {
    find(name)->setFocus();
    key(Qt::Key_Return);
    key(Qt::Key_Enter);
    EXPECT_TRUE(form->isVisible()) << name;
  }
  find("imgIncDecAlpha(1)")->setFocus();
  key(Qt::Key_Return);
  EXPECT_EQ(find<TextCell>("lblAlpha")->text(), "145");
  find("cmdAlpha(3)")->setFocus();
  key(Qt::Key_Enter);
  EXPECT_FALSE(form->isVisible());
}

TEST_F(AlphaForm, TabFollowsTheEye) {
  openWithAlpha();
  QStringList order;
  for (int i = 0; i < 11; ++i) {
    order << form->focusWidget()->objectName();
    key(Qt::Key_Tab);
  }
  EXPECT_EQ(order,
            (QStringList{"picDisp", "cboAlphaValue", "imgIncDecAlpha(0)", "imgIncDecAlpha(1)", "hsrAlphaValue",
                         "cboBrushSize", "cmdRestoreAlpha", "cmdAlpha(0)", "cmdAlpha(2)", "cmdAlpha(3)", "picDisp"}));
}

TEST_F(AlphaForm, AccessLettersAreUnique) {
  openWithAlpha();
  std::string letters;
  const auto note = [&](const QString& caption) {
    if (caption.contains('&')) letters += caption.at(caption.indexOf('&') + 1).toUpper().toLatin1();
  };
  for (const QLabel* label : form->findChildren<QLabel*>()) note(label->text());
  for (const QAbstractButton* button : form->findChildren<QAbstractButton*>()) note(button->text());
  std::ranges::sort(letters);
  EXPECT_EQ(letters, "ABCHRSV");
}

TEST_F(AlphaForm, TheTextsAreThoseOfTheScreen) {
  openWithAlpha();
  const auto captionOf = [this](const char* name) { return find<QAbstractButton>(name)->text().remove('&'); };
  EXPECT_EQ(captionOf("cmdAlpha(0)"), "Convert to 24 BPP retaining alphaed colors");
  EXPECT_EQ(captionOf("cmdAlpha(1)"), "Change current icon to 32 BPP True Color");
  EXPECT_EQ(captionOf("cmdAlpha(2)"), "Save session and exit");
  EXPECT_EQ(captionOf("cmdAlpha(3)"), "Abort session and exit");
  EXPECT_EQ(captionOf("cmdRestoreAlpha"), "Restore to original alpha values");
  EXPECT_EQ(find("imgIncDecAlpha(0)")->toolTip(), "Step alpha value down");
  EXPECT_EQ(find("imgIncDecAlpha(1)")->toolTip(), "Step alpha value up");
  EXPECT_EQ(find<CaptionFrame>("fraAlphaValuePanel")->caption(), "Edit alpha value");
}

TEST_F(AlphaForm, AssistiveTechnologyHearsThePixelAndTheNames) {
  openWithAlpha();
  const auto textOf = [this](const char* name, QAccessible::Text which) {
    return QAccessible::queryAccessibleInterface(find(name))->text(which);
  };
  key(Qt::Key_Right);
  EXPECT_EQ(textOf("picDisp", QAccessible::Name), "Alpha values of the icon");
  EXPECT_EQ(textOf("picDisp", QAccessible::Value), "X= 1  Y= 0  transparent");
  QTest::mouseClick(area(), Qt::LeftButton, Qt::NoModifier, middleOf(16, 16));
  EXPECT_EQ(textOf("picDisp", QAccessible::Value), "X= 16  Y= 16  RGB:  191, 80, 0  Alpha =  128");
  EXPECT_EQ(textOf("hsrAlphaValue", QAccessible::Name), "Alpha value");
  EXPECT_EQ(textOf("lblAlpha", QAccessible::Value), "128");
  EXPECT_EQ(textOf("lblDispXY(2)", QAccessible::Name), "Alpha value of pixel");
  EXPECT_EQ(textOf("lblDispXY(2)", QAccessible::Value), "Alpha =  128");
  for (int i = 0; i < 4; ++i) EXPECT_NE(find(QString("picSample(%1)").arg(i))->accessibleName(), "");
  QStringList labelled;
  for (const QLabel* label : form->findChildren<QLabel*>())
    if (label->buddy()) labelled << label->buddy()->objectName() + " " + label->text();
  EXPECT_EQ(labelled, (QStringList{"cboAlphaValue &Value:", "cboBrushSize &Brush:"}));
}

TEST_F(AlphaForm, EverySizeHasTheSameForm) {
  QSize size;
  for (const int side : kIconSides) {
    open(discIcon(side, true));
    EXPECT_EQ(area()->size(), QSize(384, 384));
    if (!size.isEmpty()) {
      EXPECT_EQ(form->size(), size);
    }
    size = form->size();
  }
}

TEST_F(AlphaForm, LooksRight) {
  test::saveInBothThemes("frmGPAlpha", [&] { return make(discIcon(32, true)); });
  test::saveInBothThemes("frmGPAlpha-48", [&] { return make(discIcon(48, true)); });
  test::saveInBothThemes("frmGPAlpha-24bit", [&] { return make(discIcon(16, false)); });
}

}  // namespace
}  // namespace gp

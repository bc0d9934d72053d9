// fraPanel(21): the pictures of the icon on three screen colours, and how they are reached and changed.
#include "alpha/AlphaConversion.h"
#include "document/Containers.h"
#include "document/PanelNumbers.h"
#include "document/ui/NoticeLabel.h"
#include "output/PreviewPanel.h"
#include "platform/qt/widgets/PanelFrame.h"
#include "ui/FormFixture.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace gp {
namespace {

constexpr Color kOrange = rgb(200, 100, 0);
constexpr int kSide = 16;

class PreviewPanelViewTest : public test::FormFixture {
 protected:
  // An icon with alpha: its upper left pixel is painted, half transparent; the next one inverts the background.
  void startWithAlpha() {
    start();
    IconImage icon = transparentIcon(kSide);
    icon.image.SetPixelV(0, 0, kOrange);
    icon.mask.SetPixelV(0, 0, kBlack);
    icon.image.SetPixelV(1, 0, kWhite);
    icon.alpha = AlphaMatrix(kSide, kSide, 128);
    IconContainerRec record = recordWithAlpha(NewRecord());
    record.neverSaved = false;
    shell.document().arrival.arrive(icon, record);
    settle();
  }
  void trigger(const char* control, int index) {
    find<QAction>(QString("%1(%2)").arg(control).arg(index))->trigger();
    settle();
  }
  void openColors() { trigger("mnuEnquiryCurrent", 7); }
  void openAlpha() { trigger("mnuEnquiryCurrent", 10); }
  QWidget* frame() { return find("fraPanel(21)"); }
  QWidget* picture(int i) { return indexed("picPreviewDiffScreenColors", i); }
  QWidget* button(int i) { return indexed("cmdPreviewDiffScreenColors", i); }
  QString label(int i) { return find<QLabel>(QString("lblPreviewDiffScreenColors(%1)").arg(i))->text(); }
  QString nameOf(QWidget* widget) { return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name); }
  // The colours that a picture shows at the pixels of the icon, which is in its middle, 1:1.
  std::vector<Color> shown(int i, int side, int count) {
    const QImage image = picture(i)->grab().toImage();
    const QPoint corner((image.width() - side) / 2, (image.height() - side) / 2);
    std::vector<Color> colors;
    for (int x = 0; x < count; ++x) {
      const QColor color = image.pixelColor(corner + QPoint(x, 0));
      colors.push_back(rgb(color.red(), color.green(), color.blue()));
    }
    return colors;
  }
  // The colour beside the icon.
  Color around(int i) {
    const QColor color = picture(i)->grab().toImage().pixelColor(2, 2);
    return rgb(color.red(), color.green(), color.blue());
  }
};

TEST_F(PreviewPanelViewTest, ThePicturesShowTheIconInItsOwnSizeInTheMiddleOfEachScreenColor) {
  startWithAlpha();
  openColors();
  EXPECT_TRUE(frame()->isVisible());
  EXPECT_EQ(shown(0, kSide, 3), (std::vector<Color>{kOrange, kBlack, kWhite}));
  EXPECT_EQ(shown(1, kSide, 3), (std::vector<Color>{kOrange, rgb(63, 63, 63), kGround}));
  EXPECT_EQ(shown(2, kSide, 3), (std::vector<Color>{kOrange, rgb(223, 223, 223), rgb(32, 32, 32)}));
  EXPECT_EQ(around(0), kWhite);
  EXPECT_EQ(around(1), kGround);
  EXPECT_EQ(around(2), rgb(32, 32, 32));
}

TEST_F(PreviewPanelViewTest, TheAlphaFormBlendsTheIconAndOffersToEditItsAlpha) {
  startWithAlpha();
  openAlpha();
  EXPECT_EQ(shown(0, kSide, 2), (std::vector<Color>{rgb(227, 177, 127), kWhite}));
  EXPECT_TRUE(find("cmdEditAlphaChannel")->isVisible());
  EXPECT_TRUE(find("lblRemarksAlpha")->isVisible());
  openColors();
  EXPECT_FALSE(find("cmdEditAlphaChannel")->isVisible());
  EXPECT_FALSE(find("lblRemarksAlpha")->isVisible());
  EXPECT_EQ(shown(0, kSide, 1), std::vector<Color>{kOrange});
}

TEST_F(PreviewPanelViewTest, TheCaptionOfTheFormIsShownSpokenAndAnnounced) {
  startWithAlpha();
  const auto expectCaption = [this](const char* caption) {
    EXPECT_EQ(frame()->accessibleName(), caption);
    EXPECT_EQ(dynamic_cast<PanelFrame*>(frame())->title(), caption);
    EXPECT_EQ(form->findChild<NoticeLabel*>()->text(), caption);
  };
  // The first form that is opened is not the one of the table of panels.
  openAlpha();
  expectCaption("Current icon with alpha effects");
  openColors();
  expectCaption("Preview - different screen colors");
  openAlpha();
  expectCaption("Current icon with alpha effects");
}

TEST_F(PreviewPanelViewTest, EachButtonChangesItsColorByTheDialog) {
  startWithAlpha();
  openColors();
  const Color chosen[] = {rgb(1, 2, 3), rgb(250, 240, 230), rgb(0, 128, 255)};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(button(i)->toolTip(), "Click to select screen color");
    dialogs.colors = {chosen[i]};
    click(button(i));
    EXPECT_TRUE(dialogs.colors.empty());
    EXPECT_EQ(around(i), chosen[i]);
    EXPECT_EQ(shown(i, kSide, 1), std::vector<Color>{kOrange});
  }
  EXPECT_EQ(label(0), "Screen color &1\nRGB: 1, 2, 3");
  EXPECT_EQ(label(1), "Screen color &2\nRGB: 250, 240, 230");
  EXPECT_EQ(label(2), "Screen color &3\nRGB: 0, 128, 255");
  dialogs.colors = {kNoColor};
  click(button(0));
  EXPECT_EQ(around(0), rgb(1, 2, 3));
  click("cmdCancel");
  openColors();
  EXPECT_EQ(around(2), rgb(0, 128, 255)) << "for the session";
}

TEST_F(PreviewPanelViewTest, KeysOpenTheDialogsAndClose) {
  startWithAlpha();
  key(Qt::Key_A, Qt::ControlModifier);
  ASSERT_EQ(state.screen.mActivePanel, 21);
  EXPECT_TRUE(button(0)->hasFocus());
  for (const int code : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    dialogs.colors = {rgb(code % 256, 5, 5)};
    key(code);
    EXPECT_EQ(around(0), rgb(code % 256, 5, 5));
  }
  key(Qt::Key_Escape);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  key(Qt::Key_P, Qt::ControlModifier);
  ASSERT_EQ(state.screen.mActivePanel, 21);
  find("cmdCancel")->setFocus();
  key(Qt::Key_Return);
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
}

TEST_F(PreviewPanelViewTest, ThereIsNothingToProceedWith) {
  startWithAlpha();
  openColors();
  EXPECT_EQ(frame()->findChild<QWidget*>("cmdProceed"), nullptr);
  EXPECT_TRUE(frame()->findChild<QPushButton*>("cmdCancel")->isDefault());
}

TEST_F(PreviewPanelViewTest, EveryControlHasAnotherNameAndTabFollowsTheEye) {
  startWithAlpha();
  openAlpha();
  EXPECT_EQ(nameOf(picture(1)), "Icon on screen color 2");
  EXPECT_EQ(valueOf(picture(1)), "16 x 16, RGB: 192, 192, 192");
  EXPECT_EQ(nameOf(button(1)), "Screen color 2");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(button(1))->text(QAccessible::Description), "RGB: 192, 192, 192");
  for (const char* name : {"cmdPreviewDiffScreenColors(0)", "cmdPreviewDiffScreenColors(1)",
                           "cmdPreviewDiffScreenColors(2)", "cmdEditAlphaChannel", "cmdCancel"}) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
}

TEST_F(PreviewPanelViewTest, AnotherIconThatComesUpUnderThePanelIsShown) {
  startWithAlpha();
  openColors();
  shell.document().arrival.arrive(transparentIcon(48), NewRecord());
  state.current().neverSaved = false;
  settle();
  EXPECT_EQ(shown(1, 48, 1), std::vector<Color>{kGround});
  EXPECT_EQ(valueOf(picture(1)), "48 x 48, RGB: 192, 192, 192");
  shell.document().iconsPanel.showEmptyContainer();
  settle();
  EXPECT_EQ(valueOf(picture(1)), "No icon, RGB: 192, 192, 192");
  EXPECT_EQ(shown(2, 2, 1), std::vector<Color>{rgb(32, 32, 32)});
}

TEST_F(PreviewPanelViewTest, CtrlASelectsTheTextOfAField) {
  startWithAlpha();
  click("imgGetDirectEntryColor");
  auto* field = find<QLineEdit>("txbDirectEntryColorValue");
  field->setFocus();
  field->setText("123");
  key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(field->selectedText(), "123");
  EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
}

TEST_F(PreviewPanelViewTest, ThePopUpEntryFollowsTheIcon) {
  startWithIcon(16);
  EXPECT_FALSE(find<QAction>("mnuPopUpSub(5)")->isEnabled());
  EXPECT_FALSE(find<QAction>("mnuEnquiryCurrent(10)")->isEnabled());
  EXPECT_TRUE(find<QAction>("mnuEnquiryCurrent(7)")->isEnabled());
  form.reset();
  startWithAlpha();
  EXPECT_TRUE(find<QAction>("mnuPopUpSub(5)")->isEnabled());
  trigger("mnuPopUpSub", 5);
  EXPECT_TRUE(find("cmdEditAlphaChannel")->isVisible());
}

}  // namespace
}  // namespace gp

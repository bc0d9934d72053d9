// The live region of the status bar, the title, the status row, and what of them assistive technology is given.
#include "document/ui/NoticeLabel.h"
#include "platform/qt/Accessibility.h"
#include "platform/qt/KeyToolTip.h"
#include "platform/qt/widgets/TextCell.h"
#include "ui/FormFixture.h"

#include <QProgressBar>
#include <QTimer>
#include <QToolTip>

namespace gp {
namespace {

class NoticesTest : public test::FormFixture {
 protected:
  NoticeLabel* notice() { return find<NoticeLabel>("lblNotice"); }
  QTimer* timer() { return notice()->findChild<QTimer*>(); }
  void setProgress(int percent) {
    state.screen.progressPercent = percent;
    display.changed(DisplayPart::StatusBar);
  }
  QString title() const { return form->windowTitle(); }
};

TEST_F(NoticesTest, ANoticeIsShownForThreeSecondsAsALiveRegion) {
  start();
  EXPECT_FALSE(notice()->isVisible());
  display.announce("Saved");
  EXPECT_TRUE(notice()->isVisible());
  EXPECT_EQ(notice()->text(), "Saved");
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(notice());
  EXPECT_EQ(spoken->role(), QAccessible::Notification);
  EXPECT_EQ(spoken->text(QAccessible::Name), "Saved");
  EXPECT_EQ(spoken->text(QAccessible::Description), "");
  EXPECT_EQ(spoken->textInterface(), nullptr);
  EXPECT_TRUE(timer()->isActive());
  EXPECT_TRUE(timer()->isSingleShot());
  EXPECT_EQ(timer()->interval(), 3000);
}

TEST_F(NoticesTest, ANoticeEndsWithItsTime) {
  start();
  display.announce("Saved");
  timer()->start(0);
  QTRY_VERIFY(!notice()->isVisible());
  EXPECT_EQ(notice()->text(), "");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(notice())->text(QAccessible::Name), "");
}

TEST_F(NoticesTest, ProgressTakesThePlaceAndANoticeWaitsForIt) {
  start();
  display.announce("Saved");
  setProgress(10);
  EXPECT_FALSE(notice()->isVisible());
  display.announce("Applied");
  EXPECT_FALSE(notice()->isVisible());
  EXPECT_FALSE(timer()->isActive());
  setProgress(-1);
  EXPECT_TRUE(notice()->isVisible());
  EXPECT_EQ(notice()->text(), "Applied");
  EXPECT_TRUE(timer()->isActive());
}

TEST_F(NoticesTest, ProgressHasAValue) {
  start();
  setProgress(40);
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(form->findChild<QProgressBar*>());
  EXPECT_EQ(spoken->role(), QAccessible::ProgressBar);
  EXPECT_EQ(spoken->text(QAccessible::Name), "Progress");
  ASSERT_NE(spoken->valueInterface(), nullptr);
  EXPECT_EQ(spoken->valueInterface()->currentValue(), 40);
  EXPECT_EQ(spoken->valueInterface()->minimumValue(), 0);
  EXPECT_EQ(spoken->valueInterface()->maximumValue(), 100);
  spoken->valueInterface()->setCurrentValue(90);
  EXPECT_EQ(spoken->valueInterface()->currentValue(), 40) << "it only shows";
}

TEST_F(NoticesTest, AnOpenedPanelIsAnnouncedByItsTitle) {
  startWithIcon(32);
  find<QAction>("mnuRotateSubmenu(4)")->trigger();
  EXPECT_EQ(notice()->text(), find("fraPanel(4)")->accessibleName());
  EXPECT_EQ(notice()->text(), "Rotate image (-359 to +359)");
  timer()->start(0);
  QTRY_VERIFY(!notice()->isVisible());
  click("cmdCancel");
  EXPECT_EQ(notice()->text(), "") << "the focus, which goes back to the Editing Area, is spoken anyway";
}

TEST_F(NoticesTest, TheTitleNamesTheIconAndMarksUnsavedWork) {
  start();
  EXPECT_EQ(title(), "Glimmerpane");
  EXPECT_FALSE(form->isWindowModified());
  find<QAction>("mnuFileSub(3)")->trigger();
  settle();
  EXPECT_EQ(title(), "Untitled[*] - Glimmerpane");
  EXPECT_FALSE(form->isWindowModified()) << "there is nothing to save yet";
  find<QAction>("mnuTools(4)")->trigger();
  find<QAction>("mnuTools(4)")->trigger();
  QTest::mouseClick(find("picDisp"), Qt::LeftButton, {}, middleOf(2, 2));
  settle();
  EXPECT_TRUE(form->isWindowModified());
  click(indexed("picPanelIcon", 1));
  EXPECT_EQ(title(), "Glimmerpane");
  EXPECT_FALSE(form->isWindowModified());
}

TEST_F(NoticesTest, TheTitleFollowsPaintingAndSaving) {
  startWithIcon(16);
  EXPECT_EQ(title(), "icon.ico[*] - Glimmerpane");
  EXPECT_FALSE(form->isWindowModified());
  find<QAction>("mnuTools(4)")->trigger();
  QTest::mouseClick(find("picDisp"), Qt::LeftButton, {}, middleOf(2, 2));
  settle();
  EXPECT_TRUE(form->isWindowModified());
  find<QAction>("mnuFileSub(12)")->trigger();
  settle();
  EXPECT_FALSE(form->isWindowModified());
  EXPECT_EQ(notice()->text(), "Saved");
}

TEST_F(NoticesTest, AMarkInTheNameOfAFileIsPartOfTheName) {
  start(folder.write("a[*]b.ico", test::plainIconFile(16, 3)));
  EXPECT_EQ(title(), "a[*][*]b.ico[*] - Glimmerpane");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(form.get())->text(QAccessible::Name), "a[*]b.ico - Glimmerpane");
}

TEST_F(NoticesTest, StatusFieldsAreSpokenInWords) {
  start();
  state.screen.lblStatusPanel = {"/a.ico", "*", "MIF", "32 x 32", "Alpha"};
  display.changed(DisplayPart::StatusBar);
  const char* values[] = {"/a.ico", "disagree", "yes", "32 x 32", "yes"};
  for (int i = 0; i < kStatusPanelCount; ++i) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(indexed("lblStatusPanel", i));
    EXPECT_EQ(spoken->textInterface()->text(0, spoken->textInterface()->characterCount()), values[i]);
    EXPECT_EQ(spoken->text(QAccessible::Description), "");
  }
  EXPECT_EQ(find<TextCell>("lblStatusPanel(1)")->text(), "*");
  EXPECT_EQ(indexed("lblStatusPanel", 1)->toolTip(), "Headers disagree");
  EXPECT_TRUE(QAccessible::queryAccessibleInterface(find("imgAlphaOnStatusPanel"))->state().invisible)
      << "the field says it already";
  state.screen.lblStatusPanel.fill("");
  display.changed(DisplayPart::StatusBar);
  EXPECT_EQ(indexed("lblStatusPanel", 1)->toolTip(), "");
}

TEST_F(NoticesTest, TheStatusRowGrowsWithTheFont) {
  const QFont before = QApplication::font();
  for (const int points : {9, 12, 14}) {
    QFont larger = before;
    larger.setPointSize(points);
    QApplication::setFont(larger);
    start();
    state.screen.lblStatusPanel = {"/a.ico", "*", "MIF", "48 x 48", "Alpha"};
    display.changed(DisplayPart::StatusBar);
    settle();
    const QRect row = find("picStatusBar")->rect();
    for (int i = 0; i < kStatusPanelCount; ++i) {
      auto* cell = find<TextCell>(QString("lblStatusPanel(%1)").arg(i));
      EXPECT_GE(cell->height(), cell->fontMetrics().height()) << points;
      EXPECT_TRUE(row.contains(cell->geometry())) << points;
      if (i == 0) continue;
      EXPECT_GE(cell->width(), cell->fontMetrics().horizontalAdvance(cell->text()) + 2 * TextCell::kMargin) << points;
    }
    EXPECT_GE(find("picProgressContainer")->height(), notice()->fontMetrics().height()) << points;
    form.reset();
  }
  QApplication::setFont(before);
}

TEST(KeyToolTip, TheKeyIsGreyOnAnyGround) {
  const auto luminance = [](const QColor& color) {
    const auto part = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
  };
  for (const auto& [ground, text] : {std::pair("#ffffff", "#000000"), std::pair("#202020", "#ffffff")}) {
    QPalette palette;
    palette.setColor(QPalette::ToolTipBase, ground);
    palette.setColor(QPalette::ToolTipText, text);
    const QString shown = toolTipWithKey("Save <as>", "Ctrl+T", palette);
    EXPECT_TRUE(shown.contains("Save &lt;as&gt;  <span")) << shown.toStdString();
    EXPECT_TRUE(shown.contains(">Ctrl+T</span>"));
    const QColor grey(shown.mid(shown.indexOf("color:") + 6, 7));
    const double light = luminance(grey), dark = luminance(QColor(ground));
    EXPECT_GE((std::max(light, dark) + 0.05) / (std::min(light, dark) + 0.05), 4.5);
    EXPECT_NE(grey, QColor(text));
  }
}

TEST_F(NoticesTest, TheTooltipOnTheScreenNamesTheKeyAndTheSpokenOneDoesNot) {
  startWithIcon(16);
  QWidget* save = indexed("cmdTB", 4);
  QHelpEvent hover(QEvent::ToolTip, QPoint(3, 3), save->mapToGlobal(QPoint(3, 3)));
  QApplication::sendEvent(save, &hover);
  EXPECT_TRUE(QToolTip::text().contains("Save to icon file  <span")) << QToolTip::text().toStdString();
  EXPECT_TRUE(QToolTip::text().contains("Ctrl+S"));
  EXPECT_EQ(save->toolTip(), "Save to icon file");
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(save);
  EXPECT_EQ(spoken->text(QAccessible::Name), "Save to icon file");
  EXPECT_EQ(spoken->text(QAccessible::Description), "") << "it would repeat the name";
  QToolTip::hideText();
}

TEST_F(NoticesTest, OnlyHistoryEntriesOfTheMenusHaveTooltipsOfTheirPath) {
  startWithIcon(16);
  shell.AddHistory(folder.file("a <b> file.ico"));
  settle();
  auto* menu = find<QMenu>("mnuFile");
  menu->popup(form->mapToGlobal(QPoint(20, 20)));
  settle();
  const auto toolTipAt = [&](const char* entry) {
    const QPoint at = menu->actionGeometry(find<QAction>(entry)).center();
    QHelpEvent hover(QEvent::ToolTip, at, menu->mapToGlobal(at));
    QApplication::sendEvent(menu, &hover);
    return hover.isAccepted() ? QToolTip::text() : QString();
  };
  EXPECT_EQ(toolTipAt("mnuFileHistory(1)").toStdString(),
            QString(folder.file("a <b> file.ico").c_str()).toHtmlEscaped().toStdString());
  EXPECT_EQ(toolTipAt("mnuFileSub(12)"), "");
  menu->close();
}

}  // namespace
}  // namespace gp

// The panels of the effects on the main form, used by mouse and keyboard.
#include "document/Containers.h"
#include "document/PanelNumbers.h"
#include "document/ui/SampleView.h"
#include "document/ui/SurfacePainting.h"
#include "effects/BrightnessPanel.h"
#include "effects/ConfinePanel.h"
#include "effects/EffectTable.h"
#include "effects/Effects.h"
#include "effects/GradientPanel.h"
#include "effects/SettingsPanel.h"
#include "effects/SpherePanel.h"
#include "effects/ThemePanel.h"
#include "ui/FormFixture.h"
#include "ui/Screens.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

namespace gp {
namespace {

constexpr Color kRed = rgb(255, 0, 0);
constexpr int kButtonizePanel = 7, kReliefPanel = 13, kDisabledPanel = 15;
constexpr int kTopLeftSquare = 8;  // pixels of the square that is on the icon

class EffectPanelsTest : public test::FormFixture {
 protected:
  // A disc of many colours on a transparent ground.
  void startWithDisc(int newIcon = 2) {
    start();
    trigger("mnuFileSub", newIcon);
    state.current().neverSaved = false;
    const int size = state.picImage.width(), middle = size / 2;
    for (int y = 0; y < size; ++y)
      for (int x = 0; x < size; ++x)
        if ((x - middle) * (x - middle) + (y - middle) * (y - middle) < middle * middle * 3 / 5)
          set(x, y, rgb(255 - x * 255 / size, y * 255 / size, (x * y * 3) % 256));
    shell.document().editingArea.ComposeCurrentIcon();
    shell.document().editingArea.UpdatePanelFromCurrent();
    shell.document().editingArea.MagnifyIcon();
  }
  void set(int x, int y, Color color) {
    state.picImage.SetPixelV(x, y, color);
    state.picMask.SetPixelV(x, y, kBlack);
  }
  void trigger(const char* control, int index) {
    find<QAction>(QString("%1(%2)").arg(control).arg(index))->trigger();
    settle();
  }
  void openPanel(int effect) { trigger("mnuEffectsSub", effect); }
  void openRun(int run) { trigger("mnuEffectsSub3", run); }
  bool isUp(int number) {
    return state.screen.mActivePanel == number && find(QString("fraPanel(%1)").arg(number))->isVisible();
  }
  QWidget* inPanel(int number, const QString& name) {
    return find(QString("fraPanel(%1)").arg(number))->findChild<QWidget*>(name);
  }
  QComboBox* confineList(int index) { return find<QComboBox>(QString("cboConfineColors(%1)").arg(index)); }
  void proceed(int number) { click(inPanel(number, "cmdProceed")); }
  // Opens a list by a click and selects an item by keys.
  void pick(QComboBox* list, int index) {
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Home);
    for (int i = 0; i < index; ++i) QTest::keyClick(list, Qt::Key_Down);
    settle();
  }
  // The visible headings above the settings.
  QStringList titlesOf(int number) {
    QStringList titles;
    for (const QLabel* label :
         find(QString("fraPanel(%1)").arg(number))->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly))
      if (label->isVisible()) titles << label->text();
    return titles;
  }
  // The colour of an icon pixel in a sample.
  static QRgb sampleAt(QWidget* sample, int x, int y) {
    const QRect place = dynamic_cast<SampleView*>(sample)->place();
    const int factor = place.width() / iconSideIn(sample);
    return sample->grab().toImage().pixel(place.topLeft() + QPoint(factor * x + factor / 2, factor * y + factor / 2));
  }
  static int iconSideIn(QWidget* sample) { return valueOf(sample).section(' ', 0, 0).toInt(); }
  // Panels with a control that extends beyond their edge, or whose text is cut.
  void expectNothingClipped(int number) {
    QWidget* panel = find(QString("fraPanel(%1)").arg(number));
    for (QWidget* child : panel->findChildren<QWidget*>()) {
      if (!child->isVisible() || child->objectName().isEmpty() || child->isWindow()) continue;
      const QRect place(child->mapTo(panel, QPoint(0, 0)), child->size());
      EXPECT_TRUE(panel->rect().contains(place)) << child->objectName().toStdString();
      EXPECT_GE(child->width(), std::min(child->minimumSizeHint().width(), panel->width()))
          << child->objectName().toStdString();
      if (auto* label = qobject_cast<QLabel*>(child)) {
        EXPECT_GE(label->height(), label->heightForWidth(label->width())) << child->objectName().toStdString();
      }
    }
  }
};

TEST_F(EffectPanelsTest, EachPanelHasItsTitleAndNamesForAllItsControls) {
  startWithDisc();
  const std::array<std::pair<int, const char*>, 3> panels{
      {{3, "Buttonize"}, {14, "Effects - shades"}, {21, "Image for disabled button"}}};
  for (const auto& [effect, title] : panels) {
    openPanel(effect);
    QWidget* panel = find(QString("fraPanel(%1)").arg(state.screen.mActivePanel));
    EXPECT_EQ(panel->accessibleName(), title);
    EXPECT_EQ(titlesOf(state.screen.mActivePanel).first(), title);
    EXPECT_EQ(panel->findChild<QWidget*>("cmdCancel")->toolTip(), "Close/cancel");
  }
  for (int run = 0; run < 3; ++run) openRun(run);
  EXPECT_EQ(find("fraPanel(19)")->accessibleName(), "Reduce number of colors");
  for (const int number : {kButtonizePanel, kReliefPanel, kDisabledPanel, ConfinePanel::kNumber})
    for (QWidget* control : find(QString("fraPanel(%1)").arg(number))->findChildren<QWidget*>()) {
      if (!(control->focusPolicy() & Qt::TabFocus) || control->objectName().isEmpty()) continue;
      const QString name = QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name);
      EXPECT_FALSE(name.isEmpty()) << control->objectName().toStdString();
    }
}

TEST_F(EffectPanelsTest, TheTitleOfThePanelOfRotationComesFromTheTableToo) {
  startWithDisc();
  trigger("mnuRotateSubmenu", 4);
  EXPECT_EQ(find("fraPanel(4)")->accessibleName(), "Rotate image (-359 to +359)");
}

TEST_F(EffectPanelsTest, TheSampleOfRotationFollowsAnotherIconAndATypedAngle) {
  startWithDisc();
  trigger("mnuRotateSubmenu", 4);
  QWidget* sample = find("picRotateImageSample");
  const auto middle = [sample] {
    return sample->grab().toImage().pixel(dynamic_cast<SampleView*>(sample)->place().center());
  };
  bool ok = false;
  shell.doOpenIconFileQuietly(folder.write("red.ico", test::plainIconFile(32, 5)), ok);
  ASSERT_TRUE(ok && isUp(kRotatePanel));
  settle();
  EXPECT_EQ(middle(), toRgb(state.PicIcon.GetPixel(16, 16)));
  auto* angle = find<QComboBox>("cboRotateImageAngle");
  const QImage before = sample->grab().toImage();
  angle->setEditText("0");
  QTest::keyClicks(angle, ".4");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(sample)->text(QAccessible::Value), "0.4 degrees");
}

TEST_F(EffectPanelsTest, ReliefIsShownUnderItsNameAndMadeByEnter) {
  startWithDisc();
  for (const auto& [index, name] : {std::pair{11, "Embossed"}, {12, "Engraved"}, {13, "Raised"}, {14, "Shadowed"}}) {
    openPanel(index);
    ASSERT_TRUE(isUp(kReliefPanel));
    EXPECT_EQ(find<QLabel>("lblEffectsSample")->text(), name);
    EXPECT_EQ(find("fraPanel(13)")->accessibleName(), "Effects - shades");
    EXPECT_EQ(titlesOf(kReliefPanel), QStringList({"Effects - shades", name}));
    EXPECT_EQ(find("ckbUseSelectedColor")->isVisible(), index == 14);
    QWidget* sample = find("picEffectsSample");
    EXPECT_EQ(sampleAt(sample, 16, 16), toRgb(shell.effects().settingsPanel(kReliefPanel)->sample().GetPixel(16, 16)));
    EXPECT_EQ(sampleAt(sample, 0, 0), toRgb(kGround));
    expectNothingClipped(kReliefPanel);
  }
  key(Qt::Key_Return);
  EXPECT_TRUE(isUp(kColorPanel));
  EXPECT_TRUE(state.current().modified);
}

TEST_F(EffectPanelsTest, TheShadowTakesTheCurrentColorByMouseAndKey) {
  startWithDisc();
  for (int y = 0; y < kTopLeftSquare; ++y)
    for (int x = 0; x < kTopLeftSquare; ++x) set(x, y, kRed);
  state.mCurrentColor = rgb(0, 255, 0);
  openPanel(14);
  auto* box = find<QCheckBox>("ckbUseSelectedColor");
  EXPECT_EQ(QApplication::focusWidget(), box);
  EXPECT_FALSE(box->isChecked());
  EXPECT_EQ(box->accessibleName(), "Use currently selected color (otherwise black)");
  QWidget* sample = find("picEffectsSample");
  EXPECT_EQ(sampleAt(sample, kTopLeftSquare, 2), qRgb(0, 0, 0));
  key(Qt::Key_Space);
  EXPECT_TRUE(box->isChecked());
  EXPECT_EQ(sampleAt(sample, kTopLeftSquare, 2), qRgb(0, 255, 0));
  proceed(kReliefPanel);
  EXPECT_EQ(state.picImage.GetPixel(kTopLeftSquare, 2), rgb(0, 255, 0));
  EXPECT_TRUE(isUp(kColorPanel));
}

TEST_F(EffectPanelsTest, EscClosesAndTheIconStays) {
  startWithDisc();
  const Surface image = state.picImage;
  for (const int effect : {3, 11, 21}) {
    openPanel(effect);
    EXPECT_FALSE(isUp(kColorPanel));
    key(Qt::Key_Escape);
    EXPECT_TRUE(isUp(kColorPanel));
  }
  openRun(2);
  key(Qt::Key_Escape);
  EXPECT_TRUE(isUp(kColorPanel));
  EXPECT_TRUE(std::ranges::equal(state.picImage.pixels(), image.pixels()));
}

TEST_F(EffectPanelsTest, ProceedIsTheDefaultButtonOfEveryPanelWhateverWasUpBefore) {
  startWithDisc();
  const auto expectDefault = [this](int number) {
    auto* proceedButton = qobject_cast<QPushButton*>(inPanel(number, "cmdProceed"));
    auto* cancelButton = qobject_cast<QPushButton*>(inPanel(number, "cmdCancel"));
    EXPECT_TRUE(proceedButton->isDefault()) << number;
    for (QPushButton* button : {proceedButton, cancelButton}) {
      button->setFocus();
      EXPECT_TRUE(proceedButton->isDefault()) << number;
      EXPECT_FALSE(cancelButton->isDefault()) << number;
    }
  };
  for (int round = 0; round < 2; ++round) {
    openPanel(11);
    expectDefault(kReliefPanel);
    openPanel(21);
    expectDefault(kDisabledPanel);
  }
  QTest::keyClick(inPanel(kDisabledPanel, "cmdCancel"), Qt::Key_Return);
  settle();
  EXPECT_FALSE(isUp(kDisabledPanel)) << "Enter on Close closes";
  EXPECT_FALSE(state.current().modified);
}

TEST_F(EffectPanelsTest, EachStyleOfTheButtonIsPickedFromTheList) {
  startWithDisc();
  openPanel(3);
  auto* list = find<QComboBox>("cboButtonizePattern");
  EXPECT_EQ(QApplication::focusWidget(), list);
  ASSERT_EQ(list->count(), 3);
  EXPECT_EQ(list->itemText(0), "1");
  EXPECT_EQ(list->itemText(2), "3");
  QWidget* sample = find("picButtonize");
  const std::array<QRgb, 3> topEdges{qRgb(255, 255, 255), qRgb(0, 0, 0), qRgb(255, 255, 255)};
  const std::array<QRgb, 3> belowTop{toRgb(kGround), qRgb(255, 255, 255), qRgb(0xE0, 0xE0, 0xE0)};
  for (int style = 0; style < 3; ++style) {
    pick(list, style);
    EXPECT_EQ(sampleAt(sample, 16, 0), topEdges[static_cast<std::size_t>(style)]) << style;
    EXPECT_EQ(sampleAt(sample, 16, 1), belowTop[static_cast<std::size_t>(style)]) << style;
  }
  expectNothingClipped(kButtonizePanel);
  proceed(kButtonizePanel);
  EXPECT_EQ(state.picImage.GetPixel(16, 1), rgb(0xE0, 0xE0, 0xE0));
}

TEST_F(EffectPanelsTest, TheDisabledImageIsShownAndMade) {
  startWithDisc();
  for (int x = 0; x < kTopLeftSquare; ++x) set(x, 1, rgb(10, 20, 30));
  openPanel(21);
  ASSERT_TRUE(isUp(kDisabledPanel));
  QWidget* sample = find("picImageForDisabledBtn");
  EXPECT_EQ(sampleAt(sample, 3, 1), qRgb(128, 128, 128));
  EXPECT_EQ(sampleAt(sample, 3, 2), qRgb(255, 255, 255));
  expectNothingClipped(kDisabledPanel);
  key(Qt::Key_Return);
  EXPECT_EQ(state.picImage.GetPixel(3, 1), rgb(128, 128, 128));
}

TEST_F(EffectPanelsTest, EachRunShowsItsOwnListOfMethods) {
  const std::array<QStringList, 3> methods{QStringList{"Optimal", "System"},
                                           QStringList{"Optimaized", "Nearest", "Standard VGA"},
                                           QStringList{"Select Cutoff", "Weighted", "Ordered"}};
  const std::array<const char*, 3> captions{"Confine Colors To 256-Color Palette", "Confine Colors To 16-Color Palette",
                                            "Confine Colors To Mono"};
  startWithDisc(4);
  for (int run = 0; run < 3; ++run) {
    openRun(run);
    ASSERT_TRUE(isUp(ConfinePanel::kNumber)) << run;
    EXPECT_EQ(find<QLabel>("lblConfineColors(1)")->text(), captions[static_cast<std::size_t>(run)]);
    EXPECT_EQ(find<QLabel>("lblConfineColors(3)")->text(), "(Remarks: Undo will not be available)");
    EXPECT_EQ(find<QLabel>("lblConfineColors(0)")->buddy(), confineList(run));
    EXPECT_EQ(QApplication::focusWidget(), confineList(run));
    const QStringList& texts = methods[static_cast<std::size_t>(run)];
    ASSERT_EQ(confineList(run)->count(), texts.size());
    for (int i = 0; i < texts.size(); ++i) {
      EXPECT_EQ(confineList(run)->itemText(i), texts[i]);
      pick(confineList(run), i);
      const IconImage& picture = shell.effects().panel<ConfinePanel>().picture();
      EXPECT_EQ(sampleAt(find("picConfineColors(0)"), 24, 20), toRgb(picture.image.GetPixel(24, 20))) << run << i;
      EXPECT_EQ(sampleAt(find("picConfineColors(1)"), 24, 20), toRgb(picture.mask.GetPixel(24, 20))) << run << i;
      expectNothingClipped(ConfinePanel::kNumber);
    }
    for (int other = 0; other < 3; ++other) EXPECT_EQ(confineList(other)->isVisible(), other == run);
    key(Qt::Key_Escape);
  }
}

TEST_F(EffectPanelsTest, TheThresholdComesAndGoesWithSelectCutoff) {
  startWithDisc(4);
  openRun(2);
  QComboBox* threshold = confineList(3);
  EXPECT_TRUE(threshold->isVisible());
  EXPECT_TRUE(find("lblConfineColors(2)")->isVisible());
  EXPECT_EQ(threshold->count(), 354);
  EXPECT_EQ(threshold->itemText(0), "1");
  EXPECT_EQ(threshold->itemText(353), "354");
  EXPECT_EQ(threshold->currentText(), "128");
  pick(confineList(2), 1);
  EXPECT_FALSE(threshold->isVisible());
  EXPECT_FALSE(find("lblConfineColors(2)")->isVisible());
  pick(confineList(2), 0);
  EXPECT_TRUE(threshold->isVisible());
  threshold->setFocus();
  key(Qt::Key_End);
  EXPECT_EQ(shell.effects().panel<ConfinePanel>().thresholdIndex(), 353);
  // Above the brightest pixel: everything painted is black.
  EXPECT_EQ(sampleAt(find("picConfineColors(1)"), 24, 24), qRgb(0, 0, 0));
}

TEST_F(EffectPanelsTest, TheSamplesFollowAnIconThatIsOpenedUnderThePanel) {
  startWithDisc();
  openPanel(11);
  bool ok = false;
  shell.doOpenIconFileQuietly(folder.write("other.ico", test::plainIconFile(16, 3)), ok);
  settle();
  ASSERT_TRUE(isUp(kReliefPanel));
  EXPECT_EQ(shell.effects().settingsPanel(kReliefPanel)->sample().width(), 16);
  EXPECT_EQ(sampleAt(find("picEffectsSample"), 8, 8), toRgb(state.picImage.GetPixel(8, 8)));
}

// The picture that a panel of effects has previewed.
const IconImage& pictureOf(const Effects& effects, int number) { return effects.find(number)->picture(); }

TEST_F(EffectPanelsTest, EveryPanelFollowsAnIconOfAnotherSizeAndAnEmptyContainer) {
  for (const EffectRow* effect : effectTable()) {
    if (!effect->apply) continue;
    startWithDisc();
    // To blend in.
    shell.document().arrival.fillContainer(5, transparentIcon(32), NewRecord());
    openPanel(effect->menu.index);
    const int number = effect->panel.number;
    ASSERT_TRUE(isUp(number)) << effect->title;
    bool ok = false;
    shell.doOpenIconFileQuietly(folder.write("other.ico", test::plainIconFile(16, 3)), ok);
    settle();
    ASSERT_TRUE(ok && isUp(number)) << effect->title;
    EXPECT_EQ(pictureOf(shell.effects(), number).width(), 16) << effect->title;
    state.current().present = false;
    display.changed(DisplayPart::IconsPanel);
    settle();
    EXPECT_EQ(pictureOf(shell.effects(), number).width(), 0) << effect->title;
    find(QString("fraPanel(%1)").arg(number))->grab();
    state.current().modified = false;
    form.reset();
  }
}

TEST_F(EffectPanelsTest, TheSampleFollowsTheCurrentColor) {
  startWithDisc();
  for (int y = 0; y < kTopLeftSquare; ++y)
    for (int x = 0; x < kTopLeftSquare; ++x) set(x, y, kRed);
  openPanel(14);
  find<QCheckBox>("ckbUseSelectedColor")->setChecked(true);
  state.mCurrentColor = rgb(1, 2, 3);
  display.changed(DisplayPart::ColorPanel);
  EXPECT_EQ(sampleAt(find("picEffectsSample"), kTopLeftSquare, 2), qRgb(1, 2, 3));
}

TEST_F(EffectPanelsTest, TheEditingAreaHasTheKeysWhenThePanelIsClosed) {
  startWithDisc();
  for (const int closing : {Qt::Key_Escape, Qt::Key_Return}) {
    for (const int effect : {3, 11, 14, 21}) {
      openPanel(effect);
      EXPECT_TRUE(
          find(QString("fraPanel(%1)").arg(state.screen.mActivePanel))->isAncestorOf(QApplication::focusWidget()));
      key(closing);
      EXPECT_TRUE(isUp(kColorPanel));
      EXPECT_EQ(QApplication::focusWidget(), find("picDisp")) << effect;
    }
  }
}

TEST_F(EffectPanelsTest, TheEditingAreaHasTheKeysAfterADropFromAnotherProgramToo) {
  startWithDisc();
  openPanel(3);
  QWidget other;
  other.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  ASSERT_FALSE(form->isAncestorOf(QApplication::focusWidget()));
  shell.document().iconsPanel.PanelDrop(2, {folder.write("dropped.ico", test::plainIconFile(16, 3))});
  EXPECT_TRUE(isUp(kColorPanel));
  EXPECT_EQ(form->focusWidget(), find("picDisp"));
}

TEST_F(EffectPanelsTest, AChartThatIsAskedForUnderAPanelIsSeen) {
  startWithDisc();
  for (const int entry : {0, 1, 2}) {
    openPanel(11);
    trigger("mnuPaletteSub", entry);
    EXPECT_TRUE(isUp(kColorPanel));
    EXPECT_TRUE(QApplication::focusWidget()->isVisible());
  }
}

TEST_F(EffectPanelsTest, ALongListDropsDownWithTwelveEntriesAndAScrollBar) {
  startWithDisc(4);
  openRun(2);
  QComboBox* threshold = confineList(3);
  threshold->showPopup();
  const QAbstractItemView* items = threshold->view();
  ASSERT_TRUE(items->isVisible());
  const int row = items->visualRect(items->model()->index(threshold->currentIndex(), 0)).height();
  EXPECT_EQ(items->viewport()->height() / row, 12);
  EXPECT_TRUE(items->verticalScrollBar()->isVisible());
  threshold->hidePopup();
}

TEST_F(EffectPanelsTest, OnlyTheControlThatTakesTheKeysTellsThatItHasTheFocus) {
  startWithDisc();
  openPanel(3);
  const auto tells = [](QWidget* widget) {
    return static_cast<bool>(QAccessible::queryAccessibleInterface(widget)->state().focused);
  };
  EXPECT_TRUE(tells(find("cboButtonizePattern")));
  EXPECT_FALSE(tells(find("fraPanel(7)")));
}

TEST_F(EffectPanelsTest, PicturesForTheEye) {
  const std::array<std::pair<int, const char*>, 3> effects{
      {{14, "panel-shades"}, {3, "panel-buttonize"}, {21, "panel-disabled"}}};
  const QPalette light = QApplication::palette();
  for (const char* theme : {"", "-dark"}) {
    if (*theme) QApplication::setPalette(test::darkPalette());
    startWithDisc(4);
    for (const auto& [effect, name] : effects) {
      openPanel(effect);
      screenshot(QString(name) + theme);
    }
    for (int run = 0; run < 3; ++run) {
      openRun(run);
      screenshot(QString("panel-confine-%1%2").arg(run).arg(theme));
    }
    state.current().modified = false;
    form.reset();
  }
  QApplication::setPalette(light);
}

}  // namespace
}  // namespace gp

// The panels of tone, sharpening and antialiasing on the main form, used by keyboard and mouse.
#include "document/Containers.h"
#include "document/PanelNumbers.h"
#include "effects/BrightnessPanel.h"
#include "effects/EffectCases.h"
#include "effects/SettingsPanel.h"
#include "effects/ThemePanel.h"
#include "ui/FormFixture.h"
#include "ui/Screens.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>

namespace gp {
namespace {

constexpr int kBrightness = 6, kSharpen = 7, kAntialias = 8, kTheme = 9, kCast = 16, kGrayscale = 17, kSwap = 20;

class TonePanelsTest : public test::FormFixture {
 protected:
  void startWithPicture() {
    start();
    shell.document().arrival.arrive(test::generatedIcons(48).back(), NewRecord());
    settle();
  }
  void open(int effect) {
    find<QAction>(QString("mnuEffectsSub(%1)").arg(effect))->trigger();
    settle();
  }
  QComboBox* list(const char* name) { return find<QComboBox>(name); }
  QString text(const char* label) { return find<QLabel>(label)->text(); }
  static QString accessibleName(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
  }
  void restore() { state.current().modified = false; }
};

TEST_F(TonePanelsTest, BrightnessHasFourListsThatReturnToZero) {
  startWithPicture();
  open(kBrightness);
  ASSERT_EQ(state.screen.mActivePanel, BrightnessPanel::kNumber);
  EXPECT_EQ(text("lblBrightness(0)"), "Red(+/- %)      Green(+/- %)     Blue(+/-%)");
  EXPECT_EQ(text("lblBrightness(2)"), "+ is brighter/-- is darker");
  EXPECT_EQ(text("lblBrightness(3)"),
            "(Remarks:  After each adj is made to this displayed image, the setting returns to 0 )");
  BrightnessTable expected;
  const std::pair<const char*, BrightnessOf> lists[] = {{"cboBrightness(0)", BrightnessOf::Red},
                                                        {"cboBrightness(1)", BrightnessOf::Green},
                                                        {"cboBrightness(2)", BrightnessOf::Blue},
                                                        {"cboBrightnessOverall", BrightnessOf::Overall}};
  const BrightnessPanel& panel = shell.effects().panel<BrightnessPanel>();
  const IconImage icon{state.picImage, state.picMask, {}};
  EXPECT_EQ(QApplication::focusWidget(), list("cboBrightness(0)"));
  for (const auto& [name, channel] : lists) {
    EXPECT_EQ(list(name)->currentText(), "0") << name;
    EXPECT_EQ(list(name)->count(), 37) << name;
    QTest::keyClick(list(name), Qt::Key_Up);
    EXPECT_EQ(list(name)->currentText(), "0") << name;
    expected.change(channel, -5);
    EXPECT_TRUE(test::samePixels(panel.picture(), expected.on(icon))) << name;
  }
  click(find("cmdBrightnessRestore"));
  EXPECT_TRUE(test::samePixels(panel.picture(), icon));
  restore();
}

TEST_F(TonePanelsTest, CastHasThreeListsOneSliderAndRestore) {
  startWithPicture();
  open(kGrayscale);
  EXPECT_FALSE(find("hsrCast")->isVisible());
  open(kCast);
  EXPECT_EQ(text("lblCast"), "     Red                Greeen            Blue");
  EXPECT_EQ(text("lblEffectsSample"), "Cast");
  EXPECT_EQ(QApplication::focusWidget(), list("cboCast(0)"));
  auto* slider = find<QSlider>("hsrCast");
  EXPECT_TRUE(slider->isVisible());
  const auto levels = [this] {
    return QStringList{list("cboCast(0)")->currentText(), list("cboCast(1)")->currentText(),
                       list("cboCast(2)")->currentText()};
  };
  SettingsPanel& panel = *shell.effects().settingsPanel(kSharedPanel.number);
  EXPECT_EQ(levels(), (QStringList{"127", "127", "127"}));
  QTest::keyClick(list("cboCast(2)"), Qt::Key_End);
  EXPECT_EQ(levels(), (QStringList{"127", "127", "255"}));
  EXPECT_EQ(slider->value(), 170);
  QTest::keyClick(slider, Qt::Key_Right);
  EXPECT_EQ(levels(), (QStringList{"128", "128", "255"}));
  EXPECT_EQ(slider->value(), 170);
  QTest::keyClick(slider, Qt::Key_Home);
  EXPECT_EQ(levels(), (QStringList{"0", "0", "85"}));
  EXPECT_EQ(slider->value(), 28);
  EXPECT_EQ(panel.values(), (EffectValues{rgb(0, 0, 85)}));
  click(find("cmdCastRestore"));
  EXPECT_EQ(levels(), (QStringList{"127", "127", "127"}));
  EXPECT_EQ(slider->value(), 127);
  EXPECT_EQ(panel.values(), (EffectValues{rgb(127, 127, 127)}));
  restore();
}

TEST_F(TonePanelsTest, AThemeShowsItsColorAndEnablesThePercentageForHueZero) {
  startWithPicture();
  open(kTheme);
  EXPECT_EQ(QApplication::focusWidget(), find("cmdColorTheme"));
  EXPECT_EQ(text("lblColorTheme(3)"), "");
  EXPECT_FALSE(find("picColorTheme(1)")->isVisible());
  EXPECT_FALSE(list("cboColorTheme")->isEnabled());
  dialogs.colors = {rgb(0, 0, 255), rgb(128, 128, 128)};
  click(find("cmdColorTheme"));
  EXPECT_NE(text("lblColorTheme(3)"), "");
  EXPECT_TRUE(find("picColorTheme(1)")->isVisible());
  EXPECT_FALSE(list("cboColorTheme")->isEnabled());
  click(find("cmdColorTheme"));
  ASSERT_TRUE(list("cboColorTheme")->isEnabled());
  EXPECT_EQ(list("cboColorTheme")->currentText(), "100");
  QTest::keyClick(list("cboColorTheme"), Qt::Key_End);
  EXPECT_EQ(list("cboColorTheme")->currentText(), "0");
  const ThemePanel& panel = shell.effects().panel<ThemePanel>();
  const EffectRow& theme = *findEffect("theme");
  EXPECT_TRUE(
      test::samePixels(panel.picture(), theme.apply({state.picImage, state.picMask, {}}, {rgb(128, 128, 128), 0})));
  restore();
}

TEST_F(TonePanelsTest, SwapRemarksAboutMonoColors) {
  startWithPicture();
  open(kSwap);
  QStringList texts;
  for (const QLabel* label : find("fraPanel(14)")->findChildren<QLabel*>())
    if (label->isVisible()) texts << label->text();
  EXPECT_TRUE(texts.contains("(Remarks: If current image is of mono color, no change will take place)"));
  EXPECT_TRUE(text("lblSwapElementsOfPixels").contains("R.G.B."));
  restore();
}

TEST_F(TonePanelsTest, EveryControlHasANameAndIsReachedByTab) {
  startWithPicture();
  dialogs.colors = {rgb(128, 128, 128)};
  for (const int effect : {kBrightness, kSharpen, kAntialias, kTheme, kCast, kSwap}) {
    open(effect);
    if (effect == kTheme) click(find("cmdColorTheme"));
    QWidget* panel = find(QString("fraPanel(%1)").arg(state.screen.mActivePanel));
    std::set<QString> reached;
    for (int i = 0; i < 30; ++i) {
      if (panel->isAncestorOf(QApplication::focusWidget())) reached.insert(QApplication::focusWidget()->objectName());
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (QWidget* control : panel->findChildren<QWidget*>()) {
      if (!control->isVisible() || !(control->focusPolicy() & Qt::TabFocus) || control->objectName().isEmpty())
        continue;
      EXPECT_FALSE(accessibleName(control).isEmpty()) << control->objectName().toStdString();
      EXPECT_TRUE(reached.contains(control->objectName())) << control->objectName().toStdString();
    }
  }
  restore();
}

TEST_F(TonePanelsTest, PicturesForTheEye) {
  const QPalette light = QApplication::palette();
  for (const char* theme : {"", "-dark"}) {
    if (*theme) QApplication::setPalette(test::darkPalette());
    startWithPicture();
    for (const auto& [effect, name] : {std::pair{kBrightness, "brightness"},
                                       {kSharpen, "sharpen"},
                                       {kAntialias, "antialias"},
                                       {kTheme, "theme"},
                                       {kCast, "cast"},
                                       {kSwap, "swap"}}) {
      open(effect);
      if (effect == kTheme) {
        dialogs.colors = {rgb(0, 96, 200)};
        click(find("cmdColorTheme"));
      }
      screenshot(QString("panel-%1%2").arg(name).arg(theme));
    }
    restore();
    form.reset();
  }
  QApplication::setPalette(light);
}

}  // namespace
}  // namespace gp

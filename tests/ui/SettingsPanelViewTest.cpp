// The panels that are generated from the settings of their effects: every effect of the table on the main form, and a
// setting of each kind.
#include "document/Containers.h"
#include "document/PanelNumbers.h"
#include "document/ui/SurfacePainting.h"
#include "effects/EffectCases.h"
#include "effects/MadeUpEffect.h"
#include "effects/SettingsPanel.h"
#include "effects/ui/SettingsPanelView.h"
#include "support/Rooms.h"
#include "ui/FormFixture.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

namespace gp {
namespace {

class EffectTablePanelsTest : public test::FormFixture {
 protected:
  void startWithPicture() {
    start();
    shell.document().arrival.arrive(test::generatedIcons(48).back(), NewRecord());
    settle();
  }
  QAction* entryOf(const EffectRow& effect) {
    return find<QAction>(QString("mnuEffectsSub(%1)").arg(effect.menu.index));
  }
  QWidget* panelOf(const EffectRow& effect) { return find(QString("fraPanel(%1)").arg(effect.panel.number)); }
};

QString accessibleName(QWidget* widget) {
  return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

TEST_F(EffectTablePanelsTest, EachEffectOpensByItsEntryWithItsControlsAndItsSample) {
  startWithPicture();
  for (const EffectRow* effect : test::effectsOfGeneratedPanels()) {
    SCOPED_TRACE(effect->name);
    EXPECT_EQ(entryOf(*effect)->text(), effect->menu.caption);
    EXPECT_EQ(entryOf(*effect)->shortcut(), QKeySequence(effect->menu.key));
    entryOf(*effect)->trigger();
    settle();
    ASSERT_EQ(state.screen.mActivePanel, effect->panel.number);
    QWidget* panel = panelOf(*effect);
    ASSERT_TRUE(panel->isVisible());
    QWidget* sample = panel->findChild<QWidget*>(effect->panel.sample);
    ASSERT_NE(sample, nullptr);
    EXPECT_FALSE(accessibleName(sample).isEmpty());
    if (*effect->panel.sampleLabel) {
      EXPECT_EQ(panel->findChild<QLabel*>(effect->panel.sampleLabel)->text(), effect->title);
    }
    for (const EffectRow* other : test::effectsOfGeneratedPanels())
      for (const Setting& setting : other->settings) {
        if (other->panel.number != effect->panel.number) continue;
        const QString suffix = setting.kind == SettingKind::Levels ? "(0)" : "";
        auto* control = panel->findChild<QWidget*>(setting.control + suffix);
        ASSERT_NE(control, nullptr) << setting.control;
        const SettingsPanel* side = shell.effects().settingsPanel(effect->panel.number);
        EXPECT_EQ(control->isVisible(), side->shows(setting)) << setting.control;
        EXPECT_FALSE(accessibleName(control).isEmpty()) << setting.control;
        EXPECT_TRUE(control->focusPolicy() & Qt::TabFocus) << setting.control;
      }
    key(Qt::Key_Escape);
    EXPECT_EQ(state.screen.mActivePanel, kColorPanel);
  }
}

TEST_F(EffectTablePanelsTest, ReturnAppliesTheEffectThatTheSampleShows) {
  startWithPicture();
  for (const EffectRow* effect : test::effectsOfGeneratedPanels()) {
    entryOf(*effect)->trigger();
    settle();
    SettingsPanel* side = shell.effects().settingsPanel(effect->panel.number);
    if (!effect->settings.empty()) side->choose(effect->settings.front(), 1);
    const IconImage shown = side->picture();
    key(Qt::Key_Return);
    EXPECT_EQ(state.screen.mActivePanel, kColorPanel) << effect->name;
    EXPECT_TRUE(test::samePixels({state.picImage, state.picMask, {}}, shown)) << effect->name;
  }
  state.current().modified = false;
}

class SettingsPanelViewTest : public testing::Test, protected test::Rooms {
 protected:
  EffectFrame frame{context, document, drawing.history};
  SettingsPanel panel{frame, {&test::kMadeUp, &test::kPainted}};
  SettingsPanelView view{nullptr, panel};

  SettingsPanelViewTest() {
    display.onChanged = [this](DisplayPart part) {
      if (part == DisplayPart::SidePanel) view.refreshAll();
    };
    document.arrival.arrive(transparentIcon(16), NewRecord());
    panel.open(test::kMadeUp);
    view.show();
  }
  template <class Widget = QWidget>
  Widget* find(const char* name) {
    return view.findChild<Widget*>(name);
  }
};

TEST_F(SettingsPanelViewTest, EachSettingHasItsControl) {
  EXPECT_EQ(view.objectName(), "fraPanel(77)");
  const std::pair<const char*, const char*> names[] = {{"cboMadeUp(0)", "Red"},
                                                       {"cboMadeUp(1)", "Factor"},
                                                       {"cboMadeUp(2)", "Size"},
                                                       {"ckbMadeUpColor", "Use current color (otherwise dark)"},
                                                       {"ckbMadeUpStrong", "Strong"}};
  for (const auto& [control, name] : names) {
    ASSERT_NE(find(control), nullptr) << control;
    EXPECT_EQ(find(control)->accessibleName(), name);
    EXPECT_TRUE(find(control)->isVisible()) << control;
  }
  EXPECT_EQ(find<QLabel>("lblMadeUp(1)")->buddy(), find("cboMadeUp(1)"));
  EXPECT_EQ(find<QLabel>("lblMadeUp(1)")->text(), "&Factor:");
  EXPECT_EQ(find<QLabel>("lblMadeUp")->text(), "Made up");
  EXPECT_EQ(find<QComboBox>("cboMadeUp(0)")->currentText(), "1");
  EXPECT_EQ(find<QComboBox>("cboMadeUp(1)")->currentText(), "0.5");
  EXPECT_EQ(find<QComboBox>("cboMadeUp(2)")->currentText(), "normal");
}

TEST_F(SettingsPanelViewTest, AChoiceInAControlReachesThePanel) {
  for (const char* list : {"cboMadeUp(0)", "cboMadeUp(1)", "cboMadeUp(2)"}) {
    QTest::keyClick(find<QComboBox>(list), Qt::Key_End);
    EXPECT_EQ(find<QComboBox>(list)->currentIndex(), find<QComboBox>(list)->count() - 1);
  }
  state.mCurrentColor = rgb(7, 8, 9);
  find<QCheckBox>("ckbMadeUpColor")->setChecked(true);
  find<QCheckBox>("ckbMadeUpStrong")->setChecked(true);
  EXPECT_EQ(panel.values(), (EffectValues{2, 10, 2, rgb(7, 8, 9), 1}));
}

TEST_F(SettingsPanelViewTest, AnEffectWithoutSettingsShowsNoneOfThem) {
  panel.open(test::kPainted);
  for (const char* control : {"cboMadeUp(0)", "lblMadeUp(0)", "ckbMadeUpColor", "ckbMadeUpStrong"})
    EXPECT_FALSE(find(control)->isVisible()) << control;
  EXPECT_EQ(find<QLabel>("lblMadeUp")->text(), "Painted");
  view.focusFirstControl();
  EXPECT_EQ(view.focusWidget(), find("cmdProceed"));
  panel.open(test::kMadeUp);
  EXPECT_TRUE(find("cboMadeUp(0)")->isVisible());
  view.focusFirstControl();
  EXPECT_EQ(view.focusWidget(), find("cboMadeUp(0)"));
}

}  // namespace
}  // namespace gp

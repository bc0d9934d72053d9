#include "effects/ui/SettingsPanelView.h"

#include "colour/ui/ColorSample.h"
#include "document/ui/Lists.h"
#include "effects/SettingsPanel.h"
#include "effects/ui/LevelsControl.h"
#include "platform/qt/widgets/WrappedCheckBox.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

#include <algorithm>
#include <string_view>

namespace gp {
namespace {

constexpr std::string_view kListPrefix = "cbo";
constexpr std::string_view kBoxPrefix = "ckb";
constexpr int kGap = 8;

// The label's text without access letter and colon.
QString accessibleNameOf(const Setting& setting) {
  QString name(setting.label);
  return name.remove('&').remove(':');
}

// "lblSphere(0)" for the list "cboSphere(0)".
QString labelNameOf(const Setting& setting) {
  return "lbl" + QString(setting.control).mid(static_cast<int>(kListPrefix.size()));
}

// "picUseSelectedColor" for the box "ckbUseSelectedColor".
QString swatchNameOf(const Setting& setting) {
  return "pic" + QString(setting.control).mid(static_cast<int>(kBoxPrefix.size()));
}

}  // namespace

SettingsPanelView::SettingsPanelView(QWidget* parent, SettingsPanel& panel)
    : EffectPanelView(parent, panel), panel_(panel) {
  for (const EffectRow* effect : panel_.effects())
    for (const Setting& setting : effect->settings) addControl(setting);
  addRemark(panel_.effect().panel);
  addSample();
  refresh();
}

// Effects that have the same setting share its control.
void SettingsPanelView::addControl(const Setting& setting) {
  if (std::ranges::find(controls_, &setting, &Control::setting) != controls_.end()) return;
  if (hasList(setting))
    controls_.push_back(makeListControl(setting));
  else if (setting.kind == SettingKind::Levels)
    controls_.push_back(makeLevelsControl(setting));
  else
    controls_.push_back(makeBoxControl(setting));
}

// Only a choice of the user reaches the panel: `activated` is not emitted when the list is set here.
SettingsPanelView::Control SettingsPanelView::makeListControl(const Setting& setting) {
  QComboBox* list = makeSettingList(setting);
  QLabel* label = addRow(labelNameOf(setting), setting.label, list);
  return {&setting, list, {list, label}, [list](int choice) { list->setCurrentIndex(choice); }};
}

QComboBox* SettingsPanelView::makeSettingList(const Setting& setting) {
  QComboBox* list = makeList(rows(), listOf(setting), accessibleNameOf(setting));
  connect(list, &QComboBox::activated, this, [this, &setting](int index) { panel_.choose(setting, index); });
  return list;
}

SettingsPanelView::Control SettingsPanelView::makeLevelsControl(const Setting& setting) {
  auto* levels = new LevelsControl(rows(), setting);
  connect(levels, &LevelsControl::chosen, this, [this, &setting](int choice) { panel_.choose(setting, choice); });
  addWide(levels);
  return {&setting, levels->firstList(), {levels}, [levels](int choice) { levels->showLevels(choice); }};
}

// A box that selects the current colour has the colour beside it.
SettingsPanelView::Control SettingsPanelView::makeBoxControl(const Setting& setting) {
  auto* row = new QWidget(rows());
  auto* columns = new QHBoxLayout(row);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(kGap);
  auto* box = new WrappedCheckBox(setting.label, row);
  box->setObjectName(setting.control);
  box->setAccessibleName(accessibleNameOf(setting));
  connect(box, &QCheckBox::toggled, this, [this, &setting](bool on) { panel_.choose(setting, on ? 1 : 0); });
  columns->addWidget(box, 1);
  if (setting.kind == SettingKind::Rgb) addSwatch(row, setting);
  addWide(row);
  return {&setting, box, {row}, [box](int choice) {
            const QSignalBlocker quiet(box);
            box->setChecked(choice != 0);
          }};
}

void SettingsPanelView::addSwatch(QWidget* row, const Setting& setting) {
  auto* swatch = new ColorSample(row, swatchNameOf(setting), "Currently selected color", panel_.currentColor());
  qobject_cast<QHBoxLayout*>(row->layout())->addWidget(swatch, 0, Qt::AlignTop);
  swatches_.push_back(swatch);
}

void SettingsPanelView::addRemark(const EffectPanelPlace& place) {
  if (*place.remark) addRow("", place.remark);
}

void SettingsPanelView::addSample() {
  const EffectPanelPlace& place = panel_.effect().panel;
  QLabel* label = addSamples({{place.sample, "Sample", panel_.sample()}}).front();
  if (!*place.sampleLabel) return;
  sampleLabel_ = label;
  sampleLabel_->setObjectName(place.sampleLabel);
}

void SettingsPanelView::refresh() {
  QWidget* first = nullptr;
  for (const Control& control : controls_) {
    const bool isShown = panel_.shows(*control.setting);
    control.show(panel_.choiceOf(*control.setting));
    for (QWidget* widget : control.widgets) widget->setVisible(isShown);
    if (isShown && !first) first = control.first;
  }
  setFirstControl(first ? first : proceedButton());
  setTitle(panel_.effect().title);
  if (sampleLabel_) sampleLabel_->setText(panel_.effect().title);
  for (ColorSample* swatch : swatches_) swatch->refresh();
}

}  // namespace gp

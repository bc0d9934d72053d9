#include "effects/ui/SettingsPanelView.h"

#include "document/ui/Lists.h"
#include "effects/SettingsPanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <string_view>

namespace gp {
namespace {

constexpr std::string_view kListPrefix = "cbo";

// The label's text without access letter, colon and line breaks.
QString accessibleNameOf(const Setting& setting) {
  QString name(setting.label);
  return name.remove('&').remove(':').replace('\n', ' ');
}

// "lblSphere(0)" for the list "cboSphere(0)".
QString labelNameOf(const Setting& setting) {
  return "lbl" + QString(setting.control).mid(static_cast<int>(kListPrefix.size()));
}

}  // namespace

SettingsPanelView::SettingsPanelView(QWidget* parent, SettingsPanel& panel)
    : EffectPanelView(parent, panel), panel_(panel) {
  for (const EffectRow* effect : panel_.effects())
    for (const Setting& setting : effect->settings) addControl(setting);
  rows()->addStretch(1);
  addSample();
  refresh();
}

// Effects that have the same setting share its control.
void SettingsPanelView::addControl(const Setting& setting) {
  if (std::ranges::find(controls_, &setting, &Control::setting) != controls_.end()) return;
  if (!hasList(setting)) {
    controls_.push_back({&setting, nullptr, nullptr, addBox(setting)});
    return;
  }
  QComboBox* list = addList(setting);
  QLabel* label = addLabel(labelNameOf(setting), setting.label, list);
  rows()->addWidget(list);
  controls_.push_back({&setting, list, label, nullptr});
}

QComboBox* SettingsPanelView::addList(const Setting& setting) {
  QComboBox* list = makeList(this, listOf(setting), accessibleNameOf(setting));
  connect(list, &QComboBox::activated, this, [this, &setting](int index) { panel_.choose(setting, index); });
  return list;
}

QCheckBox* SettingsPanelView::addBox(const Setting& setting) {
  auto* box = new QCheckBox(setting.label, this);
  box->setObjectName(setting.control);
  box->setAccessibleName(accessibleNameOf(setting));
  connect(box, &QCheckBox::toggled, this, [this, &setting](bool on) { panel_.choose(setting, on ? 1 : 0); });
  rows()->addWidget(box);
  return box;
}

void SettingsPanelView::addSample() {
  const EffectPanelPlace& place = panel_.effect().panel;
  QLabel* label = addSamples({{place.sample, "Sample", panel_.sample()}}).front();
  if (!*place.sampleLabel) return;
  title_ = label;
  title_->setObjectName(place.sampleLabel);
}

// Only a choice of the user reaches the panel: `activated` is not emitted here, and the box is blocked.
void SettingsPanelView::showChoice(const Control& control, int choice) {
  if (control.list) {
    control.list->setCurrentIndex(choice);
    return;
  }
  const QSignalBlocker quiet(control.box);
  control.box->setChecked(choice != 0);
}

void SettingsPanelView::refresh() {
  QWidget* first = nullptr;
  for (const Control& control : controls_) {
    QWidget* widget = control.list ? static_cast<QWidget*>(control.list) : control.box;
    const bool isShown = panel_.shows(*control.setting);
    showChoice(control, panel_.choiceOf(*control.setting));
    widget->setVisible(isShown);
    if (control.label) control.label->setVisible(isShown);
    if (isShown && !first) first = widget;
  }
  setFirstControl(first ? first : proceedButton());
  if (title_) title_->setText(panel_.effect().title);
}

}  // namespace gp

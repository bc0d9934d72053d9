#include "effects/ui/SettingsPanelView.h"

#include "colour/ui/ColorSample.h"
#include "document/ui/Lists.h"
#include "effects/SettingsPanel.h"
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
  addSample();
  refresh();
}

// Effects that have the same setting share its control.
void SettingsPanelView::addControl(const Setting& setting) {
  if (std::ranges::find(controls_, &setting, &Control::setting) != controls_.end()) return;
  if (hasList(setting)) {
    QComboBox* list = makeSettingList(setting);
    controls_.push_back({&setting, list, addRow(labelNameOf(setting), setting.label, list), nullptr});
  } else {
    addBox(setting);
  }
}

QComboBox* SettingsPanelView::makeSettingList(const Setting& setting) {
  QComboBox* list = makeList(rows(), listOf(setting), accessibleNameOf(setting));
  connect(list, &QComboBox::activated, this, [this, &setting](int index) { panel_.choose(setting, index); });
  return list;
}

// A box that selects the current colour has the colour beside it.
void SettingsPanelView::addBox(const Setting& setting) {
  auto* row = new QWidget(rows());
  auto* columns = new QHBoxLayout(row);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(kGap);
  auto* box = new WrappedCheckBox(setting.label, row);
  box->setObjectName(setting.control);
  box->setAccessibleName(accessibleNameOf(setting));
  connect(box, &QCheckBox::toggled, this, [this, &setting](bool on) { panel_.choose(setting, on ? 1 : 0); });
  columns->addWidget(box, 1);
  if (setting.kind == SettingKind::Rgb) {
    auto* swatch = new ColorSample(row, swatchNameOf(setting), "Currently selected color", panel_.currentColor());
    columns->addWidget(swatch, 0, Qt::AlignTop);
    swatches_.push_back(swatch);
  }
  addWide(row);
  controls_.push_back({&setting, nullptr, nullptr, box});
}

void SettingsPanelView::addSample() {
  const EffectPanelPlace& place = panel_.effect().panel;
  QLabel* label = addSamples({{place.sample, "Sample", panel_.sample()}}).front();
  if (!*place.sampleLabel) return;
  sampleLabel_ = label;
  sampleLabel_->setObjectName(place.sampleLabel);
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

void SettingsPanelView::showSetting(const Control& control, bool isShown) {
  if (control.list) {
    control.list->setVisible(isShown);
    control.label->setVisible(isShown);
  } else {
    control.box->parentWidget()->setVisible(isShown);
  }
}

void SettingsPanelView::refresh() {
  QWidget* first = nullptr;
  for (const Control& control : controls_) {
    const bool isShown = panel_.shows(*control.setting);
    showChoice(control, panel_.choiceOf(*control.setting));
    showSetting(control, isShown);
    if (isShown && !first) first = control.list ? static_cast<QWidget*>(control.list) : control.box;
  }
  setFirstControl(first ? first : proceedButton());
  setTitle(panel_.effect().title);
  if (sampleLabel_) sampleLabel_->setText(panel_.effect().title);
  for (ColorSample* swatch : swatches_) swatch->refresh();
}

}  // namespace gp

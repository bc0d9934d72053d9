#include "effects/ui/BrightnessPanelView.h"

#include "document/ui/Lists.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <utility>

namespace gp {
namespace {

constexpr int kGap = 8;
constexpr std::pair<BrightnessOf, const char*> kChannels[] = {
    {BrightnessOf::Red, "Red"}, {BrightnessOf::Green, "Green"}, {BrightnessOf::Blue, "Blue"}};

}  // namespace

BrightnessPanelView::BrightnessPanelView(QWidget* parent, BrightnessPanel& panel)
    : EffectPanelView(parent, panel), panel_(panel), zero_(fillList("cboBrightnessOverall").first) {
  addRow("lblBrightness(0)", "Red(+/- %)      Green(+/- %)     Blue(+/-%)");
  addChannels();
  addOverall();
  addRow("lblBrightness(2)", "+ is brighter/-- is darker");
  addRestore();
  addRow("lblBrightness(3)", "(Remarks:  After each adj is made to this displayed image, the setting returns to 0 )");
  addSamples({{"picBrightness", "Sample", panel_.sample()}});
  setFirstControl(lists_.front());
}

void BrightnessPanelView::addChannels() {
  auto* place = new QWidget(rows());
  auto* columns = new QHBoxLayout(place);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(kGap);
  for (const auto& [channel, name] : kChannels) {
    const QString objectName = QString("cboBrightness(%1)").arg(static_cast<int>(channel));
    columns->addWidget(completed(makeUnlabelledList(place, objectName, name), channel), 1);
  }
  addWide(place);
}

void BrightnessPanelView::addOverall() {
  QComboBox* list = completed(makeList(rows(), "cboBrightnessOverall", "Overall"), BrightnessOf::Overall);
  addRow("lblBrightness(1)", "&Overall(+/- %):", list);
}

void BrightnessPanelView::addRestore() {
  auto* button = new QPushButton("&Restore", rows());
  button->setObjectName("cmdBrightnessRestore");
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this] { panel_.cmdBrightnessRestore(); });
  addWide(button);
}

QComboBox* BrightnessPanelView::completed(QComboBox* list, BrightnessOf channel) {
  connect(list, &QComboBox::activated, this, [this, channel](int index) { panel_.adjust(channel, index); });
  lists_.push_back(list);
  return list;
}

// Setting an index here does not emit `activated`, which only a choice of the user does.
void BrightnessPanelView::refresh() {
  for (QComboBox* list : lists_) list->setCurrentIndex(zero_);
}

}  // namespace gp

#include "effects/ui/BlendPanelView.h"

#include "document/ui/Lists.h"

#include <QComboBox>
#include <QLabel>

namespace gp {

BlendPanelView::BlendPanelView(QWidget* parent, BlendPanel& panel)
    : EffectPanelView(parent, panel),
      panel_(panel),
      lblBlendIn_(addRow("lblBlendIn", "")),
      container_(makeList(rows(), "cboBlendIn(0)", "Blend in icon from container ref")),
      percent_(makeList(rows(), "cboBlendIn(1)", "Translucency %")) {
  addRow("lblBlendIn(0)", "B&lend in icon from container ref: ", container_);
  addRow("lblBlendIn(1)", "Transl&ucency %:", percent_);
  addSamples({{"picBlendIn", "Sample", panel_.sample()}});
  connect(container_, &QComboBox::activated, this, [this](int index) { panel_.pickContainer(index); });
  connect(percent_, &QComboBox::activated, this, [this](int index) { panel_.pickPercent(index); });
  setFirstControl(container_);
  refresh();
}

// Changing a list here does not emit `activated`, which only a choice of the user does.
void BlendPanelView::refresh() {
  lblBlendIn_->setText(QString::fromStdString(panel_.lblBlendIn()));
  showEntries(container_, panel_.containerEntries());
  container_->setItemData(0, "none", Qt::AccessibleTextRole);
  container_->setCurrentIndex(panel_.containerIndex());
  percent_->setCurrentIndex(panel_.percentIndex());
}

}  // namespace gp

#include "effects/ui/ButtonizePanelView.h"

#include "document/ui/Lists.h"
#include "effects/ButtonizePanel.h"

#include <QComboBox>
#include <QVBoxLayout>

namespace gp {

ButtonizePanelView::ButtonizePanelView(QWidget* parent, ButtonizePanel& panel)
    : EffectPanelView(parent, panel),
      panel_(panel),
      cboButtonizePattern_(makeList(this, "cboButtonizePattern", "Style")) {
  connect(cboButtonizePattern_, &QComboBox::activated, this, [this](int index) { panel_.pickPattern(index); });
  addLabel("lblButtonizePattern", "&Style:", cboButtonizePattern_);
  rows()->addWidget(cboButtonizePattern_);
  rows()->addStretch(1);
  addSamples({{"picButtonize", "Sample", panel_.picButtonize()}});
  setFirstControl(cboButtonizePattern_);
  refresh();
}

// Setting it tells nothing: only a choice of the person does.
void ButtonizePanelView::refresh() { cboButtonizePattern_->setCurrentIndex(panel_.cboButtonizePattern()); }

}  // namespace gp

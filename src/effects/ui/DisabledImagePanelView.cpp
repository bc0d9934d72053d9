#include "effects/ui/DisabledImagePanelView.h"

#include "effects/DisabledImagePanel.h"

#include <QVBoxLayout>

namespace gp {

DisabledImagePanelView::DisabledImagePanelView(QWidget* parent, DisabledImagePanel& panel)
    : EffectPanelView(parent, panel) {
  rows()->addStretch(1);
  addSamples({{"picImageForDisabledBtn", "Sample", panel.picImageForDisabledBtn()}});
}

}  // namespace gp

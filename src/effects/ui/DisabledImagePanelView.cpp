#include "effects/ui/DisabledImagePanelView.h"

#include "effects/DisabledImagePanel.h"

namespace gp {

DisabledImagePanelView::DisabledImagePanelView(QWidget* parent, DisabledImagePanel& panel)
    : EffectPanelView(parent, panel) {
  addSamples({{"picImageForDisabledBtn", "Sample", panel.picImageForDisabledBtn()}});
}

}  // namespace gp

// fraPanel(18): the choice between softened and plain, and the icon at its new size both ways, side by side.
#pragma once

#include "effects/ResizePanel.h"
#include "effects/ui/EffectPanelView.h"

#include <array>

class QComboBox;

namespace gp {

class ResizePanelView final : public EffectPanelView {
  Q_OBJECT

 public:
  ResizePanelView(QWidget* parent, ResizePanel& panel);

 protected:
  void refresh() override;

 private:
  void addBothSamples();

  ResizePanel& panel_;
  QComboBox* option_;
  std::array<SampleView*, ResizePanel::kOptions> results_{};
};

}  // namespace gp

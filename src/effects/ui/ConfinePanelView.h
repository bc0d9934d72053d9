// fraPanel(19): the list of methods of the current run, the threshold if the method has one, and the samples of image
// and Mask.
#pragma once

#include "effects/ConfinePanel.h"
#include "effects/ui/EffectPanelView.h"

#include <array>

class QComboBox;

namespace gp {

class ConfinePanelView final : public EffectPanelView {
  Q_OBJECT

 public:
  ConfinePanelView(QWidget* parent, ConfinePanel& panel);

 protected:
  void refresh() override;

 private:
  void addMethods();
  void addThreshold();

  ConfinePanel& panel_;
  QLabel* lblConfineTo_ = nullptr;
  QLabel* lblRun_ = nullptr;
  QLabel* lblThreshold_ = nullptr;
  std::array<QComboBox*, kConfineRuns> methods_{};
  QComboBox* threshold_ = nullptr;
};

}  // namespace gp

// fraPanel(9): the lists of the three channels and of all together, Restore, and the sample.
#pragma once

#include "effects/BrightnessPanel.h"
#include "effects/ui/EffectPanelView.h"

#include <vector>

class QComboBox;

namespace gp {

class BrightnessPanelView final : public EffectPanelView {
  Q_OBJECT

 public:
  BrightnessPanelView(QWidget* parent, BrightnessPanel& panel);

 protected:
  void refresh() override;

 private:
  void addChannels();
  void addOverall();
  void addRestore();
  QComboBox* completed(QComboBox* list, BrightnessOf channel);

  BrightnessPanel& panel_;
  std::vector<QComboBox*> lists_;
  int zero_;  // the index of 0 in each list
};

}  // namespace gp

// The view of a SettingsPanel: one control for each setting of its effects, of which those of the shown effect are
// visible, and the sample.
#pragma once

#include "effects/ui/EffectPanelView.h"

class QCheckBox;
class QComboBox;

namespace gp {

class ColorSample;
class SettingsPanel;
struct Setting;

class SettingsPanelView final : public EffectPanelView {
  Q_OBJECT

 public:
  SettingsPanelView(QWidget* parent, SettingsPanel& panel);

 protected:
  void refresh() override;

 private:
  // The control of one setting: a list with a label, or a tick box in a row of widgets.
  struct Control {
    const Setting* setting;
    QComboBox* list;
    QLabel* label;
    QCheckBox* box;
  };

  void addControl(const Setting& setting);
  QComboBox* makeSettingList(const Setting& setting);
  void addBox(const Setting& setting);
  void addSample();
  static void showSetting(const Control& control, bool isShown);
  static void showChoice(const Control& control, int choice);

  SettingsPanel& panel_;
  std::vector<Control> controls_;
  std::vector<ColorSample*> swatches_;
  QLabel* sampleLabel_ = nullptr;  // null when the sample's label does not show the effect's title
};

}  // namespace gp

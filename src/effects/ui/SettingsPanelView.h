// The view of a SettingsPanel: one control for each setting of its effects, of which those of the shown effect are
// visible, and the sample.
#pragma once

#include "effects/ui/EffectPanelView.h"

#include <functional>

class QComboBox;

namespace gp {

class ColorSample;
class SettingsPanel;
struct EffectPanelPlace;
struct Setting;

class SettingsPanelView final : public EffectPanelView {
  Q_OBJECT

 public:
  SettingsPanelView(QWidget* parent, SettingsPanel& panel);

 protected:
  void refresh() override;

 private:
  // The control of one setting.
  struct Control {
    const Setting* setting;
    QWidget* first;                 // gets the focus
    std::vector<QWidget*> widgets;  // all that are visible with the setting
    std::function<void(int choice)> show;
  };

  void addControl(const Setting& setting);
  Control makeListControl(const Setting& setting);
  Control makeBoxControl(const Setting& setting);
  Control makeLevelsControl(const Setting& setting);
  QComboBox* makeSettingList(const Setting& setting);
  void addSwatch(QWidget* row, const Setting& setting);
  void addRemark(const EffectPanelPlace& place);
  void addSample();

  SettingsPanel& panel_;
  std::vector<Control> controls_;
  std::vector<ColorSample*> swatches_;
  QLabel* sampleLabel_ = nullptr;  // null when the sample's label does not show the effect's title
};

}  // namespace gp

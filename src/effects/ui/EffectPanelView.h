// What the views of the effects' side panels share: the settings in rows, and the samples directly below them. A view
// has no state; it must be destroyed before the logic.
#pragma once

#include "platform/qt/widgets/PanelFrame.h"

#include <vector>

class QGridLayout;
class QLabel;

namespace gp {

class EffectPanel;
class SampleView;
class Surface;

// One sample. The picture must outlive the view.
struct SampleRow {
  QString objectName;
  QString caption;
  const Surface& picture;
};

class EffectPanelView : public PanelFrame {
  Q_OBJECT

 public:
  EffectPanelView(QWidget* parent, EffectPanel& panel);

  // Makes the samples again after the icon or the current colour has changed.
  void follow();
  // Shows the settings and the samples of the panel.
  void refreshAll();

 protected:
  // Adds the samples, each under its caption, then Proceed and Close. The first one is as large as the space allows,
  // the others are small and beside it. Returns the labels.
  std::vector<QLabel*> addSamples(const std::vector<SampleRow>& samples);
  // Shows the settings; the samples are refreshed after it.
  virtual void refresh() {}

 private:
  // `cell` is the column and row of the label; the sample spans `rows` below it.
  QLabel* addSample(QGridLayout* grid, const SampleRow& sample, const QPoint& cell, int rows);

  EffectPanel& panel_;
  std::vector<SampleView*> samples_;
};

}  // namespace gp

// What the panels of effects share on the screen: rows on top, samples below, all of it shown anew whenever the panel's
// logic tells of a change. A view keeps nothing and must go before the logic does.
#pragma once

#include "platform/qt/widgets/PanelFrame.h"

#include <vector>

class QLabel;
class QHBoxLayout;

namespace gp {

class EffectPanel;
class SampleView;
class Surface;

// One sample: what it is called on the screen, and its picture.
struct SampleRow {
  QString objectName;
  QString caption;
  const Surface& picture;
};

class EffectPanelView : public PanelFrame {
  Q_OBJECT

 public:
  EffectPanelView(QWidget* parent, EffectPanel& panel);
  ~EffectPanelView() override;

  // The icon or the current colour is another: the samples follow.
  void follow();

 protected:
  // A label above the list that it belongs to; `caption` may have an access letter.
  QLabel* addLabel(const QString& objectName, const QString& caption, QWidget* buddy = nullptr);
  // At the foot, side by side, each under its caption; returns the labels. Then Proceed and Close.
  std::vector<QLabel*> addSamples(const std::vector<SampleRow>& samples);
  // Shows the settings; the samples follow by themselves.
  virtual void refresh() {}

 private:
  void refreshAll();
  QLabel* addSample(QHBoxLayout* row, const SampleRow& sample, int room);

  EffectPanel& panel_;
  std::vector<SampleView*> samples_;
};

}  // namespace gp

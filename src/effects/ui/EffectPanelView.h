// What the views of the effects' side panels share: rows on top and samples below. A view has no state; it must be
// destroyed before the logic.
#pragma once

#include "platform/qt/widgets/PanelFrame.h"

#include <vector>

class QLabel;
class QHBoxLayout;

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
  // Adds a label above the list that it belongs to; `caption` may have an access letter.
  QLabel* addLabel(const QString& objectName, const QString& caption, QWidget* buddy = nullptr);
  // Adds the samples side by side at the bottom, each under its caption, then Proceed and Close. Returns the labels.
  std::vector<QLabel*> addSamples(const std::vector<SampleRow>& samples);
  // Shows the settings; the samples are refreshed after it.
  virtual void refresh() {}

 private:
  QLabel* addSample(QHBoxLayout* row, const SampleRow& sample, int room);

  EffectPanel& panel_;
  std::vector<SampleView*> samples_;
};

}  // namespace gp

// picStatusBar: the five panels, the alpha indicator and the progress of long work. An empty panel keeps its
// place.
#pragma once

#include "document/ScreenState.h"

#include <QWidget>

#include <array>

class QProgressBar;

namespace gp {

class TextCell;

class StatusBarView : public QWidget {
  Q_OBJECT

 public:
  StatusBarView(QWidget* parent, const ScreenState& screen);
  void refresh();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  class AlphaIndicator;

  void showProgress(int percent);

  const ScreenState& screen_;
  std::array<TextCell*, kStatusPanelCount> lblStatusPanel_{};
  QWidget* imgAlpha_ = nullptr;
  QWidget* progressPlace_ = nullptr;
  QProgressBar* progress_ = nullptr;  // created by the first long operation
};

}  // namespace gp

// picStatusBar: the five panels, the alpha indicator, and the place of long work's progress, where notices are shown
// otherwise. An empty panel keeps its place. All widths and heights follow from the font.
#pragma once

#include "document/ScreenState.h"

#include <QWidget>

#include <array>

class QProgressBar;

namespace gp {

class NoticeLabel;
class TextCell;

class StatusBarView : public QWidget {
  Q_OBJECT

 public:
  StatusBarView(QWidget* parent, const ScreenState& screen);
  void refresh();
  // Shows a notice for some seconds and has it spoken.
  void announce(const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  class AlphaIndicator;

  void addPanel(std::size_t index);
  void addProgressPlace();
  void fitToFont();
  void showProgress(int percent);

  const ScreenState& screen_;
  std::array<TextCell*, kStatusPanelCount> lblStatusPanel_{};
  QWidget* imgAlpha_ = nullptr;
  QWidget* progressPlace_ = nullptr;
  QProgressBar* progress_ = nullptr;
  NoticeLabel* notice_ = nullptr;
};

}  // namespace gp

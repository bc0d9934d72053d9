#include "document/ui/StatusBarView.h"

#include "platform/qt/PathText.h"
#include "platform/qt/Pictures.h"
#include "platform/qt/widgets/TextCell.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QProgressBar>

namespace gp {
namespace {

constexpr int kProgressWidth = 104;
constexpr int kProgressHeight = 14;
constexpr int kEdge = 4;
constexpr int kVertical = 2;
// The widest text of each panel; the first panel fills the rest.
constexpr std::array<const char*, kStatusPanelCount> kWidest = {"", " * ", "MIF", "48 x 48", "Alpha"};

}  // namespace

class StatusBarView::AlphaIndicator : public QWidget {
 public:
  explicit AlphaIndicator(QWidget* parent) : QWidget(parent) {
    setObjectName("imgAlphaOnStatusPanel");
    setAccessibleName("Icon with alpha channel");
    setFixedSize(Pictures::kSize, Pictures::kSize);
    QSizePolicy keepsItsPlace = sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    setSizePolicy(keepsItsPlace);
    hide();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    Pictures::icon("alpha-indicator").paint(&painter, rect());
  }
};

StatusBarView::StatusBarView(QWidget* parent, const ScreenState& screen) : QWidget(parent), screen_(screen) {
  setObjectName("picStatusBar");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kEdge, kVertical, kEdge, kVertical);
  row->setSpacing(kEdge);
  for (int i = 0; i < kStatusPanelCount; ++i) {
    auto* panel = new TextCell(this, QString("lblStatusPanel(%1)").arg(i), QString("Status %1").arg(i));
    if (i == static_cast<int>(StatusPanel::Path)) {
      panel->setElideMode(Qt::ElideMiddle);
    } else {
      panel->setAlignment(Qt::AlignHCenter);
      panel->setText(kWidest.at(static_cast<std::size_t>(i)));
      panel->setFixedWidth(panel->sizeHint().width());
    }
    if (i == static_cast<int>(StatusPanel::Alpha)) row->addWidget(imgAlpha_ = new AlphaIndicator(this));
    row->addWidget(panel, panel->minimumWidth() == 0 ? 1 : 0);
    lblStatusPanel_.at(static_cast<std::size_t>(i)) = panel;
  }
  progressPlace_ = new QWidget(this);
  progressPlace_->setObjectName("picProgressContainer");
  progressPlace_->setFixedSize(kProgressWidth, kProgressHeight);
  row->addWidget(progressPlace_);
  refresh();
}

void StatusBarView::refresh() {
  for (std::size_t i = 0; i < lblStatusPanel_.size(); ++i)
    lblStatusPanel_[i]->setText(toText(screen_.lblStatusPanel[i]));
  imgAlpha_->setVisible(screen_.imgAlphaOnStatusPanel);
  showProgress(screen_.progressPercent);
}

void StatusBarView::showProgress(int percent) {
  if (percent >= 0 && !progress_) {
    progress_ = new QProgressBar(progressPlace_);
    progress_->setAccessibleName("Progress");
    progress_->resize(progressPlace_->size());
  }
  if (!progress_) return;
  progress_->setVisible(percent >= 0);
  if (percent >= 0) progress_->setValue(percent);
}

void StatusBarView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawLine(0, 0, width(), 0);
  for (const TextCell* panel : lblStatusPanel_)
    painter.drawLine(panel->geometry().right() + kEdge / 2, kVertical * 2, panel->geometry().right() + kEdge / 2,
                     height() - kVertical * 2);
}

}  // namespace gp

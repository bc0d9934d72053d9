#include "document/ui/StatusBarView.h"

#include "document/ui/NoticeLabel.h"
#include "platform/qt/Accessibility.h"
#include "platform/qt/PathText.h"
#include "platform/qt/Pictures.h"
#include "platform/qt/widgets/TextCell.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPainter>
#include <QProgressBar>

namespace gp {
namespace {

constexpr int kEdge = 4;
constexpr int kVertical = 2;

struct Panel {
  const char* name;
  const char* widest;   // the widest text; the first panel fills the rest of the row
  const char* spoken;   // what assistive technology gets for any text, null for the text itself
  const char* toolTip;  // of a panel that is not empty
};

// Ordered like StatusPanel.
constexpr std::array<Panel, kStatusPanelCount> kPanels = {{{"File", "", nullptr, ""},
                                                           {"Headers", " * ", "disagree", "Headers disagree"},
                                                           {"Several icons", "MIF", "yes", "File of several icons"},
                                                           {"Icon size", "48 x 48", nullptr, ""},
                                                           {"Alpha", "Alpha", "yes", ""}}};
constexpr std::size_t kPathPanel = static_cast<std::size_t>(StatusPanel::Path);
constexpr std::size_t kAlphaPanel = static_cast<std::size_t>(StatusPanel::Alpha);

// Wide enough for nearly all notices; the names of files can be longer.
constexpr const char* kWideNotice = "Icon is not from a cursor file";

int widthOf(const QWidget* cell, const char* text) {
  return cell->fontMetrics().horizontalAdvance(text) + 2 * TextCell::kMargin + kVertical;
}

}  // namespace

class StatusBarView::AlphaIndicator : public QWidget {
 public:
  explicit AlphaIndicator(QWidget* parent) : QWidget(parent) {
    setObjectName("imgAlphaOnStatusPanel");
    hideFromAccessibility(this);
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
  makeGroup(this, "Status", QAccessible::StatusBar);
  // The rows above give way first.
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kEdge, kVertical, kEdge, kVertical);
  row->setSpacing(kEdge);
  for (std::size_t i = 0; i < kPanels.size(); ++i) addPanel(i);
  addProgressPlace();
  fitToFont();
  refresh();
}

void StatusBarView::addPanel(std::size_t index) {
  auto* panel = new TextCell(this, QString("lblStatusPanel(%1)").arg(index), kPanels.at(index).name);
  if (index == kPathPanel)
    panel->setElideMode(Qt::ElideMiddle);
  else
    panel->setAlignment(Qt::AlignHCenter);
  auto* row = static_cast<QHBoxLayout*>(layout());
  if (index == kAlphaPanel) row->addWidget(imgAlpha_ = new AlphaIndicator(this));
  row->addWidget(panel, index == kPathPanel ? 1 : 0);
  lblStatusPanel_.at(index) = panel;
}

void StatusBarView::addProgressPlace() {
  progressPlace_ = new QWidget(this);
  progressPlace_->setObjectName("picProgressContainer");
  notice_ = new NoticeLabel(progressPlace_);
  notice_->setElideMode(Qt::ElideMiddle);
  progress_ = new QProgressBar(progressPlace_);
  progress_->setAccessibleName("Progress");
  setAccessibleRole(progress_, QAccessible::ProgressBar);
  auto* both = new QGridLayout(progressPlace_);
  both->setContentsMargins(0, 0, 0, 0);
  both->addWidget(progress_, 0, 0);
  both->addWidget(notice_, 0, 0);
  static_cast<QHBoxLayout*>(layout())->addWidget(progressPlace_);
}

void StatusBarView::fitToFont() {
  for (std::size_t i = 0; i < kPanels.size(); ++i)
    if (i != kPathPanel) lblStatusPanel_[i]->setFixedWidth(widthOf(this, kPanels[i].widest));
  progressPlace_->setFixedSize(widthOf(this, kWideNotice), notice_->sizeHint().height());
}

void StatusBarView::refresh() {
  for (std::size_t i = 0; i < lblStatusPanel_.size(); ++i) {
    const QString text = toText(screen_.lblStatusPanel[i]);
    const Panel& panel = kPanels[i];
    lblStatusPanel_[i]->setText(text, text.isEmpty() || !panel.spoken ? text : QString(panel.spoken));
    lblStatusPanel_[i]->setToolTip(text.isEmpty() ? "" : panel.toolTip);
  }
  imgAlpha_->setVisible(screen_.imgAlphaOnStatusPanel);
  showProgress(screen_.progressPercent);
}

void StatusBarView::announce(const QString& text) { notice_->announce(text); }

void StatusBarView::showProgress(int percent) {
  progress_->setVisible(percent >= 0);
  if (percent >= 0) progress_->setValue(percent);
  notice_->setPlaceTaken(percent >= 0);
}

void StatusBarView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) fitToFont();
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

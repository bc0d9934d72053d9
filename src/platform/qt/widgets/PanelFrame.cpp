#include "platform/qt/widgets/PanelFrame.h"

#include "platform/qt/Accessibility.h"
#include "platform/qt/Pictures.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

namespace gp {
namespace {

constexpr int kGap = 8;
constexpr int kLeastButtonHeight = 30;
constexpr int kLongCaption = 8;  // lines of text that are as high as the longest caption beside a control is wide
constexpr int kControls = 1;     // column
constexpr int kColumns = 2;

QPushButton* makeButton(QWidget* parent, const char* objectName, const QString& caption, const char* picture) {
  auto* button = new QPushButton(Pictures::icon(picture), caption, parent);
  button->setObjectName(objectName);
  button->setIconSize(QSize(Pictures::kSize, Pictures::kSize));
  button->setMinimumHeight(kLeastButtonHeight);
  // A button that becomes the default one with the focus would cease to be it without.
  button->setAutoDefault(false);
  return button;
}

QVBoxLayout* columnIn(QWidget* widget) {
  auto* column = new QVBoxLayout(widget);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kGap);
  return column;
}

}  // namespace

PanelFrame::PanelFrame(QWidget* parent, int number)
    : QWidget(parent), frameCaption_(makeHeading()), title_(makeHeading()) {
  setObjectName(QString("fraPanel(%1)").arg(number));
  setAccessibleRole(this, QAccessible::Grouping);
  QFont bold = title_->font();
  bold.setBold(true);
  title_->setFont(bold);
  QVBoxLayout* column = columnIn(this);
  auto* headings = new QVBoxLayout;
  headings->setSpacing(0);
  headings->addWidget(frameCaption_);
  headings->addWidget(title_);
  column->addLayout(headings);
  column->addWidget(makeRows(), 1);
}

QLabel* PanelFrame::makeHeading() {
  auto* label = new QLabel(this);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

QWidget* PanelFrame::makeRows() {
  auto* area = new QScrollArea(this);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidgetResizable(true);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  rows_ = new QWidget;
  grid_ = new QGridLayout(rows_);
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setSpacing(kGap);
  grid_->setColumnStretch(kControls, 1);
  area->setWidget(rows_);
  return area;
}

void PanelFrame::setCaption(const QString& caption) {
  caption_ = QString(caption).replace("&&", "&");
  setAccessibleName(caption_);
  showHeadings();
}

void PanelFrame::setTitle(const QString& title) {
  titleText_ = title;
  showHeadings();
}

void PanelFrame::showHeadings() {
  title_->setText(title());
  frameCaption_->setText(caption_);
  frameCaption_->setVisible(caption_ != title());
}

QLabel* PanelFrame::addRow(const QString& objectName, const QString& caption, QWidget* control) {
  auto* label = new QLabel(caption, rows_);
  label->setObjectName(objectName);
  label->setBuddy(control);
  const bool isLong = !control || label->sizeHint().width() > kLongCaption * fontMetrics().height();
  label->setWordWrap(isLong);
  grid_->addWidget(label, grid_->rowCount(), 0, 1, isLong ? kColumns : 1);
  if (control) grid_->addWidget(control, grid_->rowCount() - (isLong ? 0 : 1), kControls);
  return label;
}

void PanelFrame::addControl(QWidget* control) { grid_->addWidget(control, grid_->rowCount() - 1, kControls); }

void PanelFrame::addWide(QWidget* content) { grid_->addWidget(content, grid_->rowCount(), 0, 1, kColumns); }

void PanelFrame::addTall(QWidget* content) {
  addWide(content);
  grid_->setRowStretch(grid_->rowCount() - 1, 1);
}

QHBoxLayout* PanelFrame::makeButtonRow() {
  auto* buttons = new QWidget(this);
  auto* row = new QHBoxLayout(buttons);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kGap);
  layout()->addWidget(buttons);
  return row;
}

void PanelFrame::addClose(QHBoxLayout* row) {
  cmdCancel_ = makeButton(row->parentWidget(), "cmdCancel", "Close", "close");
  cmdCancel_->setToolTip("Close/cancel");
  connect(cmdCancel_, &QPushButton::clicked, this, &PanelFrame::closeRequested);
  row->addWidget(cmdCancel_, 1);
}

void PanelFrame::addButtons() {
  QHBoxLayout* row = makeButtonRow();
  cmdProceed_ = makeButton(row->parentWidget(), "cmdProceed", "Proceed", "proceed");
  cmdProceed_->setDefault(true);
  connect(cmdProceed_, &QPushButton::clicked, this, &PanelFrame::proceed);
  row->addWidget(cmdProceed_, 1);
  addClose(row);
  setFirstControl(cmdProceed_);
}

void PanelFrame::addCloseButton() {
  addClose(makeButtonRow());
  cmdCancel_->setDefault(true);
  setFirstControl(cmdCancel_);
}

// The reason of the Tab key makes the focus visible.
void PanelFrame::focusFirstControl() { firstControl_->setFocus(Qt::TabFocusReason); }

QWidget* PanelFrame::proceedButton() const { return cmdProceed_; }
QWidget* PanelFrame::closeButton() const { return cmdCancel_; }

void PanelFrame::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      (cmdProceed_ && !cmdCancel_->hasFocus() ? cmdProceed_ : cmdCancel_)->click();
      return;
    case Qt::Key_Escape:
      cmdCancel_->click();
      return;
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace gp

#include "platform/qt/widgets/PanelFrame.h"

#include "platform/qt/Accessibility.h"
#include "platform/qt/Pictures.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace gp {
namespace {

constexpr int kGap = 8;
constexpr int kButtonHeight = 30;

QPushButton* makeButton(QWidget* parent, const char* objectName, const QString& caption, const char* picture) {
  auto* button = new QPushButton(Pictures::icon(picture), caption, parent);
  button->setObjectName(objectName);
  button->setIconSize(QSize(Pictures::kSize, Pictures::kSize));
  button->setFixedHeight(kButtonHeight);
  // A button that becomes the default one with the focus would cease to be it without.
  button->setAutoDefault(false);
  return button;
}

}  // namespace

PanelFrame::PanelFrame(QWidget* parent, int number) : QWidget(parent), title_(makeTitle()), rows_(new QVBoxLayout) {
  setObjectName(QString("fraPanel(%1)").arg(number));
  setAccessibleRole(this, QAccessible::Grouping);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kGap);
  column->addWidget(title_);
  rows_->setSpacing(kGap);
  column->addLayout(rows_, 1);
}

QLabel* PanelFrame::makeTitle() {
  auto* label = new QLabel(this);
  label->setTextFormat(Qt::PlainText);
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  return label;
}

void PanelFrame::setTitle(const QString& title) {
  title_->setText(QString(title).replace("&&", "&"));
  setAccessibleName(title_->text());
}

void PanelFrame::addButtons() {
  auto* buttons = new QWidget(this);
  auto* row = new QHBoxLayout(buttons);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kGap);
  cmdProceed_ = makeButton(buttons, "cmdProceed", "Proceed", "proceed");
  cmdProceed_->setDefault(true);
  connect(cmdProceed_, &QPushButton::clicked, this, &PanelFrame::proceed);
  cmdCancel_ = makeButton(buttons, "cmdCancel", "Close", "close");
  cmdCancel_->setToolTip("Close/cancel");
  connect(cmdCancel_, &QPushButton::clicked, this, &PanelFrame::closeRequested);
  row->addWidget(cmdProceed_, 1);
  row->addWidget(cmdCancel_, 1);
  layout()->addWidget(buttons);
  setFirstControl(cmdProceed_);
}

// The reason of the Tab key makes the focus visible.
void PanelFrame::focusFirstControl() { firstControl_->setFocus(Qt::TabFocusReason); }

QWidget* PanelFrame::proceedButton() const { return cmdProceed_; }

void PanelFrame::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      (cmdCancel_->hasFocus() ? cmdCancel_ : cmdProceed_)->click();
      return;
    case Qt::Key_Escape:
      cmdCancel_->click();
      return;
    default:
      QWidget::keyPressEvent(event);
  }
}

}  // namespace gp

#include "animation/ui/AniPane.h"

#include "animation/ui/AniBody.h"
#include "animation/ui/AniButtons.h"
#include "animation/ui/AniFilmView.h"
#include "animation/ui/AniTitle.h"
#include "document/ScreenState.h"
#include "platform/qt/Accessibility.h"

#include <QAbstractButton>
#include <QEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace gp {
namespace {

constexpr int kFrame = 1;
constexpr int kClose = 0, kResize = 1;
// Those after which the film is at another frame or has other times.
constexpr int kFrameButtons[] = {7, 12, 13, 14, 16, 17, 18, 19};

}  // namespace

AniPane::AniPane(QWidget* column, const ScreenState& screen, AniEvents events)
    : QWidget(column->parentWidget()),
      column_(column),
      screen_(screen),
      events_(std::move(events)),
      buttons_(new AniButtons(this, events_)),
      title_(new AniTitle(this, *buttons_)),
      body_(new AniBody(this, events_, *buttons_)) {
  setObjectName(QStringLiteral("picANIContainer(0)"));
  makeGroup(this, QLatin1String(AniTitle::kCaption));
  hide();
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kFrame, kFrame, kFrame, kFrame);
  rows->setSpacing(0);
  rows->addWidget(title_);
  rows->addWidget(body_, 1);
  connect(buttons_, &AniButtons::pressed, this, &AniPane::announceFrame);
  connect(title_, &AniTitle::dragged, this, &AniPane::dragBy);
  connect(title_, &AniTitle::doubleClicked, this,
          [this] { events_.guarded("imgANI_DblClick", [this] { events_.session.restorePane(); }); });
  // The place of a column that is covered stays free.
  QSizePolicy kept = column_->sizePolicy();
  kept.setRetainSizeWhenHidden(true);
  column_->setSizePolicy(kept);
  body_->setCompact(false);
  rows->activate();
  column_->setMinimumHeight(minimumSizeHint().height());
  parentWidget()->installEventFilter(this);
  window()->installEventFilter(this);
}

bool AniPane::hasFocusInside() const { return isAncestorOf(window()->focusWidget()); }

void AniPane::refresh() {
  if (!screen_.aniContainerVisible) return disappear();
  const bool appears = isHidden();
  const QWidget* focused = window()->focusWidget();
  if (appears) dragged_.reset();
  showContent();
  arrange();
  place();
  if (appears)
    appear();
  else
    keepFocus(focused);
}

void AniPane::appear() {
  raise();
  show();
  body_->firstControl()->setFocus(Qt::OtherFocusReason);
  events_.announce(AniTitle::kCaption);
}

void AniPane::disappear() {
  if (isHidden()) return;
  const bool hadFocus = hasFocusInside();
  hide();
  column_->show();
  if (hadFocus) emit focusGivenBack();
}

void AniPane::showContent() {
  buttons_->refresh();
  body_->refresh();
}

// What a button does to the film is spoken by the film while it has the focus, and otherwise by the status bar.
void AniPane::announceFrame(int pressed) {
  if (std::ranges::find(kFrameButtons, pressed) == std::end(kFrameButtons)) return;
  if (body_->film()->hasFocus() || !hasFocusInside()) return;
  events_.announce(body_->film()->accessibleValue().toStdString());
}

void AniPane::refreshTest() { body_->refreshTest(); }

void AniPane::arrange() {
  const AniPaneSize size = events_.session.paneSize();
  if (arranged_ == size) return;
  arranged_ = size;
  body_->setCompact(size == AniPaneSize::Compact);
  body_->setVisible(size != AniPaneSize::Minimized);
}

// The focus stays in the pane when the control that had it is hidden or disabled.
void AniPane::keepFocus(const QWidget* focused) {
  if (!isAncestorOf(focused) || (focused->isVisible() && focused->isEnabled())) return;
  if (body_->isHidden())
    buttons_->button(kResize)->setFocus(Qt::OtherFocusReason);
  else
    body_->film()->setFocus(Qt::OtherFocusReason);
}

QSize AniPane::sizeNow() const {
  if (arranged_ == AniPaneSize::Normal) return column_->size();
  layout()->activate();
  return {column_->width(), minimumSizeHint().height()};
}

void AniPane::place() {
  const QRect column = column_->geometry();
  QRect to(column.topLeft(), sizeNow());
  if (arranged_ != AniPaneSize::Normal) to.moveBottom(column.bottom());
  if (dragged_) to.moveTopLeft(*dragged_);
  const QRect room = parentWidget()->rect();
  to.moveLeft(std::clamp(to.left(), 0, std::max(0, room.width() - to.width())));
  to.moveTop(std::clamp(to.top(), 0, std::max(0, room.height() - to.height())));
  if (dragged_) dragged_ = to.topLeft();
  setGeometry(to);
  // Covered controls must not be reached by Tab.
  column_->setVisible(!to.contains(column));
}

void AniPane::dragBy(const QPoint& distance) {
  dragged_ = pos() + distance;
  place();
}

bool AniPane::eventFilter(QObject* watched, QEvent* event) {
  const bool isLaidOut = event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest;
  const bool isNewState = watched == window() && event->type() == QEvent::WindowStateChange;
  if (isNewState) dragged_.reset();
  if (!isHidden() && (isNewState || (watched == parentWidget() && isLaidOut))) place();
  return QWidget::eventFilter(watched, event);
}

void AniPane::keyPressEvent(QKeyEvent* event) {
  auto* focused = qobject_cast<QAbstractButton*>(focusWidget());
  if (event->key() == Qt::Key_Escape)
    events_.press(kClose);
  else if (focused && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
    focused->click();
  else
    QWidget::keyPressEvent(event);
}

void AniPane::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Window));
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace gp

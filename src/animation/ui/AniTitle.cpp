#include "animation/ui/AniTitle.h"

#include "animation/ui/AniButtons.h"
#include "platform/qt/Accessibility.h"
#include "platform/qt/Contrast.h"
#include "platform/qt/Pictures.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace gp {
namespace {

constexpr int kGap = 4;
constexpr int kTint = 1;  // eighths of the way from the window's colour to that of its text

// Painted at each time, so that it follows the colours of the desktop.
class TitlePicture final : public QWidget {
 public:
  explicit TitlePicture(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("imgANI"));
    hideFromAccessibility(this);
    setFixedSize(Pictures::kSize, Pictures::kSize);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    Pictures::icon("animation").paint(&painter, rect());
  }
};

QLabel* makeCaption(QWidget* parent) {
  auto* label = new QLabel(QLatin1String(AniTitle::kCaption), parent);
  label->setObjectName(QStringLiteral("lblANITitle"));
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  return label;
}

}  // namespace

AniTitle::AniTitle(QWidget* parent, AniButtons& buttons) : QWidget(parent) {
  setObjectName(QStringLiteral("fraANITitle"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kGap, 0, 0, 0);
  row->setSpacing(0);
  row->addWidget(new TitlePicture(this));
  row->addSpacing(kGap);
  row->addWidget(makeCaption(this));
  row->addStretch(1);
  for (const int index : {1, 2, 0}) row->addWidget(buttons.makePicture(this, index));
}

void AniTitle::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor window = palette().color(QPalette::Window), text = palette().color(QPalette::WindowText);
  painter.fillRect(rect(), between(window, text, kTint));
}

void AniTitle::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) held_ = event->globalPosition().toPoint();
  dragging_ = false;
}

// A hand that trembles during a click does not move the pane.
void AniTitle::mouseMoveEvent(QMouseEvent* event) {
  if (!held_) return;
  const QPoint now = event->globalPosition().toPoint();
  dragging_ = dragging_ || (now - *held_).manhattanLength() >= QApplication::startDragDistance();
  if (!dragging_) return;
  emit dragged(now - *held_);
  held_ = now;
}

void AniTitle::mouseReleaseEvent(QMouseEvent*) { held_.reset(); }

void AniTitle::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit doubleClicked();
}

}  // namespace gp

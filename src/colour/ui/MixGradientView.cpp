#include "colour/ui/MixGradientView.h"

#include "colour/ColorMixer.h"
#include "document/ui/SurfacePainting.h"
#include "platform/qt/FocusRing.h"
#include "platform/qt/PathText.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <array>

namespace gp {
namespace {

constexpr int kFrame = kFocusRing;  // around the strip
static_assert(MixGradientView::kHeight == kMixGradientHeight + 2 * kFrame);
constexpr int kMarkerHeight = 4;
constexpr int kDarkGray = 128;

constexpr int kRowHeight = kMixGradientHeight / kMixGradientRows;
constexpr int kPageHeight = 10 * kRowHeight;

struct Move {
  int key;
  int step;  // pixels of the strip
};

constexpr std::array<Move, 8> kMoves = {{{Qt::Key_Up, -kRowHeight},
                                         {Qt::Key_Left, -kRowHeight},
                                         {Qt::Key_Down, kRowHeight},
                                         {Qt::Key_Right, kRowHeight},
                                         {Qt::Key_PageUp, -kPageHeight},
                                         {Qt::Key_PageDown, kPageHeight},
                                         {Qt::Key_Home, -kMixGradientHeight},
                                         {Qt::Key_End, kMixGradientHeight}}};
constexpr std::array kChoosingKeys = {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter};

QPoint stripPoint(const QMouseEvent& event) {
  return QPoint(qFloor(event.position().x()), qFloor(event.position().y())) - QPoint(kFrame, kFrame);
}

}  // namespace

MixGradientView::MixGradientView(QWidget* parent, const ColorMixer& mixer) : QWidget(parent), mixer_(mixer) {
  setObjectName("picMixGradient");
  setAccessibleName("Color gradient");
  setFixedSize(kMixGradientWidth + 2 * kFrame, kHeight);
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
}

// Returns the marker's position, from which keys start.
QPoint MixGradientView::cursor() const {
  const int row = mixer_.markerTop() == ColorMixer::kNoMarker ? 0 : mixer_.markerTop() + ColorMixer::kMarkerRise;
  return {kMixGradientWidth / 2, std::clamp(row, 0, kMixGradientHeight - 1)};
}

void MixGradientView::paintEvent(QPaintEvent*) {
  DevicePainter painter(this);
  const QRect strip(kFrame, kFrame, kMixGradientWidth, kMixGradientHeight);
  if (hasFocus())
    paintFocusRing(painter, painter.toDevice(rect()), accentOn(palette()), devicePixelRatioF());
  else
    painter.fillRect(painter.toDevice(strip.adjusted(-1, -1, 1, 1)), palette().color(QPalette::WindowText));
  const QRect all(0, 0, kMixGradientWidth, kMixGradientHeight);
  const QRect target = painter.toDevice(strip);
  painter.drawImage(target, imageOf(mixer_.picMixGradient(), ScreenScale(1, 1, 1), all));
  if (mixer_.markerTop() == ColorMixer::kNoMarker) return;
  const QRgb under = toRgb(mixer_.picMixGradient().GetPixel(cursor().x(), cursor().y()));
  painter.setClipRect(target);
  painter.setPen(qGray(under) < kDarkGray ? Qt::white : Qt::black);
  painter.drawRect(painter.toDevice({kFrame, kFrame + mixer_.markerTop(), kMixGradientWidth - 1, kMarkerHeight})
                       .adjusted(0, 0, -1, -1));
}

void MixGradientView::mousePressEvent(QMouseEvent* event) { emit pressed(stripPoint(*event)); }

void MixGradientView::mouseMoveEvent(QMouseEvent* event) { emit moved(stripPoint(*event)); }

void MixGradientView::mouseReleaseEvent(QMouseEvent* event) { emit released(stripPoint(*event)); }

void MixGradientView::keyPressEvent(QKeyEvent* event) {
  const auto move = std::ranges::find(kMoves, event->key(), &Move::key);
  if (std::ranges::find(kChoosingKeys, event->key()) != kChoosingKeys.end()) {
    emit pressed(cursor());
    emit released(cursor());
  } else if (move != kMoves.end()) {
    emit moved({cursor().x(), std::clamp(cursor().y() + move->step, 0, kMixGradientHeight - kRowHeight)});
  } else {
    QWidget::keyPressEvent(event);
  }
}

void MixGradientView::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  emit moved(cursor());
}

void MixGradientView::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

QString MixGradientView::accessibleValue() const { return toText(mixer_.lblMix()); }

}  // namespace gp

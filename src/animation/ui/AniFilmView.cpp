#include "animation/ui/AniFilmView.h"

#include "animation/ui/AniEvents.h"
#include "document/ui/SurfacePainting.h"
#include "platform/qt/FocusRing.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>

namespace gp {
namespace {

constexpr int kLeastCells = 3;

struct ButtonKey {
  int key;
  Qt::KeyboardModifiers modifiers;
  int button;
};

constexpr int kRemove = 14, kShiftUp = 16, kShiftDown = 17;
constexpr ButtonKey kButtonKeys[] = {
    {Qt::Key_Delete, Qt::NoModifier, kRemove},
    {Qt::Key_Up, Qt::ControlModifier, kShiftUp},
    {Qt::Key_Down, Qt::ControlModifier, kShiftDown},
};

int pixels(int devicePixels, double ratio) { return static_cast<int>(std::ceil(devicePixels / ratio)); }

}  // namespace

AniFilmView::AniFilmView(QWidget* parent, const AniEvents& events) : QWidget(parent), events_(events) {
  setObjectName(QStringLiteral("picFilm"));
  setAccessibleName(QStringLiteral("Film"));
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

int AniFilmView::factor() const { return std::max(1, static_cast<int>(devicePixelRatioF())); }

QRect AniFilmView::inside() const { return rect().adjusted(kFocusRing, kFocusRing, -kFocusRing, -kFocusRing); }

QSize AniFilmView::sizeHint() const {
  const double ratio = devicePixelRatioF();
  return {pixels(AniFilm::kCellWidth * factor(), ratio) + 2 * kFocusRing,
          pixels(kLeastCells * AniFilm::kCellHeight * factor(), ratio) + 2 * kFocusRing};
}

void AniFilmView::refresh() {
  update();
  accessibleValueChanged(this);
}

QString AniFilmView::accessibleValue() const {
  const AniFrames& frames = events_.session.frames();
  if (frames.count() == 0) return QStringLiteral("No frames");
  const int jiffies = frames.currentFrame().jiffies;
  return QStringLiteral("Frame %1 of %2, %3 %4")
      .arg(frames.current())
      .arg(frames.count())
      .arg(jiffies)
      .arg(jiffies == 1 ? QStringLiteral("jiffy") : QStringLiteral("jiffies"));
}

void AniFilmView::paintEvent(QPaintEvent*) {
  DevicePainter painter(this);
  const double ratio = devicePixelRatioF();
  const QRect whole = painter.toDevice(rect()), room = painter.toDevice(inside());
  painter.fillRect(whole, palette().color(QPalette::Base));
  const Surface& film = events_.session.film().picFilm();
  const ScreenScale scale(std::max(film.width(), film.height()), 1, ratio);
  const int cell = scale.cellSize();
  const QRect visible = QRect(QPoint(0, events_.session.film().scroll() * cell), room.size()) &
                        QRect(0, 0, film.width() * cell, film.height() * cell);
  if (!visible.isEmpty()) painter.drawImage(room.topLeft(), imageOf(film, scale, visible));
  if (hasFocus())
    paintFocusRing(painter, whole, accentOn(palette()), ratio);
  else
    paintRing(painter, whole, palette().color(QPalette::Mid), std::max(1, static_cast<int>(ratio)));
}

void AniFilmView::resizeEvent(QResizeEvent*) { reportHeight(); }

void AniFilmView::reportHeight() {
  const int height = static_cast<int>(inside().height() * devicePixelRatioF()) / factor();
  events_.guarded("picANISeriesBase_Resize", [&] { events_.session.setVisibleHeight(height); });
}

void AniFilmView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) events_.guarded("picFilm_MouseDown", [&] { events_.session.filmPress(); });
}

void AniFilmView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !inside().contains(event->position().toPoint())) return;
  const QPoint at = devicePointAt(this, event->position() - QPointF(inside().topLeft())) / factor();
  events_.guarded("picFilm_MouseUp",
                  [&] { events_.session.filmRelease(at.x(), at.y() + events_.session.film().scroll()); });
}

// All keys of the film are taken, also where there is nothing to do: Delete must not erase a region instead.
void AniFilmView::keyPressEvent(QKeyEvent* event) {
  const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
  const auto* row = std::ranges::find_if(kButtonKeys, [&](const ButtonKey& candidate) {
    return candidate.key == event->key() && candidate.modifiers == modifiers;
  });
  if (row != std::end(kButtonKeys))
    events_.press(row->button);
  else if (modifiers != Qt::NoModifier || !goBy(event->key()))
    QWidget::keyPressEvent(event);
}

bool AniFilmView::goBy(int key) {
  const AniFrames& frames = events_.session.frames();
  const int page = std::max(1, events_.session.film().largeStep() / AniFilm::kCellHeight);
  int to = frames.current();
  switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Left:
      to -= 1;
      break;
    case Qt::Key_Down:
    case Qt::Key_Right:
      to += 1;
      break;
    case Qt::Key_PageUp:
      to -= page;
      break;
    case Qt::Key_PageDown:
      to += page;
      break;
    case Qt::Key_Home:
      to = 1;
      break;
    case Qt::Key_End:
      to = frames.count();
      break;
    default:
      return false;
  }
  if (frames.count() == 0) return true;
  to = std::clamp(to, 1, frames.count());
  events_.guarded("picFilm_KeyDown", [&] { events_.session.goTo(to); });
  return true;
}

bool AniFilmView::event(QEvent* event) {
  if (event->type() == QEvent::ScreenChangeInternal) updateGeometry(), reportHeight();
  return QWidget::event(event);
}

}  // namespace gp

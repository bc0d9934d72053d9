#include "animation/ui/AniFilmStrip.h"

#include "animation/ui/AniEvents.h"
#include "animation/ui/AniFilmView.h"
#include "platform/qt/Accessibility.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace gp {

AniFilmStrip::AniFilmStrip(QWidget* parent, const AniEvents& events)
    : QWidget(parent),
      events_(events),
      picFilm_(new AniFilmView(this, events)),
      VsrANISeries_(new QScrollBar(Qt::Vertical, this)) {
  setObjectName(QStringLiteral("picANISeriesBase"));
  VsrANISeries_->setObjectName(QStringLiteral("VsrANISeries"));
  VsrANISeries_->setAccessibleName(QStringLiteral("Scroll film"));
  connect(VsrANISeries_, &QScrollBar::valueChanged, this, [this](int value) {
    events_.guarded("VsrANISeries_Change", [&] { events_.session.scrollTo(value); });
    picFilm_->refresh();
  });
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  row->addWidget(picFilm_);
  row->addWidget(VsrANISeries_);
}

void AniFilmStrip::refresh() {
  const AniFilm& film = events_.session.film();
  const QSignalBlocker quiet(VsrANISeries_);
  VsrANISeries_->setRange(0, film.scrollMaximum());
  VsrANISeries_->setSingleStep(film.smallStep());
  VsrANISeries_->setPageStep(film.largeStep());
  VsrANISeries_->setValue(film.scroll());
  picFilm_->refresh();
}

void AniFilmStrip::wheelEvent(QWheelEvent* event) { QCoreApplication::sendEvent(VsrANISeries_, event); }

}  // namespace gp

// picANISeriesBase: the film and its scroll bar.
#pragma once

#include <QWidget>

class QScrollBar;

namespace gp {

struct AniEvents;
class AniFilmView;

class AniFilmStrip final : public QWidget {
  Q_OBJECT

 public:
  // The events must outlive the strip.
  AniFilmStrip(QWidget* parent, const AniEvents& events);

  AniFilmView& film() { return *picFilm_; }
  void refresh();

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  const AniEvents& events_;
  AniFilmView* picFilm_;
  QScrollBar* VsrANISeries_;
};

}  // namespace gp

#include "animation/AniFilm.h"

namespace gp {

int AniFilm::scrollMaximum() const { return 0; }
void AniFilm::redraw(const AniFrames&) {}
void AniFilm::moveSelection(const AniFrames&, int, int) {}
void AniFilm::setVisibleHeight(int height) { visibleHeight_ = height; }
void AniFilm::scrollTo(int value) { scroll_ = value; }
void AniFilm::scrollIntoView(int) {}

}  // namespace gp

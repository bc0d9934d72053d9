// What the parts of the animated cursor session share: the film, what is known about it, and the choices in the pane.
#pragma once

#include "animation/AniFilm.h"
#include "animation/AniFrames.h"
#include "animation/format/FilmReading.h"

#include <string>

namespace gp {

struct Context;

enum class AniMode { NoFrames = 0, Made = 1, Read = 2 };

// The entries chosen in the lists of the pane, and its tick box.
struct AniChoices {
  int jiffies = 30;     // cboANI(0)
  int hotspotX = 0;     // cboANI(1)
  int hotspotY = 0;     // cboANI(2)
  bool singly = false;  // ckbJIFSinglely
};

struct AniState {
  AniFrames frames;
  AniFilm film;
  AniMode mAniMode = AniMode::NoFrames;
  bool mAniChanged = false;  // frames differ from the last save or load
  std::string mAniPath;      // "Untitled" for a film that was made here; empty without frames
  FilmLosses losses;         // what a save will not keep of the file that was read
  AniChoices choices;
  // Identifies the film: incremented whenever another one, or none, takes its place.
  unsigned filmSerial = 0;

  // The film becomes unchanged, at its first frame and scrolled to the top, and has no losses.
  void replaceFilm(AniFrames newFrames, AniMode mode, const std::string& path);
  // Frames have changed: shows them on the film.
  void framesChanged();
  // "Will not be kept: alpha, sequence"; empty without losses.
  std::string lossesNotice() const;
};

// Shows on the status bar what the pane is about while it is visible, and the path of the current container otherwise.
void showAniPath(const Context& context, const AniState& ani);

}  // namespace gp

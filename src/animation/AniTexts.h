// The longer texts of the animated cursor session.
#pragma once

#include "animation/format/FilmFrame.h"

#include <string>

namespace gp {

class AniFrames;
struct AniChoices;

// Asked before frames are lost.
inline constexpr const char* kUnsavedFramesQuestion = "Without saving frames to file first?\n\n";

// Why the film cannot be saved, grow, or take the icon in the Editing Area.
inline constexpr const char* kNoFrames = "No frames prepared yet";
inline constexpr const char* kBlankFirstFrame = "First frame cannot be a blank";
inline constexpr const char* kFullFilm = "Maximum 70 frames reached";
static_assert(cMaxAniFrames == 70);
inline constexpr const char* kNoAlphaInFrames = "Not allowed to load an icon with Alpha Channel";
inline constexpr const char* kIconOfOtherSize = "Icon in Editing Area is not 32x32";

// "Frame:  2 / 5" and "Jiffies:  30"; empty without frames.
std::string aniFrameLabel(const AniFrames& frames);
std::string aniJiffiesLabel(const AniFrames& frames);
// The box about the current frame. The hot spot is that of the first one.
std::string framePropertyText(const AniFrames& frames);
// The question before a save, with the chosen hot spot and that of the frames.
std::string saveAniQuestion(const AniFrames& frames, const AniChoices& choices);

}  // namespace gp

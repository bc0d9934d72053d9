// The longer texts of the animated cursor session.
#pragma once

#include <string>

namespace gp {

class AniFrames;
struct AniChoices;

// Asked before frames are lost.
inline constexpr const char* kUnsavedFramesQuestion = "Without saving frames to file first?\n\n";

// "Frame:  2 / 5" and "Jiffies:  30"; empty without frames.
std::string aniFrameLabel(const AniFrames& frames);
std::string aniJiffiesLabel(const AniFrames& frames);
// The box about the current frame. The hot spot is that of the first one.
std::string framePropertyText(const AniFrames& frames);
// The question before a save, with the chosen hot spot and that of the frames.
std::string saveAniQuestion(const AniFrames& frames, const AniChoices& choices);

}  // namespace gp

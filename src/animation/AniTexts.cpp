#include "animation/AniTexts.h"

#include "animation/AniState.h"

namespace gp {
namespace {

constexpr const char* kLine = "-------------------------------";

std::string spotText(int x, int y) { return "[" + std::to_string(x) + ", " + std::to_string(y) + "]"; }

std::string spotText(const FilmFrame& frame) { return spotText(frame.hotspotX, frame.hotspotY); }

}  // namespace

std::string aniFrameLabel(const AniFrames& frames) {
  if (frames.count() == 0) return {};
  return "Frame:  " + std::to_string(frames.current()) + " / " + std::to_string(frames.count());
}

std::string aniJiffiesLabel(const AniFrames& frames) {
  return frames.count() == 0 ? std::string() : "Jiffies:  " + std::to_string(frames.currentFrame().jiffies);
}

std::string framePropertyText(const AniFrames& frames) {
  return "Frame No:    " + std::to_string(frames.current()) +
         "\n\nJiffies:    " + std::to_string(frames.currentFrame().jiffies) +
         "\n\n--------------------     \n\nTotal Frames:   " + std::to_string(frames.count()) +
         "\n\nHot spot:    " + spotText(frames.frame(1)) + "\n\n";
}

std::string saveAniQuestion(const AniFrames& frames, const AniChoices& choices) {
  const std::string line = kLine;
  return "To save:\n\n   Hot spot:  " + spotText(choices.hotspotX, choices.hotspotY) + "\n\n" + line +
         "\nThe following is existing data which will\nbe changed accordingly if required:\n   Hot spot:  " +
         spotText(frames.frame(1)) + "\n" + line + "\n\n\nConfirm OK?\n\n";
}

}  // namespace gp

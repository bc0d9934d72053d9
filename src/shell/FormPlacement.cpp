#include "shell/FormPlacement.h"

#include <algorithm>

namespace gp {
namespace {

constexpr int kLeastScreenWidth = 800 * kTwipsPerPixel;
constexpr int kLeastScreenHeight = 600 * kTwipsPerPixel;

int startLength(int stored, int screen, int smallest) { return std::max(std::min(stored, screen), smallest); }

// A position beyond three quarters of the screen would show too little of the form.
int startPosition(int stored, int screen) { return stored < 0 || stored > screen * 3LL / 4 ? 0 : stored; }

}  // namespace

FormStart startOfForm(const StoredPlace& stored, int screenWidth, int screenHeight) {
  FormStart start;
  start.mLastMaximized = stored.maximized.value_or(false);
  if (!stored.isComplete() || screenWidth < kLeastScreenWidth || screenHeight < kLeastScreenHeight) return start;
  start.left = startPosition(*stored.left, screenWidth);
  start.top = startPosition(*stored.top, screenHeight);
  start.mStartWidth = startLength(*stored.width, screenWidth, kFormWidth);
  start.mStartHeight = startLength(*stored.height, screenHeight, kFormHeight);
  return start;
}

FormPlace applyStartScreen(const FormPlace& place, StartScreen option, const FormStart& start) {
  FormPlace result = place;
  if (place.minimized || option == StartScreen::DefaultSize) return result;
  if (start.mLastMaximized) {
    result.maximized = true;
  } else if (option == StartScreen::PerLastSession) {
    result.width = start.mStartWidth;
    result.height = start.mStartHeight;
  }
  return result;
}

}  // namespace gp

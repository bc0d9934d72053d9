// The position and size of the main form at start-up: pure functions on twips. The caller moves the form.
#pragma once

#include "shell/Settings.h"
#include "shell/ShellForms.h"

namespace gp {

inline constexpr int kTwipsPerPixel = 15;
// Size of the form at start, in twips, which is also its minimum size.
inline constexpr int kFormWidth = 11895;
inline constexpr int kFormHeight = 8640;

// The values of the start screen option.
enum class StartScreen { DefaultSize = 0, DefaultUnlessMaximized = 1, PerLastSession = 2 };

// The start position of the form. Its initial size is always kFormWidth x kFormHeight; mStartWidth and mStartHeight are
// used only by applyStartScreen.
struct FormStart {
  int left = 0;
  int top = 0;
  int mStartWidth = kFormWidth;
  int mStartHeight = kFormHeight;
  bool mLastMaximized = false;

  FormPlace place() const { return {left, top, kFormWidth, kFormHeight, false, false}; }
};

// Returns the start for a stored place and a screen size in twips.
FormStart startOfForm(const StoredPlace& stored, int screenWidth, int screenHeight);

// Returns the form's place after applying the start screen option; a minimised form does not change.
FormPlace applyStartScreen(const FormPlace& place, StartScreen option, const FormStart& start);

}  // namespace gp

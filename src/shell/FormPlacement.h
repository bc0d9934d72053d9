// Where the main form comes up and how large it may be: pure rules over twips. The form itself is moved by the caller.
#pragma once

#include "shell/Settings.h"
#include "shell/ShellForms.h"

namespace gp {

inline constexpr int kTwipsPerPixel = 15;
// Size of the form at start, in twips, which is also the smallest it can have.
inline constexpr int kFormWidth = 11895;
inline constexpr int kFormHeight = 8640;

// The values of the start screen option.
enum class StartScreen { DefaultSize = 0, DefaultUnlessMaximized = 1, PerLastSession = 2 };

// Where the form starts. Its size at first is always kFormWidth x kFormHeight; the start size counts only for
// applyStartScreen.
struct FormStart {
  int left = 0;
  int top = 0;
  int mStartWidth = kFormWidth;
  int mStartHeight = kFormHeight;
  bool mLastMaximized = false;

  FormPlace place() const { return {left, top, kFormWidth, kFormHeight, false, false}; }
};

// The start for what was stored and a screen of that size in twips.
FormStart startOfForm(const StoredPlace& stored, int screenWidth, int screenHeight);

// The place that the start screen option gives to the form when it comes up; a minimised form stays as it is.
FormPlace applyStartScreen(const FormPlace& place, StartScreen option, const FormStart& start);

}  // namespace gp

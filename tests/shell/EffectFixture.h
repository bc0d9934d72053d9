// An icon in the whole program, for the panels of the effects.
#pragma once

#include "colour/ColorCount.h"
#include "document/PanelNumbers.h"
#include "effects/ConfinePanel.h"
#include "effects/EffectCases.h"
#include "effects/SettingsPanel.h"
#include "support/ShellFixture.h"

#include <algorithm>

namespace gp::test {

inline constexpr int kNewIcon32 = 2, kNewIcon16 = 3, kUndoAll = 0, kUndo = 1, kRedo = 2, kButtonize = 3, kEmbossed = 11;
inline constexpr int kButtonizePanel = 7, kReliefPanel = 13, kDisabledPanel = 15;
inline constexpr Color kRed = rgb(255, 0, 0);

class EffectFixture : public ShellFixture {
 protected:
  // A new icon, transparent except for the pixels that a test sets.
  void startWithNew(int newIcon = kNewIcon32) {
    start();
    click("mnuFileSub", newIcon);
    state.current().neverSaved = false;
  }
  void set(int x, int y, Color color) {
    state.picImage.SetPixelV(x, y, color);
    state.picMask.SetPixelV(x, y, kBlack);
    shell.document().editingArea.ComposeCurrentIcon();
    shell.document().editingArea.UpdatePanelFromCurrent();
  }
  // More colours than a table of 256 holds, so that no command reports few colours.
  void paintManyColors() {
    for (int y = 0; y < state.picImage.height(); ++y)
      for (int x = 0; x < state.picImage.width(); ++x) set(x, y, rgb(x * 7, y * 7, x * y % 256));
    shell.clearUndoHistory();
    shell.recordUndo();
    state.current().modified = false;
  }
  void drag(int fromX, int fromY, int toX, int toY) {
    shell.drawing().tools.press(ShellFixture::at(fromX, fromY));
    shell.drawing().tools.move(ShellFixture::at(toX, toY));
    shell.drawing().tools.release(ShellFixture::at(toX, toY));
  }
  // The colour of a pixel, kNoColor where the icon is transparent.
  Color at(int x, int y) const {
    return state.picMask.GetPixel(x, y) == kBlack ? state.picImage.GetPixel(x, y) : kNoColor;
  }
  int panel() const { return state.screen.mActivePanel; }
  SettingsPanel& settings(int number) { return *shell.effects().settingsPanel(number); }
  // A choice in the first control of the effect that a panel shows.
  void choose(int number, int choice) { settings(number).choose(settings(number).effect().settings.front(), choice); }
  int choice(int number) { return settings(number).choiceOf(settings(number).effect().settings.front()); }
  // How many colours the icon counts as.
  int imageColors() const {
    int count = 0;
    GetColorBitCount_Image(state.picImage, count);
    return count;
  }
};

}  // namespace gp::test

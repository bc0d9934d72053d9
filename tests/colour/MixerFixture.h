// A mixer over scripted ports, for tests of it and of its palette files.
#pragma once

#include "colour/ColorMixer.h"
#include "support/FakeEditor.h"
#include "support/ScriptedPorts.h"

#include <gtest/gtest.h>

namespace gp::test {

class MixerFixture : public testing::Test {
 protected:
  EditState state;
  FakeEditor editor;
  RecordingDisplay display;
  ScriptedBoxes boxes;
  ScriptedDialogs dialogs;
  ScriptedPump pump;
  clsGPDialog dialog{dialogs};
  ColorSelection colors{state, editor, display, boxes, pump, dialog};
  ColorMixer mixer{state, display, pump, colors};

  void mix(int red, int green, int blue) {
    mixer.moveSlider(0, red);
    mixer.moveSlider(1, green);
    mixer.moveSlider(2, blue);
  }
  // The colour of one of the strip's 100 rows, counted from 1.
  Color stripRow(int row) const {
    constexpr int kRowHeight = kMixGradientHeight / kMixGradientRows;
    return mixer.picMixGradient().GetPixel(0, (row - 1) * kRowHeight);
  }
};

}  // namespace gp::test

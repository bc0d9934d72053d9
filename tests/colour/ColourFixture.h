// The colour room over scripted ports: selection, mixer and charts.
#pragma once

#include "colour/Colour.h"
#include "document/EditState.h"
#include "platform/dialogs/clsGPDialog.h"
#include "support/FakeEditor.h"
#include "support/ScriptedPorts.h"

#include <gtest/gtest.h>
#include <string>

namespace gp::test {

class ColourFixture : public testing::Test {
 protected:
  EditState state;
  FakeEditor editor;
  RecordingDisplay display;
  ScriptedBoxes boxes;
  ScriptedDialogs dialogs;
  ScriptedPictures pictures;
  ScriptedPump pump;
  clsGPDialog dialog{dialogs};
  const Context context{state, editor, display, boxes, pump};
  Colour colour{context, dialog, pictures, "/"};
  ColorSelection& colors = colour.selection;
  ColorMixer& mixer = colour.mixer;

  void mix(int red, int green, int blue) {
    mixer.moveSlider(0, red);
    mixer.moveSlider(1, green);
    mixer.moveSlider(2, blue);
  }
  // The colour of one of the 100 rows of the strip, counted from 1.
  Color stripRow(int row) const {
    constexpr int kRowHeight = kMixGradientHeight / kMixGradientRows;
    return mixer.picMixGradient().GetPixel(0, (row - 1) * kRowHeight);
  }
  // The box of the current colour shows the HTML figure of the colour that was hovered over last.
  void expectHovered(const std::string& html) {
    const Color current = state.mCurrentColor;
    state.mCurrentColor = kBlack;
    boxes.expectTold("Currently selected color:      \n\n0 / h0\n\nRGB(0, 0, 0) \n\nHTML #" + html,
                     BoxIcon::Information);
    colors.showCurrentColor();
    state.mCurrentColor = current;
  }
};

}  // namespace gp::test

// The document room, real and connected, over scripted ports; calls to the right are recorded.
#pragma once

#include "document/Document.h"
#include "document/EditState.h"
#include "support/FakeEditor.h"
#include "support/ScriptedPorts.h"

#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace gp::test {

// A FakeEditor whose quiet loader does what a test says, and for which a region ends when it is asked to.
class DocumentEditor : public FakeEditor {
 public:
  explicit DocumentEditor(EditState& state) : state_(state) {}

  std::function<bool()> quietLoader;

  void clearRegion() override {
    FakeEditor::clearRegion();
    state_.mRegionExists = state_.mPendingPaint = false;
  }

  void doOpenIconFileQuietly(const std::string& path, bool& ok) override {
    FakeEditor::doOpenIconFileQuietly(path, ok);
    if (quietLoader) ok = quietLoader();
  }

 private:
  EditState& state_;
};

class DocumentFixture : public testing::Test {
 protected:
  EditState state;
  DocumentEditor editor{state};
  RecordingDisplay display;
  ScriptedBoxes boxes;
  ScriptedPump pump;
  const Context context{state, editor, display, boxes, pump};
  Document document{context};
  EditingArea& area = document.editingArea;
  IconsPanel& panel = document.iconsPanel;
  IconArrival& arrival = document.arrival;
  EditingAreaOptions& options = document.areaOptions;

  // An opaque icon of one colour.
  static IconImage plainIcon(int size, Color color) {
    return {Surface(size, size, color), Surface(size, size, kBlack), {}};
  }
  std::string readout(Readout which) const { return state.screen.lblDispXY[static_cast<std::size_t>(which)]; }
  std::string status(StatusPanel which) const { return state.screen.lblStatusPanel[static_cast<std::size_t>(which)]; }
  static int countPixels(const Surface& surface, Color color) {
    int count = 0;
    for (int y = 0; y < surface.height(); ++y)
      for (int x = 0; x < surface.width(); ++x) count += surface.GetPixel(x, y) == color;
    return count;
  }
};

}  // namespace gp::test

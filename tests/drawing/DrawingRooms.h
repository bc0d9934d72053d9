// The drawing room and the rooms it works in, with short names for its parts, and the mouse on the Editing Area.
#pragma once

#include "document/Containers.h"
#include "support/Rooms.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace gp::test {

using Rows = std::vector<std::string>;

class DrawingRooms : public testing::Test, protected Rooms {
 protected:
  EditingArea& area = document.editingArea;
  EditingAreaOptions& options = document.areaOptions;
  IconsPanel& panel = document.iconsPanel;
  ColorSelection& colors = colour.selection;
  UndoHistory& history = drawing.history;
  UndoCommands& undo = drawing.undo;
  Regions& regions = drawing.regions;
  Tools& tools = drawing.tools;
  const DrawState& draw = drawing.drawState;

  // Puts an icon into a container, which becomes the current one. Counting of calls starts after it.
  void arrive(int container, const IconImage& icon) {
    state.mCurContainer = container;
    document.arrival.arrive(icon, NewRecord());
    editor.calls.clear();
  }
  static bool same(const Surface& a, const Surface& b) {
    return a.width() == b.width() && a.height() == b.height() && std::ranges::equal(a.pixels(), b.pixels());
  }
  std::string readout(Readout which) const { return state.screen.lblDispXY[static_cast<std::size_t>(which)]; }

  // The centre of an icon pixel.
  MouseInput at(int pixelX, int pixelY, int button = kLeftButton, int modifiers = 0) const {
    const auto m = static_cast<float>(state.gMagnification);
    return {button, modifiers, (static_cast<float>(pixelX) + 0.5F) * m, (static_cast<float>(pixelY) + 0.5F) * m};
  }
};

}  // namespace gp::test

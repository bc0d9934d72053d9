// The room's interface: creates the objects that show and store the Current Icon and the six containers, for the rooms
// to the right. Contains no logic.
#pragma once

#include "document/EditingArea.h"
#include "document/EditingAreaOptions.h"
#include "document/IconArrival.h"
#include "document/IconsPanel.h"

namespace gp {

struct Document {
  explicit Document(const Context& context)
      : editingArea(context),
        arrival(context, editingArea),
        iconsPanel(context, editingArea, arrival),
        areaOptions(context, editingArea, iconsPanel) {}

  EditingArea editingArea;
  IconArrival arrival;
  IconsPanel iconsPanel;
  EditingAreaOptions areaOptions;
};

}  // namespace gp

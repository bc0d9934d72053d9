// The room's interface: creates the objects that give information about icons. Contains no logic.
#pragma once

#include "files/Files.h"
#include "output/Enquiry.h"
#include "output/PreviewPanel.h"

namespace gp {

struct Output {
  Output(const Context& context, Files& files, AlphaCommands& alpha)
      : enquiry(context, files), previewPanel(context, files.context().dialog, alpha) {}

  Enquiry enquiry;
  PreviewPanel previewPanel;
};

}  // namespace gp

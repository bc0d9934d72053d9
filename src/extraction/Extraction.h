// The face of the room: creates the Icons List and the search for icons. Contains no logic.
#pragma once

#include "extraction/IconsList.h"
#include "extraction/SearchPanel.h"

namespace gp {

struct Extraction {
  Extraction(Files& files, FileTypeIcons& fileTypes);
  Extraction(const Extraction&) = delete;
  Extraction& operator=(const Extraction&) = delete;

  IconsList list;
  SearchPanel search;
};

}  // namespace gp

// What the main form and the browser of multi-icon files tell each other: the caller fills it, shows the form modally,
// and reads the answer back.
#pragma once

#include "document/IconImage.h"

#include <string>

namespace gp {

struct MultiIconExchange {
  std::string gMultiIconFile;  // full path of the file that the form works on
  // In: the current container from 0 as text, or empty. Out: the answer, empty when the user closed the form.
  std::string gMultiIconResult;
  IconImage chosenIcon;         // out: the pixels of the entry to load
  bool gLoadAndReturn = false;  // the form is to be shown again after the load
  bool gFileInPanel = false;    // a container holds an icon of this file, which forbids Remove and Reposition
  bool gAddToFile = false;      // the form shows its add face
  // The add face shows what is to be added.
  Surface PicCurrIcon;
  std::string lblCurrIcon;
};

}  // namespace gp

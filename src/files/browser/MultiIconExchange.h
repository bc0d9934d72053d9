// The values that the main form and the browser of multi-icon files exchange: the caller sets them, shows the form
// modally and reads the answer.
#pragma once

#include "document/EntryOrigin.h"
#include "document/IconImage.h"
#include "platform/files/Files.h"

#include <string>

namespace gp {

struct MultiIconExchange {
  std::string gMultiIconFile;  // full path of the file
  // In: the current container from 0 as text, or empty. Out: the answer, empty when the user closed the form.
  std::string gMultiIconResult;
  IconImage chosenIcon;         // out: the pixels of the entry to load
  EntryOrigin chosenOrigin;     // out: the origin of that entry
  FileBytes listedFile;         // out: the file to add to, as the user saw it listed
  bool gLoadAndReturn = false;  // show the form again after the load
  bool gFileInPanel = false;    // a container holds an icon of this file, which forbids Remove and Reposition
  bool gAddToFile = false;      // show the add face
  // The icon to add, as the add face shows it.
  Surface PicCurrIcon;
  std::string lblCurrIcon;
};

}  // namespace gp

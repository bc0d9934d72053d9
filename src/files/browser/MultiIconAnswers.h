// The answers of frmGPMultiIcon: numbers joined by "/". What is malformed is no answer at all, so that nothing that the
// user did not choose can be loaded or overwritten.
#pragma once

#include "files/format/IconProbe.h"

#include <optional>
#include <string>

namespace gp {

// An entry to load, and where to.
struct LoadAnswer {
  int container = 0;  // from 0, always one of the six
  // Of the entry; its bit count is the one that the browser corrected.
  IconFacts facts;
};
std::optional<LoadAnswer> parseLoadAnswer(const std::string& answer);

// Where to add the icon, and whether in another file.
struct AddAnswer {
  bool saveAs = false;
  int index = 0;  // of the new entry, from 0
};
std::optional<AddAnswer> parseAddAnswer(const std::string& answer);

}  // namespace gp

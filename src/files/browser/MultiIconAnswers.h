// Parses the answers of frmGPMultiIcon: numbers joined by "/". A malformed answer is ignored, so that nothing is loaded
// or overwritten that the user did not choose.
#pragma once

#include "files/format/IconProbe.h"

#include <optional>
#include <string>

namespace gp {

// An entry to load, and its target.
struct LoadAnswer {
  int container = 0;  // from 0, always one of the six
  // The numbers of the entry, with the bit count that the browser has corrected.
  IconFacts facts;
};
std::optional<LoadAnswer> parseLoadAnswer(const std::string& answer);

// The place for the new icon, and whether to write another file.
struct AddAnswer {
  bool saveAs = false;
  int index = 0;  // of the new entry, from 0
};
std::optional<AddAnswer> parseAddAnswer(const std::string& answer);

}  // namespace gp

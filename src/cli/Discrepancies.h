// Finds contradictions between the directory of a file, the headers of its images and the pixels. A valid icon with
// fewer colours than its depth allows is not reported, nor is an old icon whose entry states its depth by the colour
// count only.
#pragma once

#include "files/format/IconFile.h"

#include <functional>
#include <string>

namespace gp::cli {

inline constexpr const char* kNothingStated = "-";

struct Discrepancy {
  int index = -1;  // of the entry, -1 for the file as a whole
  std::string what;
  // The value that each of the three states.
  std::string directory = kNothingStated;
  std::string header = kNothingStated;
  std::string pixels = kNothingStated;
};

// Receives them one by one: a file can have more than fit into memory.
using DiscrepancySink = std::function<void(const Discrepancy&)>;
// Reports discrepancies in the order of the entries. `file` must be read completely. Entries that share bytes or are
// alike are each reported once.
void findDiscrepancies(const IconFile& file, const DiscrepancySink& report);

}  // namespace gp::cli

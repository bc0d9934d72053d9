// The places in which the directory of a file, the headers of its images and the pixels contradict each other. A
// healthy icon with fewer colours than its depth allows is none, and neither is an old one that tells its depth by the
// colour count alone.
#pragma once

#include "files/format/IconFile.h"

#include <functional>
#include <string>

namespace gp::cli {

inline constexpr const char* kNothingTold = "-";

struct Discrepancy {
  int index = -1;  // of the entry, -1 for the file as a whole
  const char* what = "";
  // What each of the three tells.
  std::string directory = kNothingTold;
  std::string header = kNothingTold;
  std::string pixels = kNothingTold;
};

// Takes them one by one: a file can hold more than there is memory for.
using DiscrepancySink = std::function<void(const Discrepancy&)>;
// In the order of the entries. The bytes must be those of the whole file. Of entries that share bytes or are alike,
// each is told once.
void findDiscrepancies(const IconFile& file, const DiscrepancySink& tell);

}  // namespace gp::cli

// The operations of gpicon ani set.
#pragma once

#include "cli/AniValues.h"
#include "cli/Console.h"
#include "cli/FilmEditing.h"

namespace gp::cli {

struct AniOperation {
  bool (*apply)(NamedFilm& film, const AniOperation& operation) = nullptr;
  int frame = 0;  // from 1, where the operation takes one
  int jiffies = 0;
  Hotspot hotspot;
  std::string file;
};

// The words of gpicon ani set without -o.
struct AniSetWords {
  Arguments files;
  std::vector<AniOperation> operations;  // in their order
};
// Empty after an error message.
std::optional<AniSetWords> parseAniSet(const Arguments& words);

}  // namespace gp::cli

#include "files/format/SingleEntryFile.h"

#include "files/format/IcoLayout.h"

namespace gp {

bool saveEntryToSingleFile(const IconArrays& arrays, int index, const std::string& path) {
  const auto at = static_cast<std::size_t>(index);
  IconArrays single;
  single.type = ico::kTypeIcon;
  single.entries.push_back(arrays.entries.at(at));
  single.images.push_back(arrays.images.at(at));
  return writeWholeFile(single, path, {});
}

}  // namespace gp

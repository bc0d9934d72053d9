#include "files/format/SingleEntryFile.h"

#include "files/format/IcoLayout.h"

namespace gp {

std::vector<std::uint8_t> composeSingleEntryFile(const IconArrays& arrays, int index) {
  const auto at = static_cast<std::size_t>(index);
  IconArrays single;
  single.type = ico::kTypeIcon;
  single.entries.push_back(arrays.entries.at(at));
  single.images.push_back(arrays.images.at(at));
  return composeWholeFile(single);
}

bool saveEntryToSingleFile(const IconArrays& arrays, int index, const std::string& path) {
  return replaceFile(path, composeSingleEntryFile(arrays, index));
}

}  // namespace gp

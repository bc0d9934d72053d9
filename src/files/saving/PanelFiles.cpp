#include "files/saving/PanelFiles.h"

#include "document/EditState.h"
#include "platform/files/Files.h"

#include <algorithm>

namespace gp {

bool isFileOf(const IconContainerRec& record, const std::string& path) {
  const std::string own = record.path.trimmed();
  if (own.empty()) return false;
  return record.path == TrimmedText(path) || isSameFile(own, path);
}

std::optional<int> findContainerOf(const EditState& state, const std::string& path) {
  const auto found =
      std::ranges::find_if(state.mIconRecs, [&](const IconContainerRec& record) { return isFileOf(record, path); });
  if (found == state.mIconRecs.end()) return std::nullopt;
  return static_cast<int>(found - state.mIconRecs.begin());
}

}  // namespace gp

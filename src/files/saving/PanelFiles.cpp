#include "files/saving/PanelFiles.h"

#include "document/EditState.h"
#include "platform/files/Files.h"

namespace gp {

bool isFileOf(const IconContainerRec& record, const std::string& path) {
  const std::string own = record.path.trimmed();
  if (own.empty()) return false;
  return record.path == TrimmedText(path) || isSameFile(own, path);
}

std::optional<int> findContainerOf(const EditState& state, const std::string& path, int except) {
  for (int container = 0; container < kContainerCount; ++container)
    if (container != except && isFileOf(state.mIconRecs.at(static_cast<std::size_t>(container)), path))
      return container;
  return std::nullopt;
}

}  // namespace gp

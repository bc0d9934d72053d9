#include "files/saving/CurrentIcon.h"

#include "document/CurrentIcon.h"
#include "document/EditState.h"
#include "files/format/IconWriter.h"

namespace gp {

bool writeCurrentCursor(const EditState& state, int hotspotX, int hotspotY, const std::string& path) {
  const IconImage icon = currentIcon(state);
  bool ok = false;
  WriteCursorFile(icon, depthToWrite(icon, state.current()), hotspotX, hotspotY, path, ok);
  return ok;
}

}  // namespace gp

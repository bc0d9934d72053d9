#include "files/saving/CurrentIcon.h"

#include "document/CurrentIcon.h"
#include "document/EditState.h"
#include "files/format/IconWriter.h"

namespace gp {

bool writeCurrentIcon(const EditState& state, const std::string& path, const std::optional<FileVersion>& read) {
  const IconImage icon = currentIcon(state);
  bool ok = false;
  WriteSingleIconFile(icon, depthToWrite(icon, state.current()), path, ok, read);
  return ok;
}

bool writeCurrentCursor(const EditState& state, int hotspotX, int hotspotY, const std::string& path) {
  const IconImage icon = currentIcon(state);
  bool ok = false;
  WriteCursorFile(icon, depthToWrite(icon, state.current()), hotspotX, hotspotY, path, ok);
  return ok;
}

void describeSavedIcon(EditState& state, const std::string& path) {
  const ColorDepth written = depthToWrite(currentIcon(state), state.current());
  state.current() = recordOfSavedIcon(state.current(), written, path);
}

}  // namespace gp

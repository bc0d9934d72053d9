// Saving the Current Icon: what the writers get of the shared state, and what the record becomes afterwards.
#pragma once

#include "document/EditState.h"
#include "document/IconImage.h"

#include <string>

namespace gp {

// The pixels and alpha values of the Current Icon.
IconImage currentIcon(const EditState& state);
// Writes the Current Icon, with the alpha that its record states. False as in WriteSingleIconFile.
[[nodiscard]] bool writeCurrentIcon(const EditState& state, const std::string& path);
// The same as a cursor.
[[nodiscard]] bool writeCurrentCursor(const EditState& state, int hotspotX, int hotspotY, const std::string& path);
// The current record states what writeCurrentIcon has written: its depth, its path, nothing left to save.
void describeSavedIcon(EditState& state, const std::string& path);

}  // namespace gp

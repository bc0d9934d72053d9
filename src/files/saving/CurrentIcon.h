// Saves the Current Icon as a cursor: passes it from the shared state to the writer.
#pragma once

#include <string>

namespace gp {

struct EditState;

// Writes the Current Icon as a cursor, with the alpha channel that its record states. False as in WriteCursorFile.
[[nodiscard]] bool writeCurrentCursor(const EditState& state, int hotspotX, int hotspotY, const std::string& path);

}  // namespace gp

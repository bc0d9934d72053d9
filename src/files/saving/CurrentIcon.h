// Saves the Current Icon: passes it from the shared state to the writers, and updates its record.
#pragma once

#include "platform/files/FileVersion.h"

#include <optional>
#include <string>

namespace gp {

struct EditState;

// Writes the Current Icon with the alpha channel that its record states. False as in WriteSingleIconFile.
[[nodiscard]] bool writeCurrentIcon(const EditState& state, const std::string& path,
                                    const std::optional<FileVersion>& read = std::nullopt);
// The same as a cursor.
[[nodiscard]] bool writeCurrentCursor(const EditState& state, int hotspotX, int hotspotY, const std::string& path);
// Updates the current record after writeCurrentIcon, see recordOfSavedIcon.
void describeSavedIcon(EditState& state, const std::string& path);

}  // namespace gp

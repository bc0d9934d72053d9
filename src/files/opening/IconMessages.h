// Boxes that several commands on icon files show in the same words.
#pragma once

#include "platform/ports/MessageBoxes.h"

#include <string>

namespace gp {

// A screen of fewer bits shows few colours.
inline constexpr int kManyColorsScreenBits = 9;
// Whether to go on with a true colour icon on a screen of few colours.
[[nodiscard]] bool ConfirmTrueColorOnLowScreen(MessageBoxes& boxes);
// Behind the path of a true colour icon or cursor of other depths than those that are shown.
inline constexpr const char* kStrangeTrueColor =
    "\nIncoming icon is a True Color icon"
    " but not of 24 BPP or 32 BPP.\n";
inline constexpr const char* kReadOnlyFile =
    "File is read-only\n\nYou may save it under"
    " a different file name or reset the file attributes.";
// Why an icon could not be written to a path.
void tellIconNotSaved(MessageBoxes& boxes, const std::string& path);

}  // namespace gp

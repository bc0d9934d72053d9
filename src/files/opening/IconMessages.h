// Message boxes that several commands on icon files share.
#pragma once

#include "platform/ports/MessageBoxes.h"

#include <string>

namespace gp {

// A screen with fewer bits shows few colours.
inline constexpr int kManyColorsScreenBits = 9;
// Asks whether to open a true colour icon on a screen with few colours.
[[nodiscard]] bool ConfirmTrueColorOnLowScreen(MessageBoxes& boxes);
// Follows the path of a true colour icon or cursor of an unsupported depth.
inline constexpr const char* kStrangeTrueColor =
    "\nIncoming icon is a True Color icon"
    " but not of 24 BPP or 32 BPP.\n";
// Before the file with several icons that an icon came from is written over.
inline constexpr const char* kMultiIconReminder =
    "Reminder:  The original icon file contains multiple icons.\n\n"
    " If you don't wish to overwrite it, save to a different name.";
inline constexpr const char* kReadOnlyFile =
    "File is read-only\n\nYou may save it under"
    " a different file name or reset the file attributes.";
// Shows why an icon could not be written to a path.
void tellIconNotSaved(MessageBoxes& boxes, const std::string& path);

}  // namespace gp

// Texts that several subsystems show.
#pragma once

#include "platform/ports/MessageBoxes.h"

namespace gp {

inline constexpr const char* kReminderHint = "(To remove Reminder, untick the related Option submenu)";

// Appended to the path of an icon's file that a command must read again but cannot find.
inline constexpr const char* kFileGone = "\nfile can no longer be found!";

// Shown by each command that requires an icon when there is none.
inline constexpr const char* kNoIconYet = "No icon in Editing Area yet";
// Shown by Paste when there is no picture.
inline constexpr const char* kNoClipboardImage = "No image in clipboard yet";

}  // namespace gp

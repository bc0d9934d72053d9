// Texts that several subsystems show.
#pragma once

#include "platform/ports/MessageBoxes.h"

namespace gp {

inline constexpr const char* kReminderHint = "(To remove Reminder, untick the related Option submenu)";

// Behind the path of an icon's file that the command wants to read again.
inline constexpr const char* kFileGone = "\nfile can no longer be found!";

// What every command says that needs an icon and finds none.
inline constexpr const char* kNoIconYet = "No icon in Editing Area yet";
// What pasting says without a picture.
inline constexpr const char* kNoClipboardImage = "No image in clipboard yet";

}  // namespace gp

// What a user is told when an update of a file with several icons is refused or fails. The form, the commands and the
// command line tool tell it in the same words; line breaks are those of a message box.
#pragma once

#include "files/format/IconArrays.h"
#include "files/format/IconUpdates.h"

#include <string>

namespace gp {

// The two saves into a file. Their texts differ in small things.
enum class SaveInto { Replace, Add };

// Both refuse an icon of the size and colours of another in the file; `same` is that other.
std::string sameIconText(const IconTraits& same, SaveInto save);
// The file to write is read-only, or could not be written for another reason.
const char* notWrittenText(const std::string& path, SaveInto save);
// Both refuse a file that an icon in another container came from; containers count from 0.
std::string openedInPanelText(int container);

// Replace.
inline constexpr const char* kReplaceNotRead = "Failed to save current icon - at reading preparation stage";
inline constexpr const char* kReplaceEntryGone =
    "The original multi-icon file has been changed meanwhile.\nCannot proceed to save current icon back.";

// Add.
inline constexpr const char* kAddToNoIcon = "File does not contain 16x16, 24x24, 32x32 or 48x48 icon.";
// Of a file whose icons cannot be read, though it was taken for an icon file.
std::string addNotReadText(const std::string& path, ArraysDefect defect);
// There is no such place in the file.
std::string addNoPositionText(const std::string& path);

// Remove.
inline constexpr const char* kRemoveLastIcon = "Not allowed to delete the last icon in file";
inline constexpr const char* kRemoveNotWritten = "Failed to update the file for this icon.";

// Reposition.
inline constexpr const char* kRepositionSingleIcon = "Only a single icon in file";
inline constexpr const char* kRepositionNoChange = "There is no change in original sequence.";
inline constexpr const char* kRepositionNotWritten = "Failed to reposition icons sequence in ";  // path and line break

}  // namespace gp

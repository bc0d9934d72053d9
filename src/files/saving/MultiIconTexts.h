// Messages for refused and failed updates of files with several icons. The form, the commands and gpicon use the same
// texts; line breaks are those of a message box.
#pragma once

#include "files/format/IconArrays.h"
#include "files/format/IconUpdates.h"

#include <string>

namespace gp {

// The two saves into a file, whose texts differ slightly.
enum class SaveInto { Replace, Add };

// Both refuse an icon with the size and colours of another one in the file; `same` describes that one.
std::string sameIconText(const IconTraits& same, SaveInto save);
// States that the file to write is read-only, or that writing failed.
const char* notWrittenText(const std::string& path, SaveInto save);
// Both refuse a file if another container holds an icon of it. Containers count from 0.
std::string openedInPanelText(int container, SaveInto save);

// States that a command does nothing because another program has changed the file since it was read.
std::string fileChangedText(const std::string& path);

// States that another program is about to change the file.
std::string fileInUseText(const std::string& path);
// States why an update was not written.
std::string notUpdatedText(WriteDefect defect, const std::string& path, SaveInto save);

// Replace.
inline constexpr const char* kReplaceNotRead = "Failed to save current icon - at reading preparation stage";
inline constexpr const char* kReplaceEntryGone =
    "The original multi-icon file has been changed meanwhile.\nCannot proceed to save current icon back.";

// Add.
inline constexpr const char* kAddToNoIcon = "File does not contain 16x16, 24x24, 32x32 or 48x48 icon.";
// For a file whose icons cannot be read, although it was recognised as an icon file.
std::string addNotReadText(const std::string& path, ArraysDefect defect);
// For a position that the file does not have.
std::string addNoPositionText(const std::string& path);

// Remove.
inline constexpr const char* kRemoveLastIcon = "Not allowed to delete the last icon in file";
inline constexpr const char* kRemoveNotWritten = "Failed to update the file for this icon.";

// Reposition.
inline constexpr const char* kRepositionSingleIcon = "Only a single icon in file";
inline constexpr const char* kRepositionNoChange = "There is no change in original sequence.";
inline constexpr const char* kRepositionNotWritten = "Failed to reposition icons sequence in ";  // path and line break

}  // namespace gp

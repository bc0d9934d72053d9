// The file dialogs of the commands on icon files. They start in the folder of the last dialog unless the caller states
// one, and store the folder that was used. A dialog that saves first reports that its folder is gone.
#pragma once

#include "files/FilesContext.h"

#include <functional>
#include <string>

namespace gp {

// States who asks whether an existing file may be overwritten.
enum class OverwriteQuestion { ByDialog, ByCaller };

// Return the chosen path, empty after Cancel. An empty folder means that of the last dialog.
std::string askToOpen(FilesContext& context, const char* filter);
std::string askToOpen(ProcessValues& process, clsGPDialog& dialog, const char* filter);
std::string askToSave(FilesContext& context, const std::string& proposedName, const char* filter, const char* extension,
                      OverwriteQuestion question = OverwriteQuestion::ByDialog, const std::string& folder = {});

// The body of an open command: offers to save the Current Icon, asks for a file, opens it, and stores its path in
// mCommandFile.
using OpenFile = std::function<void(const std::string& path, bool& ok)>;
void openChosenFile(FilesContext& context, const char* filter, const OpenFile& open);

// Follows the path of an existing file.
inline constexpr const char* kOverwriteQuestion = " already in existence.\n\nOverwrite?\n";

inline constexpr const char* kIconFilter = "Icon files (*.ico)|*.ico|";
inline constexpr const char* kIconExtension = "ico";
inline constexpr const char* kIconEnding = ".ico";

}  // namespace gp

// The file dialogs of the commands on icon files: they begin in the folder of the last one unless told another, and
// remember theirs.
#pragma once

#include "files/FilesContext.h"

#include <functional>
#include <string>

namespace gp {

// Who asks whether an existing file may be overwritten.
enum class OverwriteQuestion { ByDialog, ByCaller };

// The chosen path, empty for a cancel. An empty folder stands for that of the last dialog.
std::string askToOpen(FilesContext& context, const char* filter);
std::string askToSave(FilesContext& context, const std::string& proposedName, const char* filter, const char* extension,
                      OverwriteQuestion question = OverwriteQuestion::ByDialog, const std::string& folder = {});

// The body of an open command: offers to save what is on the Editing Area, asks for a file, opens it, and remembers
// what was opened.
using OpenFile = std::function<void(const std::string& path, bool& ok)>;
void openChosenFile(FilesContext& context, const char* filter, const OpenFile& open);

inline constexpr const char* kIconFilter = "Icon files (*.ico)|*.ico|";
inline constexpr const char* kIconExtension = "ico";

}  // namespace gp

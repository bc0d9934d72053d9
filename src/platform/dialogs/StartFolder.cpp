#include "platform/dialogs/StartFolder.h"

#include "platform/files/Files.h"
#include "platform/ports/MessageBoxes.h"

#include <filesystem>

namespace gp {

std::string existingStartFolder(MessageBoxes& boxes, const std::string& folder) {
  std::filesystem::path found = folder;
  if (!found.is_absolute() || directoryExists(folder)) return folder;
  boxes.tell(folder + "\nFolder not found.", BoxIcon::Exclamation);
  while (found.has_relative_path() && !directoryExists(found.string())) found = found.parent_path();
  return found.string();
}

}  // namespace gp

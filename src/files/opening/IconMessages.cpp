#include "files/opening/IconMessages.h"

#include "platform/files/Files.h"

namespace gp {
namespace {

constexpr const char* kLowScreenQuestion =
    "The incoming icon is a True Color icon, but your display colors\n"
    "setting in Windows is below High Color basing on that when you\n"
    "started the program.  The icon may not be displayed correctly.\n"
    "\n"
    "Proceed still?";
constexpr const char* kIconNotSaved = "Failed to save this icon";

}  // namespace

bool ConfirmTrueColorOnLowScreen(MessageBoxes& boxes) { return boxes.ask(kLowScreenQuestion); }

void tellIconNotSaved(MessageBoxes& boxes, const std::string& path) {
  boxes.tell(HasFileAttribute(path) ? kReadOnlyFile : kIconNotSaved, BoxIcon::Exclamation);
}

}  // namespace gp

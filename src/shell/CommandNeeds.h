// The needs of commands, one function for each kind. Each returns null when the need is met, otherwise the message that
// explains it, empty for no message box. Menus and toolbar disable a command whose need is not met.
#pragma once

namespace gp {

class Shell;

namespace needs {

const char* always(const Shell& shell, int index);
const char* icon(const Shell& shell, int index);
const char* iconQuietly(const Shell& shell, int index);
const char* iconToResize(const Shell& shell, int index);
const char* multiIconFile(const Shell& shell, int index);
const char* singleIconFile(const Shell& shell, int index);
const char* cursorSize(const Shell& shell, int index);
const char* alpha(const Shell& shell, int index);
const char* cursor(const Shell& shell, int index);
const char* discrepancy(const Shell& shell, int index);
const char* colorPicker(const Shell& shell, int index);
const char* region(const Shell& shell, int index);
const char* noRegion(const Shell& shell, int index);
const char* undoStep(const Shell& shell, int index);
const char* redoStep(const Shell& shell, int index);
const char* clipboardPicture(const Shell& shell, int index);
const char* otherContainer(const Shell& shell, int index);
const char* otherUsedContainer(const Shell& shell, int index);

using Need = const char* (*)(const Shell& shell, int index);
// Returns what is announced when a need is not met and has no message box.
const char* reasonWithoutBox(Need need);

}  // namespace needs
}  // namespace gp

// The desktop's style with these changes: a combo box opens as a list of at most its maxVisibleItems entries with a
// scroll bar, not as a menu that can cover the whole screen; check boxes, radio buttons and sliders are visible on a
// dark window; the menu bar marks the entry that has the keyboard; message boxes have the program's pictures, and the
// buttons of dialogs none.
#pragma once

namespace gp {

// Must be called once, after the application has been created.
void installProgramStyle();

}  // namespace gp

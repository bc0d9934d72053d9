// The desktop's style with three changes: a combo box opens as a list of at most its maxVisibleItems entries with a
// scroll bar, not as a menu that can cover the whole screen; check boxes, radio buttons, sliders and the menu bar's
// button for more entries are visible on a dark window; and the keyboard focus is marked by the same ring everywhere.
#pragma once

namespace gp {

// Must be called once, after the application has been created.
void installProgramStyle();

}  // namespace gp

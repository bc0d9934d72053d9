// The desktop's style with two changes: a combo box opens as a list of at most its maxVisibleItems entries with a
// scroll bar, not as a menu that can cover the whole screen; and check boxes, radio buttons and sliders are visible on
// a dark window.
#pragma once

namespace gp {

// Must be called once, after the application has been created.
void installProgramStyle();

}  // namespace gp

// The desktop's style but for two things: a list drops down as a list, with as many entries as it was told to show and
// a scroll bar, and not as a menu that may cover the whole screen; and tick boxes and sliders are seen on a dark
// window, too.
#pragma once

namespace gp {

// Once, after the application was made.
void installProgramStyle();

}  // namespace gp

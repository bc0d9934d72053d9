// How a colour is shown: a filled rectangle with a thin line around it, and the focus ring around both.
#pragma once

#include "platform/gdi/Surface.h"

class QWidget;

namespace gp {

// Paints the whole of a widget, in its paint event.
void paintSwatch(QWidget& widget, Color color);

}  // namespace gp

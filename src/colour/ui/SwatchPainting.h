// How a colour is shown: a filled rectangle with a thin line around it, and the focus ring around both.
#pragma once

#include "platform/gdi/Surface.h"

class QString;
class QWidget;

namespace gp {

// "RGB: 255, 128, 0", as screen readers speak a colour.
QString colorText(Color color);

// Paints the whole of a widget, in its paint event.
void paintSwatch(QWidget& widget, Color color);

}  // namespace gp

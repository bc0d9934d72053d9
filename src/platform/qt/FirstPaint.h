// Work that must not delay the first picture of a window.
#pragma once

#include <QWidget>

#include <functional>

namespace gp {

// Calls `work` once, from the event loop, after the widget has been painted for the first time.
void afterFirstPaint(QWidget& widget, std::function<void()> work);

}  // namespace gp

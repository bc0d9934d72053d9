// What the Editing Area says while it has no icon.
#pragma once

class QWidget;

namespace gp {

inline constexpr const char* kEmptyAreaText = "Drop an icon here, Ctrl+O opens, Ctrl+N makes a new one";

// Paints the text in the middle of a widget whose ground is that of icons, in its paint event.
void paintEmptyArea(QWidget& widget);

}  // namespace gp

// The numbers of the side panels fraPanel(n) that several rooms use. Each effect defines its own number.
#pragma once

namespace gp {

inline constexpr int kColorPanel = 0;
inline constexpr int kIconsListPanel = 1;
inline constexpr int kCursorPanel = 2;
inline constexpr int kRotatePanel = 4;

}  // namespace gp

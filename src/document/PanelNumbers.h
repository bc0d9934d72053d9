// The numbers of those side panels fraPanel(n) that other rooms than the panel's own ask about.
#pragma once

namespace gp {

inline constexpr int kColorPanel = 0;
inline constexpr int kIconsListPanel = 1;
inline constexpr int kCursorPanel = 2;

}  // namespace gp

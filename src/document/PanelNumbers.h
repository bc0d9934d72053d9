// The numbers of the side panels fraPanel(n) that the program has.
#pragma once

namespace gp {

inline constexpr int kColorPanel = 0;
inline constexpr int kIconsListPanel = 1;
inline constexpr int kCursorPanel = 2;
inline constexpr int kRotatePanel = 4;
inline constexpr int kButtonizePanel = 7;
inline constexpr int kShadesPanel = 13;
inline constexpr int kDisabledImagePanel = 15;
inline constexpr int kConfinePanel = 19;

}  // namespace gp

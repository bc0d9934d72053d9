// What commands announce after they have succeeded.
#pragma once

#include <string>

namespace gp::news {

inline constexpr const char* kSaved = "Saved";
inline constexpr const char* kSalvaged = "Salvaged";
inline constexpr const char* kUndone = "Undone";
inline constexpr const char* kAllUndone = "All undone";
inline constexpr const char* kRedone = "Redone";
inline constexpr const char* kApplied = "Applied";
inline constexpr const char* kCopied = "Copied";
inline constexpr const char* kCutAndCopied = "Cut and copied";
inline constexpr const char* kErased = "Erased";
inline constexpr const char* kPasted = "Pasted";
inline constexpr const char* kClipboardCleared = "Clipboard cleared";
inline constexpr const char* kNoTool = "No tool";

// "Region 12 x 8", in icon pixels.
inline std::string region(int width, int height) {
  return "Region " + std::to_string(width) + " x " + std::to_string(height);
}
// "New icon 16 x 16", in icon pixels.
inline std::string newIcon(int size) { return "New icon " + std::to_string(size) + " x " + std::to_string(size); }
// "Opened tools.ico".
inline std::string opened(const std::string& name) { return "Opened " + name; }
// "Container 3, tools.ico"; containers are counted from 0.
inline std::string container(int index, const std::string& name) {
  return "Container " + std::to_string(index + 1) + ", " + name;
}
// "Frame 3 shows the icon" and "Frame 3 in Editing Area": frames of an animated cursor, from 1.
inline std::string frameFromIcon(int number) { return "Frame " + std::to_string(number) + " shows the icon"; }
inline std::string iconFromFrame(int number) { return "Frame " + std::to_string(number) + " in Editing Area"; }

}  // namespace gp::news

// The checks before the first window is shown: a second instance, the companion program, the screen, the system's
// folders. Their results are stored in the edit state; the caller creates the windows.
#pragma once

#include <string>

namespace gp {

class MessageBoxes;
class Processes;
class SystemInfo;
struct EditState;

// Title of the about screen, by which a second instance finds and closes it.
inline constexpr const char* kAboutTitle = "Glimmerpane By Zorvex Lattice";
// The companion program, which handles icons of custom sizes.
inline constexpr const char* kCompanionProgram = "gpsupp1.exe";

// Runs the checks in order. Returns false when the program must end, after informing the user. Sets the screen depth
// and the folders of `state.process`. `folder` is that of the settings.
[[nodiscard]] bool runStartUpChecks(SystemInfo& system, Processes& processes, MessageBoxes& boxes, EditState& state,
                                    const std::string& folder);

}  // namespace gp
